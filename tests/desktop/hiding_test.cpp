// The toolbar out of the way and back, on a real X desktop.
#include "desktop/driven.h"
#include "desktop/records.h"

#include <csignal>

namespace {

const QString User_Values = u"HKEY_CURRENT_USER.reg"_s;
constexpr QPoint Away(512, 500);
const QRect Full((1024 - 333) / 2, 0, 333, 20);

class Hiding : public Driven {
protected:
    void SetUp() override {
        Program::SetUp();
        ASSERT_TRUE(Write_File(Reminders(), Reminder_File({})));
        desktop.XDo(Move_To(Away));
    }
    bool Stands_At(const QRect& place) const {
        return Wait_Until([&] { return desktop.Geometry(Strip_Window()) == place; }, 8000);
    }
    void Start_Program(Tockly& tockly) {
        tockly.Start();
        ASSERT_TRUE(desktop.Wait_For_Window(Strip));
        closeButton = Place(Strip, CloseButton);
    }
    // Wherever the strip is by then.
    void Click_Close(const QString& key = {}) {
        Press_Close(key, closeButton);
        desktop.XDo(Move_To(Away));
    }
    void Expect_States() {
        const QString state = desktop.Property(Strip_Window(), u"_NET_WM_STATE"_s);
        EXPECT_TRUE(state.contains(u"_ABOVE"_s) && state.contains(u"_SKIP_TASKBAR"_s) &&
                    state.contains(u"_SKIP_PAGER"_s))
            << qPrintable(state);
    }

    QPoint closeButton;
};

TEST_F(Hiding, A_Click_Collapses_It_And_A_Click_On_The_Rest_Brings_It_Back) {
    Tockly tockly(desktop, Home());
    Start_Program(tockly);
    Click_Close();
    EXPECT_TRUE(Stands_At({Full.x(), 0, 333, 8}));
    Click_Rest();
    EXPECT_TRUE(Stands_At(Full));
    Expect_States();
}

TEST_F(Hiding, Hidden_In_The_Tray_A_Second_Launch_Brings_It_Back_And_The_End_Keeps_Its_Place) {
    {
        Tockly tockly(desktop, Home());
        Start_Program(tockly);
        for (int round = 0; round < 2; ++round) {
            ASSERT_TRUE(Hide_Completely());
            Launch_Again();
            ASSERT_TRUE(desktop.Wait_For_Window(Strip));
            EXPECT_TRUE(Stands_At(Full));
            Expect_States();
        }
        ASSERT_TRUE(Hide_Completely());
        tockly.Signal(SIGTERM);
        EXPECT_EQ(tockly.Wait_For_End(), 0);
    }
    Tockly again(desktop, Home());
    again.Start();
    ASSERT_TRUE(desktop.Wait_For_Window(Strip));
    EXPECT_TRUE(Stands_At(Full));
}

TEST_F(Hiding, It_Hides_By_Itself_When_The_Mouse_Has_Left_It) {
    ASSERT_TRUE(Write_File(Home() + u'/' + User_Values,
                           "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\Software\\Tockly]\r\n"
                           "\"Global_Autohide_Enabled\"=dword:ffffffff\r\n"
                           "\"Global_Autohide_WaitTime\"=dword:000007d0\r\n"
                           "\"Global_Autohide_SelectedHideMode\"=dword:ffffffff\r\n"
                           "\"First Time\"=dword:00000000\r\n"
                           "\"Global_CurID\"=dword:00000001\r\n"));
    Tockly tockly(desktop, Home());
    Start_Program(tockly);
    desktop.XDo(Move_To(Place(Strip, MessageLine)));
    EXPECT_FALSE(Wait_Until([&] { return desktop.Geometry(Strip_Window()).height() < 20; }, 4500))
        << "the mouse rests on it";
    desktop.XDo(Move_To(Away));
    EXPECT_TRUE(Stands_At({Full.x(), 0, 333, 8}));
}

TEST_F(Hiding, The_End_In_A_Collapse_Or_A_Fade_Keeps_The_Whole_Toolbar) {
    for (const QString& key : {u""_s, u"shift"_s}) {
        SCOPED_TRACE(qPrintable(key));
        Tockly tockly(desktop, Home());
        Start_Program(tockly);
        const QString before = desktop.Property(Strip_Window(), u"_NET_WM_WINDOW_OPACITY"_s);
        Click_Close(key);
        EXPECT_TRUE(Wait_Until([&] {
            return desktop.Geometry(Strip_Window()).height() < 20 ||
                   desktop.Property(Strip_Window(), u"_NET_WM_WINDOW_OPACITY"_s) != before;
        }));
        tockly.Signal(SIGTERM);
        EXPECT_EQ(tockly.Wait_For_End(), 0);
        EXPECT_EQ(Registry_Value(Home(), User_Values, u"Global_Config_MainForm_Width"_s),
                  u"dword:00001383"_s);
        EXPECT_EQ(Reminder_Count(Reminders()), 0);
    }
}

TEST_F(Hiding, A_Storm_Of_Clicks_Leaves_A_Toolbar_That_Answers) {
    Tockly tockly(desktop, Home());
    Start_Program(tockly);
    for (int i = 0; i < 12; ++i) {
        Click_Close(i % 3 == 0 ? u"shift"_s : QString());
        if (i % 4 == 3) {
            Launch_Again();
        }
    }
    EXPECT_TRUE(Wait_Until([&] {
        Launch_Again();
        if (Is_Collapsed()) {
            Click_Rest();
        }
        return desktop.Geometry(Strip_Window()) == Full;
    }));
    Click_Close(u"ctrl"_s);
    EXPECT_EQ(tockly.Wait_For_End(), 0) << "Ctrl and a click end it";
}

} // namespace
