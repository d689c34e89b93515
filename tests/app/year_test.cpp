// A long life in a short time: 2,000 reminders that fire, are edited, sent away, added and deleted
// day after day, with every window opened once a day. What fires is compared with a second
// calculation, minute by minute, and nothing grows. TOCKLY_YEAR_DAYS sets the length.
#include "accessories/help/help.h"
#include "accessories/setup/setup.h"
#include "accessories/textbox/frm_textbox.h"
#include "app/application.h"
#include "core/remind_again.h"
#include "core/reminder_store.h"
#include "delivery/important_rwin.h"
#include "delivery/message_queue.h"
#include "editors/list/reminder_edit.h"
#include "editors/wizard/frm_add_reminder_wizard.h"
#include "editors/wizard/frm_quick_add_reminder.h"
#include "links/editor/links_editor.h"
#include "links/menu/links_menu.h"
#include "links/store/link_rec.h"
#include "links/store/links_data.h"
#include "notes/frm_notes_editor.h"
#include "notes/notes_store.h"
#include "platform/providers.h"
#include "settings/global_settings.h"
#include "support/fake_system.h"
#include "toolbar/main_form.h"

#include <QApplication>
#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPixmapCache>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <malloc.h>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr int Reminders = 2000;
const QString Sounds = u"/sounds/"_s;

class SoundFiles : public FakeFiles {
public:
    bool Exists(const QString& path) override {
        return path.startsWith(Sounds) || FakeFiles::Exists(path);
    }
    // Without a list of what was written: a thread saves.
    bool Replace(const QString& path, const std::string& content) override {
        return disk->Replace(path, content);
    }

private:
    std::unique_ptr<platform::Files> disk = platform::Make_Files();
};

// Each reminder has a sound of its own: what was opened has fired.
class Listener : public Provided<platform::Media> {
public:
    std::vector<int> heard;

    int Send_String(const QString& command) override {
        if (command.startsWith("OPEN "_L1)) {
            heard.push_back(command.section(u' ', 1, 1).mid(Sounds.size()).toInt());
        }
        return 0;
    }
    QString Error_Text(int) override { return {}; }
    QString Short_Path(const QString& file) override { return file; }
    bool Play_Tone() override { return true; }
};

// What a reminder was made of, and when it fires by nothing but the calendar. Every kind of day and
// of hours by itself is the engine's test.
struct Plan {
    bool enabled = true;
    int weekday = 0; // none: every day
    QDate notOn;     // disabled for that day
    int start = 0;
    int every = 0; // none: once
    int end = 0;

    bool Is_On(QDate day) const {
        return enabled && day != notOn && (weekday == 0 || day.dayOfWeek() == weekday);
    }
    bool Is_In(int minute) const {
        return minute == start ||
               (every > 0 && minute > start && minute <= end && (minute - start) % every == 0);
    }
};

struct Sent {
    QDate day;
    int minute = 0;
    int id = 0;
};

class Year : public testing::Test {
protected:
    Year() {
        system.clock.Set(day.year(), day.month(), day.day(), 0, 0, 0);
        EXPECT_TRUE(QDir().mkpath(system.paths.Program_Folder() + "/User-1"_L1));
        system.files.Replace(table, std::string("RSaveFile001\0\0\0\0", 16));
        system.files.Replace(system.paths.Shipped_Folder() + "/tooltips.txt"_L1,
                             "[0] Help\r\nText");
        EXPECT_TRUE(program.Load());
        Global_UseTransparency = false;
        // What the style keeps of its pictures has a limit of its own, but not their names.
        QPixmapCache::setCacheLimit(0);
        for (int id = 0; id < Reminders; ++id) {
            Add(0);
        }
        for (int row = 0; row < 200; ++row) {
            Global_LinkArray.insert(
                Global_LinkArray.begin(),
                {u"0Nhttp://www.example.com/%1"_s.arg(row), u"Link %1"_s.arg(row), {}, 0, 0});
        }
        Load_Global_LinksArray();
        for (NoteRec& note : Global_Notes) {
            note = {true, u"A note"_s, u"Some lines\r\nof text"_s, 9000, 9000, 600, 0};
        }
    }

    int Roll(int sides) { return static_cast<int>(dice() % unsigned(sides)); }

