// Above other windows, on every workspace and on the right screen, as the window system tells it.
#include "desktop/driven.h"
#include "desktop/records.h"

#include <QSet>

namespace {

class Screens : public Driven {
protected:
    void SetUp() override {
        Program::SetUp();
        ASSERT_TRUE(Write_File(Reminders(), Reminder_File({})));
    }
    // A window of another program, above all ordinary ones, over the middle of the screen's top.
    QString Open_Other() {
        other.setProcessEnvironment(desktop.Environment());
        other.setStandardOutputFile(QProcess::nullDevice());
        other.start(u"xev"_s, {u"-name"_s, u"Other"_s, u"-geometry"_s, u"600x100+200+0"_s});
        EXPECT_TRUE(desktop.Wait_For_Window(u"Other"_s));
        desktop.Run({u"wmctrl"_s, u"-r"_s, u"Other"_s, u"-b"_s, u"add,above"_s});
        return desktop.Visible_Windows(u"Other"_s).value(0);
    }
    bool Is_Above(const QString& upper, const QString& lower) const {
        const QString order =
            desktop.Run({u"xprop"_s, u"-root"_s, u"-notype"_s, u"_NET_CLIENT_LIST_STACKING"_s});
        const auto place = [&](const QString& window) {
            return order.indexOf("0x"_L1 + QString::number(window.toULongLong(), 16));
        };
        return place(lower) != -1 && place(lower) < place(upper);
    }
    ~Screens() override {
        other.kill();
        other.waitForFinished();
    }

    QProcess other;
};

TEST_F(Screens, It_Comes_Above_A_Later_Topmost_Window_But_Not_Above_A_Full_Screen_One) {
    Tockly tockly(desktop, Home());
    Bring_Up(tockly);
    const QString over = Open_Other();
    EXPECT_TRUE(Wait_Until([&] { return Is_Above(Strip_Window(), over); }, 5000));
    desktop.Run({u"wmctrl"_s, u"-r"_s, u"Other"_s, u"-b"_s, u"add,fullscreen"_s});
    desktop.Run({u"wmctrl"_s, u"-a"_s, u"Other"_s});
    EXPECT_TRUE(Wait_Until([&] { return Is_Above(over, Strip_Window()); }, 5000));
    EXPECT_FALSE(Wait_Until([&] { return Is_Above(Strip_Window(), over); }, 2500));
}

TEST_F(Screens, A_Reminder_Window_Comes_Above_The_Text_Box_That_Is_Typed_Into) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizers and a clock set for one program do not go together";
#endif
    ASSERT_TRUE(Write_File(Reminders(), Reminder_File({{.id = 1, .type = 2, .startMinute = 601}})));
    Tockly tockly(desktop, Home());
    tockly.Set_Clock(u"10:00:50"_s);
    Bring_Up(tockly);
    Click(Strip, {"push button", "Open Textbox"});
    const QString box = Wait_For_Focus(u"Textbox"_s);
    ASSERT_EQ(Count(u"Reminder"_s), 0) << "too early";
    ASSERT_TRUE(Wait_Until([&] { return Count(u"Reminder"_s) == 1; }, 30000));
    const QString reminder = desktop.Visible_Windows(u"Reminder"_s).value(0);
    EXPECT_TRUE(Wait_Until([&] { return Is_Above(reminder, box); }, 5000));
    EXPECT_EQ(desktop.XDo({u"getactivewindow"_s}), box);
}

TEST_F(Screens, Reminder_Windows_Stand_In_Their_Places_And_Leave_The_Focus_Where_It_Is) {
    // 345 pixels are free on each side: one window of 254 with the 20 that may be cut.
    ASSERT_TRUE(Write_File(Reminders(), Reminder_File({{.id = 1, .type = 1},
                                                       {.id = 2, .type = 1},
                                                       {.id = 3, .type = 1},
                                                       {.id = 4, .type = 2}})));
    const QString window = Open_Other();
    desktop.XDo({u"windowactivate"_s, u"--sync"_s, window});
    Tockly tockly(desktop, Home());
    Bring_Up(tockly);
    const QString note = u"Reminder"_s;
    ASSERT_TRUE(Wait_Until([&] { return Count(note) == 3; }));
    QSet<QPoint> places;
    for (const QString& shown : desktop.Visible_Windows(note)) {
        places.insert(desktop.Geometry(shown).topLeft());
        const QString state = desktop.Property(shown, u"_NET_WM_STATE"_s);
        EXPECT_TRUE(state.contains(u"_ABOVE"_s) && state.contains(u"_SKIP_TASKBAR"_s))
            << qPrintable(state);
    }
    EXPECT_EQ(places, (QSet<QPoint>{{345 - 254, 0}, {345 + 333, 0}, {385, 345}}));
    EXPECT_EQ(desktop.XDo({u"getactivewindow"_s}), window);
    EXPECT_EQ(tockly.End(), 0) << "open at the end, they hold nothing up";
}

