// A random walk with mouse and keyboard over every window. TOCKLY_WALK_SEED repeats one,
// TOCKLY_WALK_SECONDS sets its length, TOCKLY_PROGRAM names another build.
#include "desktop/driven.h"
#include "desktop/records.h"

#include <QElapsedTimer>
#include <QSet>

#include <csignal>
#include <iostream>
#include <random>

namespace {

const char* const ToolbarButtons[] = {"My Links", "Add new reminder", "View reminders",
                                      "View notes", "Open Textbox"};
const char* const Pressed[] = {
    "Tab",       "shift+Tab",    "Escape",   "Return", "space",  "Up",       "Down",
    "Left",      "Right",        "Home",     "End",    "Prior",  "Next",     "Delete",
    "BackSpace", "F1",           "ctrl+a",   "ctrl+c", "ctrl+x", "ctrl+v",   "ctrl+v",
    "ctrl+z",    "ctrl+y",       "ctrl+s",   "Menu",   "F4",     "alt+Down", "shift+End",
    "shift+Up",  "shift+Insert", "ctrl+End", "Escape", "Return"};

class Walk : public Driven {
protected:
    void SetUp() override {
        Driven::SetUp();
        const QByteArray given = qgetenv("TOCKLY_WALK_SEED");
        seed = given.isEmpty() ? std::random_device()() : given.toUInt();
        random.seed(seed);
        std::cout << "TOCKLY_WALK_SEED=" << seed << std::endl;
        std::vector<TestReminder> due; // at the start and with every minute
        for (int id = 0; id < 9; ++id) {
            const bool atStart = id < 4;
            due.push_back({.id = id,
                           .type = static_cast<std::uint8_t>(id % 3),
                           .text = "Due " + QByteArray::number(id) + "\nhttp://nowhere.invalid",
                           .sound = id == 0,
                           .startMinute = static_cast<std::int16_t>(atStart ? -1 : 0),
                           .everyMinutes = static_cast<std::int16_t>(atStart ? 1439 : 1)});
        }
        ASSERT_TRUE(Write_File(Reminders(), Reminder_File(due)));
        Give_Examples();
        // Nothing but these is found by name: what a click starts ends at once.
        for (const QString& name : {u"xdg-open"_s, u"gio"_s}) {
            Write_File(Home() + "/bin/"_L1 + name, "#!/bin/sh\n");
            QFile::setPermissions(Home() + "/bin/"_L1 + name, QFile::ReadOwner | QFile::ExeOwner);
        }
        // Below all: a click that misses ends here.
        ground.setProcessEnvironment(desktop.Environment());
        ground.setStandardOutputFile(QProcess::nullDevice());
        ground.start(u"xev"_s, {u"-name"_s, u"Ground"_s, u"-geometry"_s, u"1000x700+0+20"_s});
        ASSERT_TRUE(desktop.Wait_For_Window(u"Ground"_s));
        desktop.Run({u"wmctrl"_s, u"-r"_s, u"Ground"_s, u"-b"_s, u"add,below"_s});
    }
    void TearDown() override {
        ground.kill();
        ground.waitForFinished();
        Forget_Clipboard();
        if (HasFailure()) {
            std::cout << "TOCKLY_WALK_SEED=" << seed << "; the last steps:\n"
                      << qPrintable(
                             steps.mid(std::max<qsizetype>(0, steps.size() - 40)).join(u'\n'))
                      << std::endl;
        }
    }

    int Any(int below) { return std::uniform_int_distribution(0, below - 1)(random); }
    template <class Table>
    auto One_Of(const Table& table) {
        return table[static_cast<std::size_t>(Any(static_cast<int>(std::size(table))))];
    }
    static QStringList Held(const QString& button, const QStringList& meanwhile) {
        return QStringList{u"mousedown"_s, button} + meanwhile + QStringList{u"mouseup"_s, button};
    }
    void Start(Tockly& tockly) {
        tockly.Set_Environment(u"PATH"_s, Home() + "/bin"_L1);
        tockly.Set_Environment(u"HOME"_s, Home());
        tockly.Start();
        ASSERT_TRUE(desktop.Wait_For_Window(Strip) || desktop.Wait_For_Window(Box));
    }

    // Controls, and windows that screen readers are not told of. Asked again after some steps only:
    // what has gone since is a place as good as any.
    void Look_Around() {
        places.clear();
        fields.clear();
        for (const Control& control : desktop.Controls()) {
            places.push_back(control.place);
            if (control.role == "text"_L1) {
                fields.push_back(control.place);
            }
            met.insert(control.role + u' ' + control.name);
        }
        const std::size_t controls = places.size();
        for (const QString& window : desktop.Search({u"--class"_s, u"^tockly$"_s})) {
            const QRect place = desktop.Geometry(window);
            places.insert(places.end(), 1 + controls / 10, place);
        }
    }
    QPoint Somewhere() {
        if (places.empty() || steps.size() % 4 == 0) {
            Look_Around();
        }
        return places.empty() ? QPoint(500, 10) : Inside(One_Of(places));
    }
    QPoint Inside(const QRect& place) {
        return place.topLeft() +
               QPoint(Any(std::max(1, place.width())), Any(std::max(1, place.height())));
    }
    QString Any_Button() { return QString::number(1 + Any(10) / 7 + Any(10) / 8); }