    static void Set_Hours(const Plan& plan, ReminderClass& reminder) {
        reminder.ClearAllHourSetup();
        reminder.AddNewHourSetup({-1, static_cast<std::int16_t>(plan.start),
                                  static_cast<std::int16_t>(plan.end),
                                  static_cast<std::int16_t>(plan.every)});
    }
    // One that fires from the given minute of today on.
    void Add(int minute) {
        Plan plan;
        plan.weekday = Roll(8);
        plan.start = minute + Roll(1400 - minute);
        if (minute == 0 && Roll(2) == 0) {
            plan.every = 60 + Roll(300);
            plan.end = plan.start + Roll(1440 - plan.start);
        }
        const int id = static_cast<int>(plans.size());
        auto reminder = std::make_unique<ReminderClass>();
        reminder->SetDefaultValues();
        reminder->rs_ID = id;
        reminder->rs_SoundPath = Sounds + QString::number(id);
        reminder->rs_Reminder_Type =
            id % 50 == 0 ? static_cast<ReminderType>(id % 3) : ReminderType::InsideToolbar;
        reminder->rs_DateType_Used = plan.weekday == 0 ? DateType::EveryDay : DateType::Weekdays;
        std::array<std::uint8_t, 8> days{};
        days[static_cast<std::size_t>(plan.weekday + 6) % 7] = 1;
        reminder->Set_Rs_Rdays(days);
        Set_Hours(plan, *reminder);
        const auto slot = static_cast<std::size_t>(Take_FreeReminderSlot());
        Global_Reminders[slot] = {true, false, std::move(reminder)};
        plans.push_back(plan);
    }
    static std::int32_t Slot_Of(int id) {
        for (std::size_t slot = 0; slot < Global_Reminders.size(); ++slot) {
            if (Global_Reminders[slot].Used && Global_Reminders[slot].Reminder.Peek().rs_ID == id) {
                return static_cast<std::int32_t>(slot);
            }
        }
        return -1;
    }

