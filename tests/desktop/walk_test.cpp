// A random walk with mouse and keyboard over every window, while reminders come due, the clock
// jumps and the panel dies; and a model that knows what must be on the disk when the program was
// ended or killed. TOCKLY_WALK_SEED repeats one, TOCKLY_WALK_SECONDS sets its length,
// TOCKLY_PROGRAM names another build.
#include "desktop/driven.h"
#include "desktop/records.h"

#include <QDateTime>
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

// Seconds that the clock is set on by; 0 stands for the seconds to just before midnight.
constexpr qint64 ClockJumps[] = {90, 420, 0, 0, 93600, 3456000, -259200};
constexpr qint64 OnDiskAfter = 10000; // ms

// A text that a file must hold, or must hold no longer.
struct Fact {
    QString file;
    QByteArray text;
    bool there = true;
    QElapsedTimer since;
};

class Walk : public Driven {
protected:
    void SetUp() override {
        Driven::SetUp();
        const QByteArray given = qgetenv("TOCKLY_WALK_SEED");
        seed = given.isEmpty() ? std::random_device()() : given.toUInt();
        random.seed(seed);
        std::cout << "TOCKLY_WALK_SEED=" << seed << std::endl;
        Lay_Out();
        canSetClock = !desktop.Run({u"ldd"_s, Tockly::Path()}).contains(u"libasan"_s);
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
    // What the program finds at the start: settings as they come, reminders that are due.
    void Lay_Out() {
        QDir home(Home());
        for (const QString& user : home.entryList({u"User-*"_s}, QDir::Dirs)) {
            QDir(home.filePath(user)).removeRecursively();
        }
        home.remove(u"HKEY_LOCAL_MACHINE.reg"_s);
        Program::Lay_Out();
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
        EXPECT_TRUE(Write_File(Reminders(), Reminder_File(due)));
        Give_Examples();
        facts.clear();
    }
    void TearDown() override {
        panel.kill();
        panel.waitForFinished();
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
        if (canSetClock) {
            const std::pair<QString, QString> settings[] = {
                {u"LD_PRELOAD"_s, u"/usr/$LIB/faketime/libfaketimeMT.so.1"_s},
                {u"FAKETIME_TIMESTAMP_FILE"_s, Home() + "/clock"_L1},
                {u"FAKETIME_CACHE_DURATION"_s, u"1"_s},
                {u"DONT_FAKE_MONOTONIC"_s, u"1"_s},
                {u"NO_FAKE_STAT"_s, u"1"_s}};
            for (const auto& [name, value] : settings) {
                tockly.Set_Environment(name, value);
            }
            Set_Clock();
        }
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
        } else if (kind < 94) {
            Close_One();
        } else if (kind < 96) {
            Jump();
        } else if (kind < 97) {
            Kill_Panel();
        } else {
            Change_Clipboard();
        }
    }
    void Set_Clock() {
        Write_File(Home() + "/clock"_L1,
                   (clockAhead < 0 ? "" : "+") + QByteArray::number(clockAhead) + "s\n");
    }
    void Jump() {
        if (!canSetClock) {
            return;
        }
        const QDateTime now = QDateTime::currentDateTime().addSecs(clockAhead);
        const qint64 by = One_Of(ClockJumps);
        clockAhead += by != 0 ? by : now.time().secsTo(QTime(23, 59, 57));
        steps.append("clock "_L1 + QString::number(clockAhead));
        Set_Clock();
    }
    void Kill_Panel() {
        steps.append(u"panel"_s);
        for (const QString& window : desktop.Search({u"--class"_s, u"^tint2$"_s})) {
            desktop.XDo({u"windowkill"_s, window});
        }
        panel.kill();
        panel.waitForFinished();
        panel.setProcessEnvironment(desktop.Environment());
        panel.setStandardErrorFile(QProcess::nullDevice());
        panel.start(u"tint2"_s, {});
    }