TEST_F(Screens, Hidden_In_The_Tray_A_Second_Launch_Brings_It_Back_And_The_End_Keeps_Its_Place) {
    const QRect place(345, 0, 333, 20);
    const auto stands = [&] {
        return Wait_Until([&] { return desktop.Geometry(Strip_Window()) == place; });
    };
    Tockly tockly(desktop, Home());
    Bring_Up(tockly);
    for (int round = 0; round < 2; ++round) {
        ASSERT_TRUE(Hide_Completely());
        Launch_Again();
        ASSERT_TRUE(desktop.Wait_For_Window(Strip));
        EXPECT_TRUE(stands());
        const QString state = desktop.Property(Strip_Window(), u"_NET_WM_STATE"_s);
        for (const QString& wanted : {u"_ABOVE"_s, u"_SKIP_TASKBAR"_s, u"_SKIP_PAGER"_s}) {
            EXPECT_TRUE(state.contains(wanted)) << qPrintable(state);
        }
    }
    ASSERT_TRUE(Hide_Completely());
    EXPECT_EQ(tockly.End(), 0);
    Tockly again(desktop, Home());
    Bring_Up(again);
    EXPECT_TRUE(stands());
}

TEST_F(Screens, It_Is_On_Every_Workspace_And_A_Second_Launch_Focuses_It_There) {
    ASSERT_TRUE(Write_File(Reminders(), Reminder_File({{.id = 1, .type = 1}})));
    Tockly tockly(desktop, Home());
    tockly.Start();
    for (const QString& window : {Strip, u"Reminder"_s}) {
        ASSERT_TRUE(desktop.Wait_For_Window(window));
        const QString number = desktop.Visible_Windows(window).value(0);
        EXPECT_TRUE(Wait_Until([&] {
            return desktop.Property(number, u"_NET_WM_DESKTOP"_s).contains("4294967295"_L1);
        })) << qPrintable(window);
    }
    desktop.Run({u"wmctrl"_s, u"-s"_s, u"1"_s});
    ASSERT_TRUE(desktop.Wait_For_Window(Strip));
    Launch_Again();
    Wait_For_Focus(Strip);
    EXPECT_TRUE(desktop.Run({u"xprop"_s, u"-root"_s, u"_NET_CURRENT_DESKTOP"_s}).endsWith(u'1'));
}

TEST_F(Screens, On_Two_Monitors_It_Starts_On_The_Primary_One_And_Everything_Goes_Along) {
    const struct {
        QRect primary, other;
    } rows[] = {{{512, 0, 512, 768}, {0, 0, 512, 768}},
                {{0, 0, 512, 768}, {512, 0, 512, 768}},
                {{0, 384, 1024, 384}, {0, 0, 1024, 384}}};
    const auto set = [&](const QString& name, const QRect& place, const QString& output) {
        desktop.Run({u"xrandr"_s, u"--delmonitor"_s, name});
        const QString size = u"%1/100x%2/100"_s.arg(place.width()).arg(place.height());
        desktop.Run({u"xrandr"_s, u"--setmonitor"_s,
                     (output == u"none"_s ? QString() : u"*"_s) + name,
                     size + u"+%1+%2"_s.arg(place.x()).arg(place.y()), output});
    };
    const auto isOn = [&](const QString& title, const QRect& monitor) {
        return Wait_Until([&] {
            const QString window = desktop.Visible_Windows(title).value(0);
            return !window.isEmpty() && monitor.contains(desktop.Geometry(window));
        });
    };
    for (const auto& row : rows) {
        set(u"Primary"_s, row.primary, u"screen"_s);
        set(u"Other"_s, row.other, u"none"_s);
        QFile::remove(Home() + "/HKEY_CURRENT_USER.reg"_L1);
        Program::SetUp();
        Tockly tockly(desktop, Home());
        tockly.Start();
        EXPECT_TRUE(isOn(Strip, row.primary));
        const QPoint grip = Place(Strip, MessageLine);
        Drag(grip, row.other.center());
        EXPECT_TRUE(isOn(Strip, row.other));
        Click(Strip, {"push button", "My Links"});
        EXPECT_TRUE(isOn(u"My Links"_s, row.other));
        // Its monitor goes.
        desktop.Run({u"xrandr"_s, u"--delmonitor"_s, u"Other"_s});
        EXPECT_TRUE(isOn(Strip, row.primary));
        EXPECT_EQ(tockly.End(), 0);
    }
}

TEST_F(Screens, Nobody_Sizes_It_And_A_Place_Off_The_Screen_Is_Not_Taken) {
    Lay_Out("\"Global_Config_MainForm_Left\"=dword:00007530\r\n");
    Tockly tockly(desktop, Home());
    Bring_Up(tockly);
    const QRect place(691, 0, 333, 20);
    EXPECT_TRUE(Wait_Until([&] { return desktop.Geometry(Strip_Window()) == place; }));
    desktop.Run({u"wmctrl"_s, u"-r"_s, Strip, u"-b"_s, u"add,maximized_vert,maximized_horz"_s});
    EXPECT_FALSE(Wait_Until([&] { return desktop.Geometry(Strip_Window()) != place; }, 1500));
}

TEST_F(Screens, Minimised_With_The_Mouse_It_Gives_The_Keyboard_Back_And_A_Click_Brings_It_Back) {
    Tockly tockly(desktop, Home());
    Bring_Up(tockly);
    Open(u"Notes"_s, "View notes");
    Click(Strip, CloseButton);
    EXPECT_TRUE(Wait_Until([&] { return Is_Collapsed(); }));
    Wait_For_Focus(u"Notes"_s);
    Click_Rest();
    EXPECT_TRUE(Wait_Until([&] { return desktop.Geometry(Strip_Window()).height() == 20; }));
}

} // namespace
