#include "controls/program_end.h"
#include "controls/transparency.h"
#include "delivery/message_menu.h"
#include "delivery/options_menu.h"
#include "window_fixture.h"

#include <QMenu>
#include <QScrollBar>
#include <QTextDocument>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

struct FakeMenu : OptionsMenu {
    std::function<void(frmImportantRWin&)> pick;
    platform::Point place;

    FakeMenu() { Global_OptionsMenu = this; }
    ~FakeMenu() override { Global_OptionsMenu = nullptr; }
    void Open_For_Window(frmImportantRWin& caller, platform::Point where) override {
        place = where;
        if (pick)
            pick(caller);
    }
};

class ReminderWindow : public WindowTest {
protected:
    ReminderWindow() { Init_RA_Reminders(); }
    frmImportantRWin* Show(std::int32_t index) {
        Show_NextToToolbar(Ref(index));
        return Global_NearWindows[0].WorkForm;
    }
    void Set_Actions(std::int32_t index, int count) {
        for (int action = 0; action < count; ++action)
            Reminder(index).SetFuncion(
                action, {true, FunctionType::OpenPage, static_cast<std::uint8_t>(action),
                         u"http://page%1"_s.arg(action), u"Page %1"_s.arg(action)});
    }
    // One window on a screen with room for no other; the first is on view, the others wait.
    frmImportantRWin* Show_Queue(int count, ReminderType type) {
        desktop.screen = {300, 600};
        toolbar.bounds = {0, 0, 20, 20};
        for (int number = 0; number < count; ++number)
            Deliver_Reminder(Ref(Add_Typed(QString::number(number), type)));
        return type == ReminderType::Centered ? Centered_Window() : Near_Window(0);
    }

    FakeMenu menu;
};

TEST_F(ReminderWindow, A_Long_Caption_Is_Shortened_And_Stands_Whole_In_The_Tip) {
    const QString longCaption = u"Read <b>what</b> the whole neighbourhood has written"_s;
    const std::int32_t index = Add_Typed(u"text"_s, ReminderType::NextToToolbar);
    Reminder(index).SetFuncion(1, {true, FunctionType::OpenFile, 0, u"/file"_s, longCaption});
    Reminder(index).SetFuncion(2, {false, FunctionType::OpenFile, 0, u"/off"_s, u"off"_s});
    Reminder(index).SetFuncion(3, {true, static_cast<FunctionType>(9), 0, u"/odd"_s, QString()});
    const std::vector<wbButton*> buttons = Buttons_Of(Show(index));
    ASSERT_EQ(buttons.size(), 4U);
    EXPECT_EQ(buttons[0]->width(), 160);
    EXPECT_TRUE(buttons[0]->Caption().endsWith(u'\u2026'));
    QTextDocument tip;
    tip.setHtml(buttons[0]->toolTip());
    EXPECT_EQ(tip.toPlainText(), longCaption);
    EXPECT_EQ(buttons[0]->accessibleName(), longCaption);
    EXPECT_EQ(buttons[1]->accessibleName(), u"Open /odd"_s);
    EXPECT_EQ(buttons[1]->width(), 160);
}

TEST_F(ReminderWindow, Only_A_Text_Higher_Than_Its_Box_Has_A_Scroll_Bar) {
    const std::tuple<const char*, QString, bool> cases[] = {
        {"three lines of 13 pixels", u"A\r\nB\r\nC"_s, false},
        {"four lines", u"A\r\nB\r\nC\r\nD"_s, true},
        {"four lines by returns alone", u"A\rB\rC\rD"_s, true},
        {"four lines by separators", u"A\u2029B\u2028C\u2029D"_s, true},
        {"nothing", QString(), false},
        {"one word of many lines", QString(300, u'W'), true},
        {"short after long", u"short"_s, false},
        {"a megabyte", QString(1000000, u'x'), true}};
    const std::int32_t index = Add_Typed({}, ReminderType::NextToToolbar);
    frmImportantRWin* window = Show(index);
    for (const auto& [name, text, scrolls] : cases) {
        Reminder(index).rs_Text = text;
        window->UpdateWindow(Ref(index)); // one window shows them one after the other
        const auto* box = window->findChild<QPlainTextEdit*>();
        EXPECT_EQ(box->verticalScrollBar()->isVisible(), scrolls) << name;
        EXPECT_EQ(box->toPlainText().size(), text.size() - text.count("\r\n"_L1)) << name;
    }
}