    // What the user has done, and what the files have to hold from then on.
    void Confirm(const QString& file, const QByteArray& text, bool there,
                 const QByteArray& before) {
        facts.removeIf(
            [&](const Fact& fact) { return fact.file == file && fact.text.startsWith(before); });
        facts.append({file, text, there, {}});
        facts.last().since.start();
        steps.append((there ? "kept "_L1 : "gone "_L1) + QString::fromLatin1(text));
    }
    // Windows that the window manager knows; menus are none.
    void Close_All() {
        QStringList left;
        EXPECT_TRUE(Wait_Until([&] {
            left.clear();
            const QString box = desktop.Visible_Windows(Box).value(0);
            if (!box.isEmpty()) { // whether to leave what is not finished
                desktop.Run({u"wmctrl"_s, u"-i"_s, u"-a"_s, box});
                Keys({u"alt+y"_s, u"Escape"_s});
                return false;
            }
            Keys({u"Escape"_s}); // a menu
            for (const QString& line : desktop.Run({u"wmctrl"_s, u"-lx"_s}).split(u'\n')) {
                if (line.contains("tockly.Tockly"_L1) && !line.endsWith(Strip)) {
                    left.append(line);
                    if (!line.endsWith(u' ' + Box)) {
                        desktop.Run({u"wmctrl"_s, u"-i"_s, u"-c"_s, line.section(u' ', 0, 0)});
                    }
                }
            }
            return left.isEmpty();
        })) << qPrintable(left.join(u'\n'));
    }
    void Keep_One() {
        const QByteArray text = "Kept " + QByteArray::number(++kept) + " of all";
        const QString file = u"reminders.dat"_s;
        const auto deletable = std::find_if(facts.rbegin(), facts.rend(), [&](const Fact& fact) {
            return fact.file == file && fact.there;
        });
        Close_All();
        const int kind = Any(4);
        if (kind == 0) {
            Open(u"Add new reminder"_s, "Add new reminder");
            Keys({u"Down"_s, u"Return"_s, u"Return"_s, u"Tab"_s, u"space"_s, u"Return"_s,
                  u"Return"_s});
            Type(QString::fromLatin1(text));
            Keys({u"Tab"_s, u"Tab"_s, u"Return"_s, u"Return"_s, u"Return"_s, u"Return"_s});
            Wait_Until_Gone(u"Add new reminder"_s);
            Confirm(file, text, true, text);
        } else if (kind == 1) {
            Open(u"Notes"_s, "View notes");
            Press_Until(
                [&] {
                    Click(u"Notes"_s, {"push button", "Click to add a new note"});
                },
                [&] { return Writes_In(u"Notes"_s); });
            Type(QString::fromLatin1(text));
            Confirm(u"notes.dat"_s, text, true, text);
        } else if (kind == 2 && deletable != facts.rend()) {
            const QByteArray doomed = deletable->text;
            Open(u"Reminders"_s, "View reminders");
            Press_Until(
                [&] { // made last, it stands at the end
                    Click(u"Reminders"_s, {"list item", "Title"});
                    Keys({u"End"_s});
                    Click(u"Reminders"_s, {"list item", doomed});
                    Click(u"Reminders"_s, {"push button", "Delete"});
                },
                [&] {
                    const bool asked = Count(u"Confirm"_s) == 1;
                    const bool ofIt = desktop.Spoken(u"Confirm"_s).contains(QLatin1String(doomed));
                    if (asked && !ofIt) {
                        Keys({u"Escape"_s});
                    }
                    return asked && ofIt;
                });
            Agree(u"Confirm"_s);
            Confirm(file, doomed, false, doomed);
        } else {
            Launch_Again();
            const int top = desktop.Geometry(Strip_Window()).top();
            Keys({u"ctrl+Down"_s});
            ASSERT_TRUE(Wait_Until([&] { return desktop.Geometry(Strip_Window()).top() > top; }));
            const QByteArray name = "\"Global_Config_MainForm_Top\"=dword:";
            const int twips = 15 * desktop.Geometry(Strip_Window()).top();
            Confirm(u"../HKEY_CURRENT_USER.reg"_s,
                    name + QByteArray::number(twips, 16).rightJustified(8, '0'), true, name);
        }
    }
    bool Writes_In(const QString& window) const {
        const std::vector<Control> controls = desktop.Controls(window);
        return std::any_of(controls.begin(), controls.end(), [](const Control& control) {
            return control.focused && control.role == "text"_L1;
        });
    }
    // A reminder that comes up over the controls takes the click: then it is done again.
    void Press_Until(const std::function<void()>& press, const std::function<bool()>& done) const {
        EXPECT_TRUE(Wait_Until([&] {
            for (const QString& shown : desktop.Visible_Windows(u"Reminder"_s)) {
                desktop.Run({u"wmctrl"_s, u"-i"_s, u"-c"_s, shown});
            }
            if (Count(u"Reminder"_s) > 0) {
                return false;
            }
            press();
            return Wait_Until(done, 2000);
        }));
    }
    // Nothing of it changes what was confirmed.
    void Step_Without_Harm() {
        const int kind = Any(10);
        if (kind < 3) {
            Do(Move_To(Somewhere()));
        } else if (kind < 6) {
            Open_One();
        } else if (kind < 7) {
            Close_All();
        } else if (kind < 8) {
            Do(Move_To(Find(Strip, MessageLine).place.center()) +
               QStringList{u"click"_s, u"3"_s, u"sleep"_s, u"0.2"_s, u"key"_s, u"Escape"_s});
        } else if (kind < 9) {
            Jump();
        } else {
            Kill_Panel();
        }
    }
    void Check() {
        for (const Fact& fact : facts) {
            EXPECT_EQ(File_Bytes(Home() + "/User-1/"_L1 + fact.file).contains(fact.text),
                      fact.there)
                << fact.text.data() << ", " << fact.since.elapsed() << " ms old";
            ++checked;
        }
    }
    // Ends the program as the log-out does, or as a power cut.
    void End(Tockly& tockly, int signal) {
        steps.append("signal "_L1 + QString::number(signal));
        tockly.Signal(signal);
        if (signal == SIGKILL) { // too young to be counted on
            facts.removeIf([](const Fact& fact) { return fact.since.elapsed() < OnDiskAfter; });
        }
        const int status = tockly.Wait_For_End();
        if (signal == SIGTERM) {
            EXPECT_EQ(status, 0);
        }
        EXPECT_GE(Reminder_Count(Reminders()), 0);
        Check();
    }
    void Keep(qint64 milliseconds) {
        Tockly tockly(desktop, Home());
        Start(tockly);
        ASSERT_TRUE(desktop.Wait_For_Window(Strip));
        QElapsedTimer elapsed;
        for (elapsed.start(); !HasFailure() && elapsed.elapsed() < milliseconds;) {
            if (Any(3) == 0) {
                Keep_One();
            } else {
                Step_Without_Harm();
            }
            ASSERT_TRUE(tockly.Is_Running()) << "it ended by itself";
        }
        End(tockly, Any(2) == 0 ? SIGTERM : SIGKILL);
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

    // Anything goes: whatever it hits, the program lives and answers.
    void Wander(qint64 milliseconds) {
        facts.clear();
        QElapsedTimer elapsed, answered;
        auto tockly = std::make_unique<Tockly>(desktop, Home());
        Start(*tockly);
        answered.start();
        for (elapsed.start(); !HasFailure() && elapsed.elapsed() < milliseconds;) {
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
        End(*tockly, Any(4) == 0 ? SIGKILL : SIGTERM);
    }

    unsigned seed = 0;
    std::mt19937 random;
    QStringList steps;
    QSet<QString> met;
    std::vector<QRect> places, fields;
    QProcess ground, owner, panel;
    QList<Fact> facts;
    qint64 clockAhead = 0; // seconds
    bool canSetClock = false;
    int kept = 0;
    int checked = 0;
};

TEST_F(Walk, At_Random_Over_Every_Window_Ends_With_All_Saved) {
    bool counted = false;
    int seconds = qEnvironmentVariableIntValue("TOCKLY_WALK_SECONDS", &counted);
    seconds = counted ? seconds : 60;
    QElapsedTimer elapsed;
    elapsed.start();
    while (!HasFailure() && elapsed.elapsed() < seconds * 1000) {
        Lay_Out();
        for (int run = 0; !HasFailure() && run < 2; ++run) {
            Keep(4000 + Any(14000));
        }
        if (!HasFailure()) {
            Wander(20000 + Any(20000));
        }
    }
    std::cout << steps.size() << " steps over " << met.size() << " controls, " << kept
              << " things done, " << checked << " found on the disk" << std::endl;
}

} // namespace
