// The program as a whole, on a real X desktop.
#include "desktop/driven.h"
#include "desktop/records.h"

#include <QDir>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <gtest/gtest.h>

#include <csignal>
#include <sys/mount.h>

using namespace Qt::StringLiterals;

namespace {

class Whole : public Driven {};

TEST_F(Whole, The_Strip_Is_Dragged_And_Sized_And_Comes_Back_Where_It_Was_Left) {
    {
        Tockly tockly(desktop, Home());
        tockly.Start();
        ASSERT_TRUE(desktop.Wait_For_Window(Strip));
        const QRect start = desktop.Geometry(Strip_Window());
        const QPoint line = Place(Strip, MessageLine);
        const QPoint held = line - start.topLeft() + QPoint(100, 400);
        Drag(line, held);
        EXPECT_TRUE(Wait_Until([&] {
            return desktop.Geometry(Strip_Window()) == QRect({100, 400}, start.size());
        })) << desktop.Geometry(Strip_Window()).x();
        Drag({100 + start.width() - 2, 410}, {100 + start.width() + 98, 410});
        EXPECT_TRUE(Wait_Until([&] {
            return desktop.Geometry(Strip_Window()) == QRect(100, 400, 433, 20);
        })) << desktop.Geometry(Strip_Window()).width();
        tockly.Signal(SIGTERM);
        EXPECT_EQ(tockly.Wait_For_End(), 0);
    }
    Tockly again(desktop, Home());
    again.Start();
    ASSERT_TRUE(desktop.Wait_For_Window(Strip));
    EXPECT_TRUE(
        Wait_Until([&] { return desktop.Geometry(Strip_Window()) == QRect(100, 400, 433, 20); }));
}

TEST_F(Whole, A_Second_Launch_Brings_The_Strip_Forward_And_Gives_It_The_Focus) {
    Tockly first(desktop, Home());
    first.Start();
    ASSERT_TRUE(desktop.Wait_For_Window(Strip));
    const QString window = Strip_Window();
    EXPECT_NE(desktop.XDo({u"getactivewindow"_s}), window) << "the strip took the focus at start";

    Launch_Again();
    EXPECT_TRUE(first.Is_Running());
    EXPECT_TRUE(Wait_Until([&] { return desktop.XDo({u"getactivewindow"_s}) == window; }));
    EXPECT_EQ(Count(Strip), 1);
}

TEST_F(Whole, Launches_At_The_Same_Moment_And_After_A_Kill_End_With_One_Toolbar) {
    std::vector<std::unique_ptr<Tockly>> copies;
    for (int i = 0; i < 4; ++i) {
        copies.push_back(std::make_unique<Tockly>(desktop, Home()));
        copies.back()->Start();
    }
    const auto running = [&copies] {
        return std::count_if(copies.begin(), copies.end(),
                             [](auto& copy) { return copy->Is_Running(); });
    };
    EXPECT_TRUE(Wait_Until([&] { return running() == 1 && Count(Strip) == 1; }, 30000));
    for (auto& copy : copies) {
        if (copy->Is_Running()) {
            copy->Signal(SIGKILL);
            copy->Wait_For_End();
        }
    }
    Tockly next(desktop, Home());
    next.Start();
    EXPECT_TRUE(desktop.Wait_For_Window(Strip));
}

TEST_F(Whole, A_Box_During_The_Load_Neither_Ends_The_Program_Nor_Stops_A_Second_Launch) {
    ASSERT_TRUE(Write_File(Reminders(), "RSaveFile001\x01"));
    Tockly tockly(desktop, Home());
    tockly.Start();
    ASSERT_TRUE(desktop.Wait_For_Window(Box));
    Launch_Again();
    EXPECT_EQ(Count(Strip), 0);

    Click(Box, {"push button", "OK"});
    ASSERT_TRUE(desktop.Wait_For_Window(Strip));
    EXPECT_EQ(Count(Strip), 1);
    tockly.Signal(SIGTERM);
    EXPECT_EQ(tockly.Wait_For_End(), 0);
    EXPECT_EQ(Reminder_Count(Reminders()), 0);
    EXPECT_EQ(File_Bytes(Reminders() + ".damaged"_L1), "RSaveFile001\x01");
}

TEST_F(Whole, The_End_In_The_Middle_Of_Something_Saves_What_There_Is) {
    struct Case {
        const char* what;
        bool damaged;
        std::function<bool()> prepare;
    };
    const std::vector<Case> cases{
        {"a drag", false,
         [&] {
             desktop.XDo(Move_To(Place(Strip, MessageLine)) + QStringList{u"mousedown"_s, u"1"_s});
             desktop.XDo({u"mousemove"_s, u"400"_s, u"300"_s});
             return Wait_Until([&] { return desktop.Geometry(Strip_Window()).y() > 200; });
         }},
        {"a message", false, [&] { return Wait_Until([&] { return Line_Has_Text(); }); }},
        {"a popup menu", false,
         [&] {
             if (!Wait_Until([&] { return Line_Has_Text(); })) {
                 return false;
             }
             Click(Strip, MessageLine, u"3"_s);
             return A_Menu_Opens_Beside(1);
         }},
        {"a message box of the load", true, [&] { return desktop.Wait_For_Window(Box); }},
    };
    for (const Case& test : cases) {
        SCOPED_TRACE(test.what);
        const QByteArray damaged = "RSaveFile001\x05";
        ASSERT_TRUE(Write_File(Reminders(),
                               test.damaged ? damaged : Reminder_File({{.id = 7}, {.id = 8}})));
        Tockly tockly(desktop, Home());
        tockly.Start();
        ASSERT_TRUE(test.damaged || desktop.Wait_For_Window(Strip));
        ASSERT_TRUE(test.prepare());
        tockly.Signal(SIGTERM);
        EXPECT_EQ(tockly.Wait_For_End(), 0);
        desktop.XDo({u"mouseup"_s, u"1"_s});
        if (test.damaged) {
            EXPECT_EQ(File_Bytes(Reminders()), damaged)
                << "nothing is saved before the load is over";
        } else {
            EXPECT_EQ(Reminder_Count(Reminders()), 2);
        }
    }
}

TEST_F(Whole, What_Cannot_Be_Saved_Is_Said_And_The_Rest_Is_Saved) {
    ASSERT_TRUE(QDir().mkpath(Reminders()));
    for (const bool byUser : {true, false}) {
        SCOPED_TRACE(byUser ? "ended by the user" : "ended by the session");
        Tockly tockly(desktop, Home());
        tockly.Start();
        ASSERT_TRUE(desktop.Wait_For_Window(Box)) << "the folder is no valid file";
        Click(Box, {"push button", "OK"});
        ASSERT_TRUE(desktop.Wait_For_Window(Strip));
        if (byUser) {
            desktop.XDo({u"keydown"_s, u"ctrl"_s});
            Click(Strip, CloseButton);
            desktop.XDo({u"keyup"_s, u"ctrl"_s});
            Click(Box, {"push button", "OK"});
        } else {
            tockly.Signal(SIGTERM);
        }
        EXPECT_EQ(tockly.Wait_For_End(), 0);
        EXPECT_TRUE(QFileInfo(Reminders()).isDir());
        EXPECT_TRUE(File_Bytes(Home() + "/User-1/rcategories.txt"_L1).startsWith("Work;Write\r\n"));
        QFile::remove(Home() + "/User-1/rcategories.txt"_L1);
    }
}

TEST_F(Whole, A_Full_Disk_Leaves_The_Old_File_As_It_Was) {
    const QString disk = Home() + "/disk"_L1;
    ASSERT_TRUE(QDir().mkpath(disk));
    if (::mount("tmpfs", qPrintable(disk), "tmpfs", 0, "size=64k") != 0) {
        GTEST_SKIP() << "this user may not mount a small disk";
    }
    const QByteArray old = Reminder_File({{.id = 3, .text = QByteArray(20000, 'x')}});
    const QString file = disk + "/User-1/reminders.dat"_L1;
    const bool written = Write_File(file, old);
    Tockly tockly(desktop, disk);
    tockly.Set_Environment(u"TOCKLY_REGISTRY"_s, Home());
    tockly.Start();
    const bool shown = desktop.Wait_For_Window(Strip);
    QFile filler(disk + "/filler"_L1);
    if (filler.open(QIODevice::WriteOnly)) {
        while (filler.write(QByteArray(512, 'f')) == 512 && filler.flush()) {
        }
    }
    tockly.Signal(SIGTERM);
    const int code = tockly.Wait_For_End();
    const QByteArray after = File_Bytes(file);
    const auto left = QDir(disk + "/User-1"_L1).entryList(QDir::Files);
    filler.close();
    ::umount2(qPrintable(disk), MNT_DETACH);
    EXPECT_TRUE(written && shown);
    EXPECT_EQ(code, 0);
    EXPECT_TRUE(after == old);
    EXPECT_EQ(left.filter(u"reminders.dat"_s).size(), 1) << qPrintable(left.join(u' '));
    EXPECT_FALSE(Registry_Value(Home(), u"HKEY_CURRENT_USER.reg"_s, u"First Time"_s).isEmpty());
}

TEST_F(Whole, A_Folder_Without_Rights_Is_Lived_With) {
    const QByteArray old = Reminder_File({{.id = 5}});
    ASSERT_TRUE(Write_File(Reminders(), old));
    QFile::setPermissions(Home(),
                          QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
    QFile::setPermissions(Home() + "/User-1"_L1,
                          QFile::ReadOther | QFile::ExeOther | QFile::ReadOwner | QFile::ExeOwner);
    QFile::setPermissions(Reminders(), QFile::ReadOwner | QFile::ReadOther);
    Tockly tockly(desktop, Home());
    tockly.Set_Environment(u"XDG_RUNTIME_DIR"_s, {});
    const bool root = ::geteuid() == 0;
    tockly.Start(root ? QStringList{u"setpriv"_s, u"--reuid=65534"_s, u"--regid=65534"_s,
                                    u"--clear-groups"_s}
                      : QStringList{});
    EXPECT_TRUE(desktop.Wait_For_Window(Strip));
    tockly.Signal(SIGTERM);
    EXPECT_EQ(tockly.Wait_For_End(), 0);
    EXPECT_EQ(File_Bytes(Reminders()), old);
    QFile::setPermissions(Home(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QFile::setPermissions(Home() + "/User-1"_L1,
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

TEST_F(Whole, A_Due_Reminder_Sounds_And_Passes_Through_The_Line_Until_It_Is_Dismissed) {
    ASSERT_TRUE(
        Write_File(Reminders(), Reminder_File({{.id = 1, .text = "Due now", .sound = true}})));
    const QString heard = Home() + "/heard.raw"_L1;
    Tockly tockly(desktop, Home());
    tockly.Set_Environment(u"SDL_AUDIODRIVER"_s, u"disk"_s);
    tockly.Set_Environment(u"SDL_DISKAUDIOFILE"_s, heard);
    tockly.Start();
    ASSERT_TRUE(desktop.Wait_For_Window(Strip));
    EXPECT_TRUE(Wait_Until([&] { return Line_Has_Text(); }));
    EXPECT_TRUE(Wait_Until([&] {
        const QByteArray bytes = File_Bytes(heard);
        return std::any_of(bytes.begin(), bytes.end(), [](char byte) { return byte != 0; });
    })) << "the beep is not to be heard";

    Click(Strip, MessageLine, u"3"_s);
    EXPECT_TRUE(A_Menu_Opens_Beside(1));
    Keys({u"Down"_s, u"Return"_s});
    EXPECT_TRUE(Wait_Until([&] { return !Line_Has_Text(); })) << "\"Ok, I got it\" does not end it";
    EXPECT_TRUE(tockly.Is_Running());
}

TEST_F(Whole, What_Changed_Is_On_The_Disk_When_The_Program_Is_Killed) {
    const QByteArray before = Reminder_File({{.id = 1, .text = "Due now"}});
    ASSERT_TRUE(Write_File(Reminders(), before));
    const QString rest = Home() + "/User-1/.tockly-999999999-1.tmp"_L1; // of a killed run
    ASSERT_TRUE(Write_File(rest, "rest"));
    Tockly tockly(desktop, Home());
    tockly.Start();
    ASSERT_TRUE(desktop.Wait_For_Window(Strip));
    const QString toolbarTop = u"Global_Config_MainForm_Top"_s;
    const QString user = u"HKEY_CURRENT_USER.reg"_s;
    EXPECT_TRUE(Wait_Until([&] { return Line_Has_Text(); }));
    // It has fired, which the record notes.
    EXPECT_TRUE(Wait_Until([&] { return File_Bytes(Reminders()) != before; }, 6000));
    Click(Strip, MessageLine);
    Keys({u"ctrl+Down"_s, u"ctrl+Down"_s});
    EXPECT_TRUE(Wait_Until(
        [&] { return !Registry_Value(Home(), user, toolbarTop).endsWith(u"00000000"_s); }, 6000));
    tockly.Signal(SIGKILL);
    tockly.Wait_For_End();
    EXPECT_EQ(File_Bytes(Reminders()).size(), before.size());
    EXPECT_FALSE(QFile::exists(rest));
    EXPECT_EQ(QDir(Home()).entryList({u".tockly-*.tmp"_s}, QDir::Files | QDir::Hidden),
              QStringList());
    Tockly again(desktop, Home());
    again.Start();
    ASSERT_TRUE(desktop.Wait_For_Window(Strip));
    EXPECT_GT(desktop.Geometry(Strip_Window()).top(), 0);
}

} // namespace