TEST_F(ReminderWindow, It_Comes_Above_The_Others_Without_The_Focus_And_Can_Be_Left_By_Keyboard) {
    frmImportantRWin* window = Show(Add_Typed(u"Tea is ready"_s, ReminderType::NextToToolbar));
    const RecordingWindows::State& state = windows.windows[window->winId()];
    EXPECT_TRUE(state.topmost && state.leftTaskBar && window->isVisible());
    EXPECT_EQ(state.activations, 0);
    EXPECT_TRUE(window->testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_EQ(window->accessibleDescription(), u"Tea is ready"_s);
    EXPECT_EQ(window->focusWidget(), Last_Button(window));
    QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(window->focusWidget(), window->findChild<QPlainTextEdit*>());
    QTest::keyClick(window->focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(window->isHidden() && window->Is_Closed());
    EXPECT_FALSE(Global_NearWindows[0].Used);
    EXPECT_EQ(Global_PendingUnloads.size(), 1U);
}

TEST_F(ReminderWindow, Actions_Open_Their_Targets_And_A_Failure_Names_Them) {
    using platform::ShowState;
    const std::int32_t index = Add_Typed(u"text"_s, ReminderType::NextToToolbar);
    Set_Actions(index, 3);
    Reminder(index).SetFuncion(3, {true, FunctionType::OpenFile, 0, QString(), u"nothing"_s});
    frmImportantRWin* window = Show(index);
    for (wbButton* button : Buttons_Of(window))
        if (button->Caption() != u" X"_s)
            Click(button);
    EXPECT_THAT(shell.calls,
                testing::ElementsAre(
                    RecordingShell::Call{u"http://page0"_s, {}, ShowState::Normal, true},
                    RecordingShell::Call{u"http://page1"_s, {}, ShowState::Minimized, true},
                    RecordingShell::Call{u"http://page2"_s, {}, ShowState::Maximized, true}));
    shell.succeeds = false;
    dialogs.Expect_Message(u"Can't open http://page1"_s);
    QTest::keyClick(Buttons_Of(window)[1], Qt::Key_Return);
    EXPECT_TRUE(window->isVisible());
}

TEST_F(ReminderWindow, Those_That_Wait_Come_In_Turn_And_Deleted_Ones_Are_Passed_Over) {
    struct Case {
        const char* name;
        std::vector<std::int32_t> deleted; // slots, last first
        std::vector<std::string> shown;    // text and caption after each click; "" = closed
    };
    const Case cases[] = {
        {"all there", {}, {"1 >", "2 >", "3 X", ""}},
        {"one in the middle", {2}, {"1 >", "3 X", ""}},
        {"the first two that wait", {2, 1}, {"3 X", ""}},
        {"the last: the old text stays once more", {3}, {"1 >", "2 >", "2 X", ""}},
        {"all that wait", {3, 2, 1}, {"0 X", ""}},
        {"the one on view", {0}, {"1 >", "2 >", "3 X", ""}},
    };
    for (const ReminderType type : {ReminderType::NextToToolbar, ReminderType::Centered}) {
        for (const Case& row : cases) {
            SCOPED_TRACE(row.name);
            Unload_ReminderWindows();
            Start_Afresh(9, 0, 0);
            frmImportantRWin* window = Show_Queue(4, type);
            ASSERT_EQ(window->PendingCount(), 3);
            EXPECT_EQ(Last_Button(window)->Caption(), u" >"_s);
            for (const std::int32_t slot : row.deleted)
                Delete_ReminderSlot(slot);
            for (const std::string& shown : row.shown) {
                Click(Last_Button(window));
                EXPECT_EQ(window->Is_Closed(), shown.empty());
                if (!shown.empty()) {
                    EXPECT_EQ((Text_Of(window) + Last_Button(window)->Caption()).toStdString(),
                              shown);
                }
            }
            for (std::size_t entry = 0; entry < 21; ++entry)
                EXPECT_FALSE(Global_NearWindows[entry].Used || Global_CenterWindows[entry].Used);
        }
    }
}

TEST_F(ReminderWindow, A_Window_At_The_Bottom_Grows_Upward_With_The_Next_Reminder) {
    desktop.screen = {300, 600};
    toolbar.bounds = {0, 580, 20, 600};
    for (int number = 0; number < 2; ++number) {
        const std::int32_t index = Add_Typed(u"text"_s, ReminderType::NextToToolbar);
        Set_Actions(index, number * 4);
        Deliver_Reminder(Ref(index));
    }
    EXPECT_EQ(Near_Window(0)->geometry(), QRect(20, 522, 253, 78));
    Near_Window(0)->wbButton3_Click();
    EXPECT_EQ(Near_Window(1)->geometry(), QRect(20, 459, 253, 141));
    EXPECT_EQ(Global_NearWindows[1].Waiting, 0);
    EXPECT_FALSE(Global_NearWindows[1].IsQueued);
}

TEST_F(ReminderWindow,
       A_Closed_One_Makes_Room_At_Once_And_A_Reminder_That_Fires_Again_Comes_Again) {
    const std::int32_t index = Add_Typed(u"again"_s, ReminderType::Centered);
    Deliver_Reminder(Ref(index));
    Deliver_Reminder(Ref(index));
    frmImportantRWin* first = Centered_Window();
    EXPECT_EQ(first->PendingCount(), 0);
    EXPECT_EQ(first->pos(), QPoint(385, 345)); // (1024 - 253) / 2 and (768 - 78) / 2
    first->close();
    Deliver_Reminder(Ref(index)); // while the first is still there, about to be released
    ASSERT_NE(Centered_Window(), nullptr);
    EXPECT_NE(Centered_Window(), first);
    first->wbButton3_Click();
    first->wbButton2_Click();
    EXPECT_TRUE(Global_CenterWindows[0].Used);
}

TEST_F(ReminderWindow, It_Leaves_An_Open_Menu_Open) {
    for (const bool fades : {false, true}) {
        Global_IsWinXP = Global_UseTransparency = fades;
        QMenu popup;
        popup.addAction(u"Entry"_s);
        popup.popup({});
        ASSERT_TRUE(popup.isVisible());
        Deliver_Reminder(Ref(Add_Typed(u"1"_s, ReminderType::NextToToolbar)));
        EXPECT_TRUE(Near_Window(fades ? 1 : 0)->isVisible());
        EXPECT_TRUE(popup.isVisible());
    }
    Release_Transparency();
}

TEST_F(ReminderWindow, It_May_Close_And_Vanish_While_It_Fades_In) {
    Global_IsWinXP = Global_UseTransparency = true;
    timers.Start_FirstTimers();
    for (int number = 0; number < 2; ++number)
        Deliver_Reminder(Ref(Add_Typed(QString::number(number), ReminderType::NextToToolbar)));
    Deliver_Reminder(Ref(Add_Typed(u"2"_s, ReminderType::Centered)));
    EXPECT_TRUE(timers.Is_Enabled(TimerName::TransHandlerTimer));
    EXPECT_TRUE(Near_Window(0)->isVisible() && Centered_Window()->isVisible());
    const platform::WindowId closing = Near_Window(0)->winId();
    const platform::WindowId staying = Near_Window(1)->winId();
    EXPECT_EQ(windows.windows[staying].alpha, 1);
    Global_Transparency().TransparencyHandler();
    EXPECT_TRUE(Global_Transparency().IsRunning());
    QTest::keyClick(Near_Window(0), Qt::Key_Escape);
    Unload_PendingForms();
    delete Centered_Window();
    Deliver_Reminder(Ref(0)); // fires again: a new window in the place of the old one
    clock.Advance(700);
    EXPECT_EQ(Global_Transparency().Last_Index(), -1);
    EXPECT_FALSE(windows.windows[closing].alpha.has_value());
    EXPECT_FALSE(windows.windows[staying].alpha.has_value());
    EXPECT_TRUE(Near_Window(0)->isVisible() && Near_Window(1)->isVisible());
    EXPECT_EQ(Near_Window(0)->x(), 678);
    Release_Transparency();
}

TEST_F(ReminderWindow, At_The_End_Of_The_Program_Its_Buttons_Do_Nothing_More) {
    frmImportantRWin* window = Show_Queue(2, ReminderType::NextToToolbar);
    Set_Program_Ending(true);
    for (wbButton* button : Buttons_Of(window))
        Click(button);
    window->close();
    Set_Program_Ending(false);
    EXPECT_EQ(window->PendingCount(), 1);
    EXPECT_TRUE(window->isVisible());
    Unload_ReminderWindows();
    EXPECT_FALSE(Global_NearWindows[0].Used || Global_NearWindows[1].Used);
}

TEST_F(ReminderWindow, The_Menu_Sees_The_Reminder_And_May_Take_The_Window_Away) {
    const std::int32_t index = Add_Typed(u"menu"_s, ReminderType::NextToToolbar);
    frmImportantRWin* window = Show(index);
    wbButton* options = Buttons_Of(window)[0];
    Click(options);
    EXPECT_EQ(menu.place, (platform::Point{678 + 168, 56 + 17}));
    menu.pick = [](frmImportantRWin& caller) { delete &caller; };
    Click(options);
    EXPECT_FALSE(Global_NearWindows[0].Used);
    window = Show(index);
    Delete_ReminderSlot(index);
    dialogs.Expect_Message(u"The reminder shown in this window as deleted."_s);
    Click(Buttons_Of(window)[0]);
}

TEST_F(ReminderWindow, An_Answer_Goes_On_To_The_Next_Unless_The_Reminder_Is_Gone) {
    frmImportantRWin* window = Show_Queue(3, ReminderType::NextToToolbar);
    Reminder(0).rs_Enabled = true;
    Answer_Window(*window, ReminderAnswer::Disable);
    EXPECT_FALSE(Reminder(0).rs_Enabled);
    Answer_Window(*window, ReminderAnswer::RemindAgain, 1);
    EXPECT_EQ(Global_RA_Reminders[0], (RA_Entry{9558, 550, 1, 7})); // 10 minutes from 09:00
    EXPECT_EQ(Text_Of(window), u"2"_s);
    Delete_ReminderSlot(2);
    dialogs.Expect_Message(u"Can't find selected reminder"_s);
    Answer_Window(*window, ReminderAnswer::DisableForToday);
    EXPECT_TRUE(window->isVisible());
}

} // namespace
