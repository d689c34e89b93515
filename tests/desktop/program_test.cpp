// The program as a whole, on a real X desktop.
#include "desktop/driven.h"
#include "desktop/records.h"

#include <QDir>
#include <gtest/gtest.h>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

class Whole : public Driven {};

TEST_F(Whole, The_Strip_Is_Dragged_And_Sized_And_Comes_Back_Where_It_Was_Left) {
    {
        Tockly tockly(desktop, Home());
        Bring_Up(tockly);
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
        EXPECT_EQ(tockly.End(), 0);
    }
    Tockly again(desktop, Home());
    Bring_Up(again);
    EXPECT_TRUE(
        Wait_Until([&] { return desktop.Geometry(Strip_Window()) == QRect(100, 400, 433, 20); }));
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
    Bring_Up(next);
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
    EXPECT_EQ(tockly.End(), 0);
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
        {"a collapse", false,
         [&] {
             Press_Close({}, Place(Strip, CloseButton));
             return Wait_Until([&] { return desktop.Geometry(Strip_Window()).height() < 20; });
         }},
        {"a fade", false,
         [&] {
             Wait_Until([&] { return !Any_Fades(); });
             Press_Close(u"shift"_s, Place(Strip, CloseButton));
             return Wait_Until([&] { return Any_Fades(); });
         }},
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
        EXPECT_EQ(tockly.End(), 0);
        desktop.XDo({u"mouseup"_s, u"1"_s});
        if (test.damaged) {
            EXPECT_EQ(File_Bytes(Reminders()), damaged)
                << "nothing is saved before the load is over";
        } else {
            EXPECT_EQ(Reminder_Count(Reminders()), 2);
            EXPECT_EQ(Registry_Value(Home(), u"HKEY_CURRENT_USER.reg"_s,
                                     u"Global_Config_MainForm_Width"_s),
                      u"dword:00001383"_s);
        }
    }
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
    EXPECT_EQ(tockly.End(), 0);
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
    Bring_Up(tockly);
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
    Bring_Up(tockly);
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
    Bring_Up(again);
    EXPECT_GT(desktop.Geometry(Strip_Window()).top(), 0);
}

} // namespace