    void Do(const QStringList& command) {
        steps.append(command.join(u' '));
        desktop.XDo(command);
    }
    void Point() {
        const QStringList there = Move_To(Somewhere());
        switch (Any(6)) {
        case 0:
            return Do(there + QStringList{u"click"_s, u"--repeat"_s, u"2"_s, u"--delay"_s, u"60"_s,
                                          u"1"_s});
        case 1:
            return Do(there +
                      QStringList{u"click"_s, u"--repeat"_s, u"4"_s, QString::number(4 + Any(2))});
        case 2: { // a drag, at times held outside so that the text scrolls, at times of a text
            const QStringList away =
                Move_To(Any(2) == 0 ? Somewhere() : QPoint(Any(1024), Any(768)));
            const QStringList whole =
                Any(2) == 0 ? QStringList{u"key"_s, u"ctrl+a"_s} : QStringList();
            return Do(there + whole +
                      Held(Any_Button(),
                           QStringList{u"mousemove_relative"_s, u"--"_s, u"-12"_s, u"3"_s} + away +
                               QStringList{u"sleep"_s, Any(3) == 0 ? u"0.6"_s : u"0.02"_s}));
        }
        default:
            return Do(there + QStringList{u"click"_s, Any_Button()});
        }
    }
    // What the clipboard, the selection or a dragged text holds goes into a field.
    void Paste() {
        Look_Around();
        if (fields.empty()) {
            return;
        }
        const QStringList there = Move_To(Inside(One_Of(fields)));
        const QStringList click{u"click"_s, u"1"_s};
        switch (Any(3)) {
        case 0:
            return Do(there + QStringList{u"click"_s, u"2"_s});
        case 1:
            return Do(there + click + QStringList{u"key"_s, u"ctrl+a"_s} +
                      Held(u"1"_s, QStringList{u"sleep"_s, u"0.1"_s} + Move_To(Somewhere()) +
                                       Move_To(Inside(One_Of(fields)))));
        default:
            return Do(there + click + QStringList{u"key"_s, u"ctrl+v"_s});
        }
    }
    void Press() {
        QStringList keys{u"key"_s};
        for (int count = 1 + Any(3); count > 0; --count) {
            keys.append(QLatin1String(One_Of(Pressed)));
        }
        Do(keys);
    }
    void Write() {
        QString text;
        for (int count = 1 + Any(12); count > 0; --count) {
            text += QChar(u' ' + Any(95));
        }
        Do({u"type"_s, u"--delay"_s, u"2"_s, u"--"_s, text});
    }
    void Close_One() {
        const QStringList windows = desktop.Search({u"--class"_s, u"^tockly$"_s});
        const QString window = windows.value(Any(std::max(1, static_cast<int>(windows.size()))));
        if (!window.isEmpty() && window != Strip_Window()) {
            steps.append("close "_L1 + window);
            desktop.Run({u"wmctrl"_s, u"-i"_s, u"-c"_s, window});
        }
    }
    void Open_One() {
        const QLatin1String button(One_Of(ToolbarButtons));
        for (const Control& control : desktop.Controls(Strip)) {
            if (control.name == button) {
                return Do(Move_To(control.place.center()) + QStringList{u"click"_s, u"1"_s});
            }
        }
    }
    // Another program's text, or that of one that has gone.
    void Change_Clipboard() {
        steps.append(u"clipboard"_s);
        if (owner.state() != QProcess::NotRunning) {
            return Forget_Clipboard();
        }
        owner.setProcessEnvironment(desktop.Environment());
        owner.start(u"xclip"_s,
                    {u"-quiet"_s, u"-selection"_s, Any(2) == 0 ? u"clipboard"_s : u"primary"_s});
        owner.write("another\nprogram's text");
        owner.closeWriteChannel();
    }
    void Forget_Clipboard() {
        owner.kill();
        owner.waitForFinished();
    }
    void Step() {
        const int kind = Any(100);
        if (kind < 33) {
            Point();
        } else if (kind < 45) {
            Paste();
        } else if (kind < 70) {
            Press();
        } else if (kind < 80) {
            Write();
        } else if (kind < 92) {
            Open_One();
        } else if (kind < 95) {
            Close_One();
        } else {
            Change_Clipboard();
        }
    }
    // Both a screen reader's question and a second launch within ten seconds.
    void Expect_An_Answer() {
        steps.append(u"second launch"_s);
        Tockly second(desktop, Home());
        second.Start();
        EXPECT_EQ(second.Wait_For_End(10000), 0) << "a second launch was not answered";
        EXPECT_TRUE(Wait_Until([&] { return !desktop.Controls().empty(); }, 10000))
            << "a screen reader was not answered";
    }

    unsigned seed = 0;
    std::mt19937 random;
    QStringList steps;
    QSet<QString> met;
    std::vector<QRect> places, fields;
    QProcess ground, owner;
};

TEST_F(Walk, At_Random_Over_Every_Window_Ends_With_All_Saved) {
    bool counted = false;
    int seconds = qEnvironmentVariableIntValue("TOCKLY_WALK_SECONDS", &counted);
    seconds = counted ? seconds : 60;
    QElapsedTimer elapsed, answered;
    elapsed.start();
    auto tockly = std::make_unique<Tockly>(desktop, Home());
    Start(*tockly);
    answered.start();
    while (!HasFailure() && elapsed.elapsed() < seconds * 1000) {
        Step();
        if (!tockly->Is_Running()) { // ended from a menu
            ASSERT_EQ(tockly->Wait_For_End(), 0) << "it crashed";
            steps.append(u"started again"_s);
            tockly = std::make_unique<Tockly>(desktop, Home());
            Start(*tockly);
        } else if (answered.hasExpired(8000)) {
            Expect_An_Answer();
            answered.start();
        }
    }
    std::cout << steps.size() << " steps over " << met.size() << " controls" << std::endl;
    tockly->Signal(SIGTERM);
    EXPECT_EQ(tockly->Wait_For_End(), 0);
    EXPECT_GE(Reminder_Count(Reminders()), 0);
    EXPECT_TRUE(File_Bytes(Home() + "/User-1/notes.dat"_L1).size() > 0);
}

} // namespace
