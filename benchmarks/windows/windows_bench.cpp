// How the windows bear many rows, each against the same window with few, and how long a background
// save holds the interface; in one run on the screen that DISPLAY names.
#include "app/background_save.h"
#include "controls/form.h"
#include "controls/program_end.h"
#include "controls/timers.h"
#include "controls/unload_queue.h"
#include "core/categories.h"
#include "core/date_text.h"
#include "core/reminder_store.h"
#include "editors/list/frm_reminder_edit.h"
#include "editors/list/reminder_edit.h"
#include "links/menu/links_menu.h"
#include "links/store/link_rec.h"
#include "notes/frm_notes_editor.h"
#include "notes/notes_store.h"
#include "platform/files.h"
#include "platform/system.h"
#include "row.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int Runs = 15;

// Until nothing is left to paint.
void Settle() {
    for (int round = 0; round < 3; ++round) {
        QApplication::sendPostedEvents();
        QApplication::processEvents();
    }
}

// Milliseconds.
double Time_Of(const std::function<void()>& work) {
    QElapsedTimer time;
    time.start();
    work();
    Settle();
    return static_cast<double>(time.nsecsElapsed()) / 1e6;
}

double Median(std::vector<double> times) {
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

void Close_All() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* form = qobject_cast<Form*>(window))
            form->Unload(UnloadMode::Ending);
    Unload_PendingForms();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Settle();
}

void Fill_Reminders(int count) {
    Init_Reminders();
    for (int number = 0; number < count; ++number) {
        auto reminder = std::make_unique<ReminderClass>();
        reminder->SetDefaultValues();
        reminder->rs_ID = number;
        reminder->rs_Title = u"Reminder %1"_s.arg(number);
        reminder->rs_Icon = u"Home"_s;
        auto& slot = Global_Reminders[static_cast<std::size_t>(Take_FreeReminderSlot())];
        slot.Used = true;
        slot.Reminder = std::move(reminder);
    }
}

double Open_List(int reminders) {
    std::vector<double> times;
    Fill_Reminders(reminders);
    for (int run = 0; run < Runs; ++run) {
        times.push_back(Time_Of(Show_ReminderEdit));
        Close_All();
    }
    return Median(times);
}

QScrollBar* Longest_Bar(QWidget* window) {
    const auto bars = window->findChildren<QScrollBar*>();
    return *std::max_element(bars.begin(), bars.end(), [](QScrollBar* a, QScrollBar* b) {
        return a->maximum() < b->maximum();
    });
}

// One step of the bar and its painting, the worst of a hundred.
double Worst_Step(QWidget* window) {
    QScrollBar* bar = Longest_Bar(window);
    double worst = 0;
    for (int step = 1; step <= 100; ++step)
        worst = std::max(worst, Time_Of([&] { bar->setValue(bar->maximum() / 100 * step); }));
    return worst;
}

// A key in the title, the worst of fifty.
double Worst_Key(frmReminderEdit* window) {
    window->SelectReminder_Using_RListIndex(3);
    Settle();
    QLineEdit* title = nullptr;
    for (QLineEdit* line : window->findChildren<QLineEdit*>())
        if (line->text() == "Reminder 3"_L1)
            title = line;
    double worst = title == nullptr ? -1 : 0;
    for (int key = 0; title != nullptr && key < 50; ++key)
        worst = std::max(worst, Time_Of([&] { title->insert(u"x"_s); }));
    return worst;
}

double Open_Menu(int links) {
    Global_LinkArray.clear();
    for (int row = 0; row < links; ++row)
        Global_LinkArray.push_back({u"0http://www.example.com/"_s, u"Link %1"_s.arg(row), {}});
    Update_LinksMenu();
    std::vector<double> times;
    for (int run = 0; run < Runs; ++run) {
        times.push_back(
            Time_Of([] { Open_LinksMenu(MenuOpenedBy::Keyboard, QRect(300, 0, 333, 20)); }));
        Hide_LinksMenu();
        Unload_PendingForms();
        Settle();
    }
    return Median(times);
}

double Open_Notes(int notes) {
    Init_Notes();
    Global_NoteCategories[0] = u"All"_s;
    Global_Notes.clear();
    for (int note = 0; note < notes; ++note)
        Global_Notes.push_back(
            {true, u"Note %1"_s.arg(note), u"Text\r\nof it"_s, 3000, 3000, 0, 0});
    std::vector<double> times;
    for (int run = 0; run < Runs; ++run) {
        times.push_back(Time_Of(Show_NotesEditor));
        Close_All();
    }
    return Median(times);
}

