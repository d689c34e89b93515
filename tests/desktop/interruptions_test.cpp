// Reminders that come due while the user is in the middle of something else.
#include "desktop/driven.h"
#include "desktop/records.h"

namespace {

const QString Note = u"Reminder"_s;

// Places inside a reminder window.
constexpr QPoint TextStart(10, 10), Options(197, 64), CloseMark(239, 64);

class Interruptions : public Driven {
protected:
    void SetUp() override {
#ifdef __SANITIZE_ADDRESS__
        GTEST_SKIP() << "the sanitizers and a clock set for one program do not go together";
#endif
        Program::SetUp();
        // The first comes at the start, the others at 10:01.
        ASSERT_TRUE(
            Write_File(Reminders(),
                       Reminder_File({{.id = 0, .type = 1, .text = "First"},
                                      {.id = 1, .type = 1, .text = "Second", .startMinute = 601},
                                      {.id = 2, .type = 2, .text = "Third", .startMinute = 601}})));
        tockly.Set_Clock(u"10:00:48"_s);
        tockly.Start();
        ASSERT_TRUE(Wait_Until([&] { return Count(Note) == 1; }));
    }
    // Whatever is still open, the program lives and ends in order.
    void TearDown() override {
        if (IsSkipped()) {
            return;
        }
        ASSERT_TRUE(tockly.Is_Running());
        EXPECT_EQ(tockly.End(), 0);
    }

    QPoint In(const QString& window, QPoint place) const {
        return desktop.Geometry(window).topLeft() + place;
    }
    QString First() const {
        return desktop.Visible_Windows(Note).value(0);
    }
    bool Is_Opaque(const QString& window) const {
        return desktop.Property(window, u"_NET_WM_WINDOW_OPACITY"_s).contains(u"not found"_s);
    }
    // Waits for the reminders of 10:01.
    void Expect_The_Others_On_View() const {
        ASSERT_EQ(Count(Note), 1) << "too early";
        ASSERT_TRUE(Wait_Until([&] { return Count(Note) == 3; }, 30000));
        EXPECT_TRUE(Wait_Until(
            [&] {
                const QStringList windows = desktop.Visible_Windows(Note);
                return std::all_of(windows.begin(), windows.end(),
                                   [this](const QString& window) { return Is_Opaque(window); });
            },
            2000));
    }

    Tockly tockly{desktop, Home()};
};

TEST_F(Interruptions, A_Menu_Opened_In_A_Fade_Stops_No_Fade_And_Stays_Open) {
    const int before = Windows_OfProgram();
    Click(In(First(), Options));
    ASSERT_TRUE(Wait_Until([&] { return Windows_OfProgram() > before; }));
    EXPECT_TRUE(Wait_Until([&] { return Is_Opaque(First()); }, 2000));
    const int withMenu = Windows_OfProgram();
    Expect_The_Others_On_View();
    EXPECT_EQ(Windows_OfProgram(), withMenu + 2) << "the menu is still there";
}

TEST_F(Interruptions, Under_An_Input_Box_Reminders_Come_And_Can_Be_Closed) {
    Open(u"Notes"_s, "View notes");
    EXPECT_TRUE(Wait_Until([&] {
        desktop.XDo({u"key"_s, u"F2"_s});
        return Count(u"Rename Category"_s) == 1;
    }));
    Expect_The_Others_On_View();
    const QString closing = First();
    Click(In(closing, CloseMark));
    EXPECT_TRUE(Wait_Until([&] { return !desktop.Visible_Windows(Note).contains(closing); }));
    EXPECT_EQ(Count(u"Rename Category"_s), 1);
}

TEST_F(Interruptions, Dragged_Text_Holds_No_Reminder_And_Its_Window_May_Close_Under_It) {
    const QString dragged = First();
    const auto step = [&](QPoint place) { return Move_To(In(dragged, place)); };
    // A double click selects the word; then it is pulled out of the window.
    desktop.XDo(step(TextStart) + QStringList{u"click"_s, u"--repeat"_s, u"2"_s, u"1"_s});
    desktop.XDo({u"sleep"_s, u"0.6"_s});
    desktop.XDo(step(TextStart) + QStringList{u"mousedown"_s, u"1"_s} +
                step(TextStart + QPoint(20, 5)) + step(TextStart + QPoint(60, 200)) +
                step(TextStart + QPoint(62, 260)));
    Expect_The_Others_On_View();
    desktop.Run({u"wmctrl"_s, u"-i"_s, u"-c"_s, dragged});
    EXPECT_TRUE(Wait_Until([&] { return !desktop.Visible_Windows(Note).contains(dragged); }));
    desktop.XDo({u"mouseup"_s, u"1"_s});
    EXPECT_EQ(Count(Note), 2);
    EXPECT_TRUE(tockly.Is_Running());
}

} // namespace