    // As a user does through the day.
    void Edit(int minute) {
        const int id = Roll(static_cast<int>(plans.size()));
        const std::int32_t slot = Slot_Of(id);
        Plan& plan = plans[static_cast<std::size_t>(id)];
        if (slot == -1 || minute > 1300) {
            return;
        }
        const ReminderOwner& reminder = Global_Reminders[static_cast<std::size_t>(slot)].Reminder;
        const int what = Roll(6);
        if (what == 0) {
            Delete_ReminderSlot(slot);
            plan.enabled = false;
            std::erase_if(sent, [id](const Sent& one) { return one.id == id; });
            Add(minute + 10);
        } else if (what == 1) {
            Add_RA_Reminder(id, 0, Get_TodayDay(), minute + 7);
            sent.push_back({day, minute + 7, id});
        } else if (what == 2) {
            reminder->rs_DisabledForToday = Get_TodayDay();
            plan.notOn = day;
        } else if (plan.every == 0 && std::abs(plan.start - minute) > 6) {
            if (what == 3) {
                plan.enabled = reminder->rs_Enabled = !plan.enabled;
            } else {
                plan.start = minute + 10 + Roll(1400 - minute - 10);
                Set_Hours(plan, *reminder);
            }
        }
    }
    // "Remind me again", of one that has just come.
    void Send_Away(int id, int minute) {
        const int option = Roll(static_cast<int>(Global_RA_Options.size()));
        if (!Choose_RA(option, id, 0)) {
            ADD_FAILURE() << "not queued";
            return;
        }
        const int due = minute + Global_RA_Options[static_cast<std::size_t>(option)];
        // Past midnight it comes a minute late.
        sent.push_back(due > 1439 ? Sent{day.addDays(1), due - 1439, id} : Sent{day, due, id});
    }
    void Take_Leave() {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (auto* shown = qobject_cast<frmImportantRWin*>(window);
                shown != nullptr && shown->isVisible()) {
                while (!shown->Is_Closed()) {
                    shown->wbButton3_Click();
                }
            }
        }
        // One after the other comes on the line, and is sent away there.
        for (int left = 1000; Any_MessageActive() && left > 0; --left) {
            Global_Timers->Tick(TimerName::S_Reminder_Timer);
            if (Global_CurrentMessage != -1) {
                Global_ToolbarMessages[static_cast<std::size_t>(Global_CurrentMessage)].LastShown -=
                    60'000;
                Dismiss_Message(Global_CurrentMessage);
            }
        }
        EXPECT_FALSE(Any_MessageActive());
    }
    std::vector<int> Expected(int minute) {
        std::vector<int> ids;
        for (std::size_t id = 0; id < plans.size(); ++id) {
            if (plans[id].Is_In(minute) && plans[id].Is_On(day)) {
                ids.push_back(static_cast<int>(id));
            }
        }
        for (const Sent& one : sent) {
            if (one.day == day && one.minute == minute) {
                ids.push_back(one.id);
            }
        }
        std::sort(ids.begin(), ids.end());
        return ids;
    }
    // A minute as the event loop lives through it.
    void Let_MinutePass() {
        system.clock.Advance(60'000 - passed);
        passed = 0;
        const auto due = [](TimerName timer) { return Global_Timers->Is_Enabled(timer); };
        while (passed < 50'000 &&
               (due(TimerName::R_CheckDate_Timer) || due(TimerName::Check_Ra_Reminders_Timer))) {
            passed += 1000;
            system.clock.Advance(1000);
            if (due(TimerName::R_CheckDate_Timer)) {
                Global_Timers->Tick(TimerName::R_CheckDate_Timer);
            }
            if (passed % 5000 == 0 && due(TimerName::Check_Ra_Reminders_Timer)) {
                Global_Timers->Tick(TimerName::Check_Ra_Reminders_Timer);
            }
        }
    }
    static void Let_GoWhatIsClosed() {
        Global_Timers->Tick(TimerName::UnloadFormsTimer);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void Open_EveryWindow() {
        const std::function<void()> ways[] = {
            Show_AddReminderWizard,
            Show_QuickAdd,
            Show_ReminderEdit,
            Show_NotesEditor,
            Show_LinksEditor,
            Show_ProgramSetup,
            Toggle_Textbox,
            Show_SetupWizard,
            [] { Show_HelpPage(u"toolbar.html"_s); },
            [] {
                Open_LinksMenu(MenuOpenedBy::Keyboard, {0, 0, 300, 20});
            }};
        system.dialogs.Expect_Question(
            u"The new reminder hasn't been created yet.\r\nDo you want to quit the wizard ?"_s,
            platform::Answer::Yes, platform::BoxStyle::Exclamation);
        for (const auto& open : ways) {
            open();
            QCoreApplication::processEvents();
            int closed = 0;
            for (QWidget* window : QApplication::topLevelWidgets()) {
                if (window != program.Main_Form() && window->isVisible()) {
                    ++closed;
                    window->close();
                }
            }
            EXPECT_GE(closed, 1);
            Let_GoWhatIsClosed();
        }
        Hide_LinksMenu();
    }

    struct Size {
        std::size_t heap = 0;
        std::size_t resident = 0; // KB
        qsizetype handles = 0;
        qsizetype timers = 0;
        qsizetype widgets = 0;
    };
    Size Measure() {
        Let_GoWhatIsClosed();
        system.windows.windows.clear();
        system.dialogs.shown.clear();
        Size size;
        size.heap = mallinfo2().uordblks;
        QFile status(u"/proc/self/statm"_s);
        EXPECT_TRUE(status.open(QFile::ReadOnly));
        size.resident = status.readAll().split(' ')[1].toULongLong() * 4;
        size.handles = QDir(u"/proc/self/fd"_s).entryList(QDir::AllEntries | QDir::System).size();
        for (const QWidget* widget : QApplication::allWidgets()) {
            ++size.widgets;
            for (const auto* timer : widget->findChildren<QTimer*>(Qt::FindDirectChildrenOnly)) {
                size.timers += timer->isActive() ? 1 : 0;
            }
        }
        size.timers += static_cast<qsizetype>(system.clock.Waiting());
        return size;
    }
    void Print(const Size& size) const {
        std::printf("%s: heap %zu KB, resident %zu KB, %d handles, %d timers, %d widgets\n",
                    day.toString(Qt::ISODate).toLatin1().data(), size.heap / 1024, size.resident,
                    int(size.handles), int(size.timers), int(size.widgets));
    }

    QDate day{2028, 2, 20}; // before a 29 February
    FakeSystem system;
    SoundFiles files;
    const QString table = system.paths.Program_Folder() + "/User-1/reminders.dat"_L1;
    Listener media;
    Application program;
    std::mt19937 dice{11};
    std::vector<Plan> plans;
    std::vector<Sent> sent;
    int passed = 0; // ms of the minute
};

TEST_F(Year, What_Fires_Is_What_The_Calendar_Says_And_Nothing_Grows) {
    const int asked = qEnvironmentVariableIntValue("TOCKLY_YEAR_DAYS");
    const int days = asked > 0 ? std::max(asked, 8) : 21;
    std::size_t fired = 0;
    std::size_t away = 0;
    Size begin;
    // The first check of the run is that of the first minute.
    passed = 60'000;
    const auto start = std::chrono::steady_clock::now();
    for (int count = 0; count < days; ++count, day = day.addDays(1)) {
        const int windowsAt = 10 + Roll(1400);
        for (int minute = 0; minute < 1440; ++minute) {
            const std::vector<int> expected = Expected(minute);
            Let_MinutePass();
            std::sort(media.heard.begin(), media.heard.end());
            ASSERT_EQ(media.heard, expected) << day.toString().toStdString() << " " << minute;
            std::erase_if(sent,
                          [&](const Sent& one) { return one.day == day && one.minute == minute; });
            fired += expected.size();
            if (!expected.empty()) {
                if (Roll(50) == 0) {
                    Send_Away(expected.front(), minute);
                    ++away;
                }
                Take_Leave();
            }
            media.heard.clear();
            if (Roll(60) == 0) {
                Edit(minute);
            }
            if (minute == windowsAt) {
                Open_EveryWindow();
            }
        }
        if (count == days / 2) {
            // By now all have fired that fire at all; what is kept of a saved table counts as well.
            ASSERT_TRUE(QTest::qWaitFor([this] { return QFileInfo(table).size() > 100'000; }));
            begin = Measure();
            Print(begin);
        }
    }
    // A save that is under way comes to its end.
    Size end;
    EXPECT_TRUE(QTest::qWaitFor([&] {
        end = Measure();
        return end.heap < begin.heap + (512U << 10U) && end.handles <= begin.handles &&
               end.timers <= begin.timers && end.widgets <= begin.widgets;
    }));
    Print(end);
    const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - start;
    std::printf("%d days in %.0f s: %zu fired, %zu sent away, %zu reminders made\n", days,
                spent.count(), fired, away, plans.size());
    EXPECT_GT(fired, static_cast<std::size_t>(days) * 100);
}

} // namespace
