// Launches and ends among the other programs, users and screens of a machine.
#include "desktop/driven.h"
#include "desktop/records.h"

#include <QDir>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

class Launch : public Driven {
protected:
    QStringList As_User(int number) const {
        const QString id = QString::number(number);
        return {u"setpriv"_s, u"--reuid="_s + id, u"--regid="_s + id, u"--clear-groups"_s};
    }
    // The toolkit ends the program with 1; a crash on the way is told as -1.
    // type: where the first reminder comes; the others come in windows and were missed too.
    void Lose_Screen_In(std::uint8_t type, const std::function<void()>& prepare) {
        ASSERT_TRUE(Write_File(Reminders(), Reminder_File({{.id = 1, .type = type},
                                                           {.id = 2, .type = 1, .lastRun = 1},
                                                           {.id = 3, .type = 2, .lastRun = 1}})));
        Tockly tockly(desktop, Home());
        Bring_Up(tockly);
        EXPECT_TRUE(desktop.Wait_For_Window(u"Missed Reminders"_s));
        EXPECT_TRUE(Wait_Until([&] { return Count(u"Reminder"_s) == (type == 0 ? 2 : 3); }));
        EXPECT_TRUE(Wait_Until([&] { return !Any_Fades(); }));
        prepare();
        ASSERT_TRUE(QFile::remove(Reminders()));
        desktop.Kill_Screen();
        EXPECT_EQ(tockly.Wait_For_End(), 1);
        EXPECT_EQ(Reminder_Count(Reminders()), 3);
    }
};

TEST_F(Launch, Every_User_Of_A_Shared_Folder_Gets_An_Account_That_Saves) {
    if (::geteuid() != 0) {
        GTEST_SKIP() << "this user may not be another one";
    }
    const QString shared = Home() + "/shared"_L1;
    ASSERT_TRUE(QDir().mkpath(shared));
    ::chmod(qPrintable(Home()), 0755);
    ::chmod(qPrintable(shared), 01777);
    const mode_t before = ::umask(077); // nobody reads what another one made
    for (const int user : {60001, 60002, 60003}) {
        SCOPED_TRACE(user);
        const QString own = Home() + u'/' + QString::number(user);
        ASSERT_TRUE(QDir().mkpath(own) && ::chown(qPrintable(own), user, user) == 0);
        Tockly tockly(desktop, shared);
        tockly.Set_Environment(u"TOCKLY_REGISTRY"_s, {});
        tockly.Set_Environment(u"XDG_CONFIG_HOME"_s, own);
        tockly.Set_Environment(u"HOME"_s, own);
        tockly.Start(As_User(user));
        EXPECT_TRUE(desktop.Wait_For_Window(Strip));
        EXPECT_EQ(tockly.End(), 0);
        const QString number = QString::number(user - 60000);
        EXPECT_TRUE(QFile::exists(shared + "/User-"_L1 + number + "/reminders.dat"_L1));
    }
    ::umask(before);
}

TEST_F(Launch, A_Second_Launch_Reaches_A_Strip_In_The_Tray_Behind_A_Box_And_Waits_For_The_End) {
    ASSERT_TRUE(Write_File(Reminders(), Reminder_File({{.id = 1}})));
    Tockly first(desktop, Home());
    Bring_Up(first);
    const QString list = u"Reminders"_s;
    Open(list, "View reminders");
    Click(list, {"list item", "Title"});
    ASSERT_TRUE(Hide_Completely());
    Click(list, {"push button", "Delete"});
    const QString question = Wait_For_Focus(u"Confirm"_s);
    desktop.XDo({u"windowminimize"_s, question});
    Tockly second(desktop, Home());
    second.Set_Environment(u"XDG_RUNTIME_DIR"_s, Home());
    second.Start();
    EXPECT_EQ(second.Wait_For_End(), 0);
    EXPECT_EQ(Wait_For_Focus(u"Confirm"_s), question);
    EXPECT_EQ(Count(Strip), 0);
    Keys({u"Escape"_s});
    Wait_For_Focus(Strip);

    const QPoint close = Place(Strip, CloseButton);
    // A folder cannot be replaced by a file: the end has something to tell, before a save beside
    // the interface tells it.
    ASSERT_TRUE(QFile::remove(Reminders()) && QDir().mkpath(Reminders()));
    Press_Close(u"ctrl"_s, close);
    const QString box = Wait_For_Focus(Box);
    desktop.XDo({u"windowminimize"_s, box});
    Tockly third(desktop, Home());
    third.Start();
    EXPECT_EQ(Wait_For_Focus(Box), box) << "it comes forward again";
    EXPECT_TRUE(third.Is_Running());
    ASSERT_TRUE(QDir().rmdir(Reminders()));
    Agree(Box);
    EXPECT_EQ(first.Wait_For_End(), 0);
    EXPECT_TRUE(desktop.Wait_For_Window(Strip)) << "the third starts when the first has ended";
    EXPECT_TRUE(third.Is_Running());
}

TEST_F(Launch, The_Loss_Of_The_Screen_Saves_Too) {
    Lose_Screen_In(0, [&] {
        Open(u"Reminders"_s, "View reminders");
        Click(u"Reminders"_s, {"list item", "Title"});
        Click(u"Reminders"_s, {"push button", "Set exact date"});
        EXPECT_TRUE(desktop.Wait_For_Window(u"Calendar"_s));
        Open(u"Notes"_s, "View notes");
        Choose_OwnLink("View Help", u"Help"_s);
        Choose_OwnLink("'My Links' menu setup", u"'My Links' menu setup"_s);
        Choose_OwnLink("Program Setup", u"Setup"_s);
        Choose_OwnLink("Setup wizard", u"Setup Wizard"_s);
        Open(u"Textbox"_s, "Open Textbox");
        Open(u"Add new reminder"_s, "Add new reminder");
        Keys({u"Escape"_s});
        Wait_For_Focus(Box); // to quit the wizard
        EXPECT_EQ(Windows_OfProgram(), 14) << "all stay open";
    });
}

TEST_F(Launch, The_Loss_Of_The_Screen_In_A_Fade_Saves_Too) {
    Lose_Screen_In(1, [&] {
        Press_Close(u"shift"_s, Place(Strip, CloseButton));
        EXPECT_TRUE(Wait_Until([&] { return Any_Fades(); }));
    });
}

TEST_F(Launch, The_Loss_Of_The_Screen_In_A_Collapse_Saves_Too) {
    Lose_Screen_In(1, [&] {
        Press_Close({}, Place(Strip, CloseButton));
        EXPECT_TRUE(Wait_Until([&] { return desktop.Geometry(Strip_Window()).height() < 20; }));
    });
}

TEST_F(Launch, The_Loss_Of_The_Screen_Beside_A_Clock_Saves_Too) {
    Lose_Screen_In(1, [&] {
        Open(u"Reminders"_s, "View reminders");
        Click(u"Reminders"_s, {"list item", "Title"});
        Click(u"Reminders"_s, {"page tab", "Hours Setup"});
        Click(u"Reminders"_s, {"text", "Row 1: until"});
        EXPECT_TRUE(desktop.Wait_For_Window(u"Tockly Clock"_s));
    });
}

} // namespace