// A key in the only note, a text without a blank; the worst of twenty.
double Worst_NoteKey() {
    Global_Notes.resize(1);
    Global_Notes[0].Text = QString(60000, u'a');
    Show_NotesEditor();
    Settle();
    double worst = -1;
    for (QWidget* widget : QApplication::allWidgets()) {
        auto* text = qobject_cast<QPlainTextEdit*>(widget);
        for (int key = 0; key < 20 && text != nullptr && text->isVisible(); ++key)
            worst = std::max(worst, Time_Of([text] { text->insertPlainText(u"x"_s); }));
    }
    Close_All();
    return worst;
}

constexpr double Frame = 1000.0 / 60; // ms

std::string Milliseconds(double time) {
    return QString::number(time, 'f', 1).toStdString() + " ms";
}

// Many rows against few, and against a hundred times as few.
void Print_Many(const char* what, double many, double few, double limit, double ten = 0,
                double hundred = 0) {
    Print_Row({what, Milliseconds(many), Milliseconds(few) + " with 10", many / few, limit, ten,
               hundred});
}

void Print_InFrame(const char* what, double time) {
    Print_Row({what, Milliseconds(time), "16.7 ms frame", time / Frame, 1, 0, 0});
}

// A disk that takes two seconds for a sync.
class SlowDisk : public platform::Files {
public:
    bool Exists(const QString&) override { return false; }
    std::optional<std::string> Read(const QString&) override { return {}; }
    bool Replace(const QString&, const std::string&) override {
        QThread::sleep(2);
        return true;
    }
    bool Copy(const QString&, const QString&, bool) override { return true; }
    platform::FileStamp Stamp(const QString&) override { return {}; }
    void Sweep(const QString&) override {}
    bool Make_Folder(const QString&) override { return true; }
    std::optional<QStringList> Empty_Files(const QString&) override { return {}; }
};

// The longest time in which the interface got to nothing else.
double Longest_Hold(int reminders) {
    SlowDisk disk;
    platform::Files::Provide(&disk);
    Fill_Reminders(reminders);
    double longest = 0;
    {
        BackgroundSave save({{u"reminders.dat"_s, Reminders_File(), {}, {}},
                             {},
                             [] {},
                             [] { return [] {}; },
                             [](const QString&) {}});
        save.Begin();
        QElapsedTimer since;
        since.start();
        while (save.Is_Passing()) {
            QApplication::processEvents();
            longest = std::max(longest, static_cast<double>(since.nsecsElapsed()) / 1e6);
            since.restart();
        }
        save.Finish();
    }
    platform::Files::Provide(nullptr);
    return longest;
}

} // namespace

int main(int argc, char** argv) {
    platform::Prepare_Process();
    QApplication toolkit(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    platform::Provide_Base_Services();
    platform::Provide_Window_Services();
    Timers timers;
    Global_Timers = &timers;
    Init_TimeRoutines();
    Init_DateText();
    Init_Categories();
    Init_LinksMenu({[] {}, [] {}});

    Open_List(10); // fonts and pictures of the first window are not the list's
    const double ten = Open_List(10);
    const double thousand = Open_List(1000);
    const double tenThousand = Open_List(10000);
    Print_Many("list of 10,000 reminders, opened", tenThousand, ten, 2, tenThousand / thousand,
               Open_List(100000) / thousand);
    Fill_Reminders(10000);
    Show_ReminderEdit();
    Settle();
    Print_InFrame("worst step of a list of 10,000", Worst_Step(Open_ReminderEdit()));
    Print_InFrame("worst key in a title of 10,000", Worst_Key(Open_ReminderEdit()));
    Close_All();
    Open_Menu(10);
    const double tenLinks = Open_Menu(10);
    const double hundredLinks = Open_Menu(100);
    const double thousandLinks = Open_Menu(1000);
    Print_Many("links menu of 1,000, opened", thousandLinks, tenLinks, 1.5, hundredLinks / tenLinks,
               thousandLinks / tenLinks);
    Open_Notes(10);
    const double tenNotes = Open_Notes(10);
    const double fiftyNotes = Open_Notes(50);
    const double fiveHundred = Open_Notes(500);
    const double fiveThousand = Open_Notes(5000);
    Print_Many("5,000 notes, opened", fiveThousand, tenNotes, 2, fiveHundred / fiftyNotes,
               fiveThousand / fiftyNotes);
    Show_NotesEditor();
    Settle();
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (qobject_cast<frmNotesEditor*>(window) != nullptr) {
            Print_InFrame("worst step of 5,000 notes", Worst_Step(window));
        }
    }
    Close_All();
    Print_InFrame("worst key in a note of 60,000 letters", Worst_NoteKey());
    const double hold = Longest_Hold(100000);
    Print_InFrame("background save of 100,000, longest hold, sync of 2 s", hold);
    Unload_LinksMenu();
    Global_Timers = nullptr;
}
