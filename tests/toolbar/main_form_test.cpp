#include "controls/unload_queue.h"
#include "delivery/important_rwin.h"
#include "toolbar/main_form_fixture.h"

#include <QHelpEvent>
#include <QToolTip>

#include <memory>

namespace {

TEST_F(MainFormTest, It_Stands_Where_The_Settings_Say_On_Top_And_Out_Of_The_Task_Bar) {
    EXPECT_EQ(Place(), QRect(100, 50, 333, 20));
    EXPECT_EQ(form.Picture1->geometry(), QRect(196, 4, 112, 13));
    EXPECT_EQ(form.Line_Width(), 112);
    const QImage face = form.grab().toImage();
    EXPECT_EQ(face.pixelColor(5, 5).name() + face.pixelColor(200, 8).name(), u"#e0e0e0#ffffc0"_s);
    const auto& state = windows.windows.at(form.winId());
    EXPECT_TRUE(state.topmost);
    EXPECT_TRUE(state.leftTaskBar);
    EXPECT_EQ(state.shadow, Global_UseShadows);
}

TEST_F(MainFormTest, Use_Shadows_Reaches_Windows_And_Tool_Tips_Of_Every_Kind) {
    for (const bool wanted : {false, true}) {
        Global_UseShadows = wanted;
        for (const auto kind : {Qt::Window, Qt::Tool, Qt::ToolTip}) {
            QWidget window(nullptr, kind);
            window.show();
            EXPECT_EQ(windows.windows.at(window.winId()).shadow, wanted) << kind;
        }
    }
}

TEST_F(MainFormTest, Damaged_Settings_Give_A_Window_That_Can_Be_Drawn) {
    form.Load_Window({2147483647, -2147483647, 2147483647});
    EXPECT_LE(form.width(), 16000);
    form.Load_Window({0, 0, -5});
    EXPECT_EQ(form.width(), 1);
}

TEST_F(MainFormTest, It_Is_Dragged_By_The_Form_The_Line_And_The_Text_But_Not_By_A_Button) {
    const std::pair<const char*, QWidget*> handles[] = {
        {"form", &form}, {"line", form.Picture1}, {"text", form.Label1}};
    for (const auto& [name, handle] : handles) {
        SCOPED_TRACE(name);
        form.Move_To(100, 50);
        // The last pixels of the line's own width drag as well. The cursor has moved on meanwhile.
        const QPoint start =
            handle->mapToGlobal(QPoint(handle == &form ? 6 : handle->width() - 1, 9));
        Move_Cursor(7, 7);
        Press(handle, start);
        Drag(handle, start + QPoint(20, 15));
        EXPECT_EQ(Place(), QRect(120, 65, 333, 20));
        Drag(handle, {3000, 3000});
        EXPECT_EQ(Place(), QRect(947, 1004, 333, 20));
        Release(handle, {3000, 3000});
        Drag(handle, {300, 60});
        EXPECT_EQ(Place(), QRect(947, 1004, 333, 20));
        EXPECT_EQ(form.Saved_Bounds(), (TwipsRect{947 * 15, 1004 * 15, 4995, 300}));
    }
    Press(form.wbButton3, {1000, 1010}); // disabled, too
    Drag(form.wbButton3, {500, 500});
    Release(form.wbButton3, {500, 500});
    EXPECT_EQ(Place(), QRect(947, 1004, 333, 20));
}

TEST_F(MainFormTest, Its_Right_End_Sizes_And_Shows_So_Until_The_Cursor_Leaves) {
    Move_Cursor(430, 60);
    QTest::mouseMove(&form, {330, 9});
    EXPECT_EQ(form.cursor().shape(), Qt::SizeHorCursor);
    EXPECT_TRUE(timers.Is_Enabled(TimerName::ResizeForm_Timer));
    timers.Tick(TimerName::ResizeForm_Timer);
    EXPECT_EQ(form.cursor().shape(), Qt::SizeHorCursor);
    Move_Cursor(434, 60);
    timers.Tick(TimerName::ResizeForm_Timer);
    EXPECT_EQ(form.cursor().shape(), Qt::ArrowCursor);
    EXPECT_FALSE(timers.Is_Enabled(TimerName::ResizeForm_Timer));

    Press(&form, {430, 60});
    Drag(&form, {530, 60});
    EXPECT_EQ(Place(), QRect(100, 50, 433, 20));
    EXPECT_EQ(form.wbButton1->x(), 414);
    EXPECT_EQ(form.Line_Width(), 212);
    Drag(&form, {378, 60});
    EXPECT_EQ(form.width(), 281);
    Drag(&form, {110, 60});
    Release(&form, {110, 60});
    EXPECT_EQ(form.width(), 281);
    EXPECT_EQ(form.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(MainFormTest, The_Keyboard_Moves_And_Sizes_It) {
    QTest::keyClick(form.Picture1, Qt::Key_Right, Qt::ControlModifier);
    QTest::keyClick(form.wbButton1, Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(Place(), QRect(110, 40, 333, 20));
    for (int i = 0; i < 9; ++i) {
        QTest::keyClick(&form, Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
        QTest::keyClick(&form, Qt::Key_Up, Qt::ControlModifier);
    }
    EXPECT_EQ(Place(), QRect(110, 0, 283, 20));
}

TEST_F(MainFormTest, Painting_Puts_It_On_Top_But_Not_Again_And_Again) {
    auto& calls = windows.windows[form.winId()].topmostCalls;
    clock.Advance(5000);
    calls = 0;
    form.repaint();
    form.repaint();
    EXPECT_EQ(calls, 1);
    clock.Advance(1000);
    form.repaint();
    EXPECT_EQ(calls, 2);
    QTest::keyRelease(&form, Qt::Key_A);
    EXPECT_EQ(calls, 3);
    Global_TopForm = false;
    QTest::keyRelease(&form, Qt::Key_A);
    EXPECT_EQ(calls, 3);
}

TEST_F(MainFormTest, The_Presence_Of_The_Mouse_Is_Noted) {
    for (const auto command : {ToolbarCommand::Open_LinksMenu, ToolbarCommand::Toggle_Textbox})
        commands.Connect(command, [] {});
    for (QWidget* over : std::initializer_list<QWidget*>{
             &form, form.Picture1, form.Label1, form.wbButton1, form.wbButton2, form.wbButton4}) {
        clock.Advance(100);
        QTest::mouseMove(over, {5, 6});
        QTest::mouseMove(over, {6, 6});
        EXPECT_EQ(form.Last_MouseOver(), clock.Milliseconds());
    }
}

TEST_F(MainFormTest, Text_Moves_Over_The_Line_Without_Repainting_The_Strip) {
    const QString text = u"Time for the 10:30 tea.\r\n<img src='/etc/x.png'>"_s;
    const int width = form.Text_Width(text);
    EXPECT_GT(width, form.Text_Width(u"Time for the 10:30"_s));
    form.Put_Text(text, width, form.Line_Width());
    form.Move_Text(3);
    QCoreApplication::processEvents();
    EXPECT_EQ(form.Label1->geometry(), QRect(3, 0, width, 13));
    EXPECT_EQ(form.Label1->toolTip(), text);
    QHelpEvent pause(QEvent::ToolTip, {}, {});
    QApplication::sendEvent(form.Label1, &pause);
    EXPECT_TRUE(QToolTip::text().contains("&lt;img"_L1)) << "no markup, and no picture";
    struct PaintCounter : QObject {
        int count = 0;
        bool eventFilter(QObject*, QEvent* event) override {
            count += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
    } paints;
    form.installEventFilter(&paints);
    const QImage before = form.Picture1->grab().toImage();
    form.Move_Text(2);
    form.Move_To(100, 50);
    QCoreApplication::processEvents();
    EXPECT_EQ(paints.count, 0);
    EXPECT_NE(form.Picture1->grab().toImage(), before);
    form.Clear_Line();
    EXPECT_FALSE(form.Label1->isVisible());
    EXPECT_EQ(form.Label1->toolTip(), QString());

    // Of a long text what stands on the line is drawn, wherever that is.
    const QString longText = QString(65535, u'm');
    const int longWidth = form.Text_Width(longText);
    form.Put_Text(longText, longWidth, form.Line_Width());
    const auto is_empty = [this](int left) {
        form.Move_Text(left);
        QImage empty = form.Picture1->grab().toImage();
        const QImage line = empty;
        empty.fill(line.pixel(0, 0));
        return line == empty;
    };
    for (const int left : {0, -1000, -longWidth / 2, -longWidth + 10}) {
        EXPECT_FALSE(is_empty(left)) << left;
    }
    EXPECT_TRUE(is_empty(-longWidth));
}

TEST_F(MainFormTest, A_Press_On_Any_Button_Sends_The_Links_Menu_Away_As_One_On_The_Strip_Does) {
    const std::vector<QWidget*> places{form.wbButton1, form.wbButton2, form.wbButton3,
                                       form.wbButton4, form.wbButton5, form.wbButton6,
                                       form.Picture1};
    for (QWidget* place : places) {
        QPointer<QWidget> menu = new QWidget;
        menu->show();
        Global_PendingUnloads.emplace_back(menu);
        place->setEnabled(true);
        QTest::mousePress(place, Qt::LeftButton);
        EXPECT_FALSE(menu && menu->isVisible());
        QTest::mouseRelease(place, Qt::LeftButton, {}, {-9, -9});
    }
}

TEST_F(MainFormTest, A_Button_Waits_For_Somebody_To_Carry_It_Out) {
    EXPECT_FALSE(form.wbButton6->isEnabled());
    commands.Connect(ToolbarCommand::View_Notes, [this] { done << u"notes"_s; });
    EXPECT_TRUE(form.wbButton6->isEnabled());
    QTest::mouseClick(form.wbButton6, Qt::LeftButton);
    EXPECT_EQ(done, QStringList{u"notes"_s});
    commands.Connect(ToolbarCommand::View_Notes, {});
    EXPECT_FALSE(form.wbButton6->isEnabled());
}

TEST_F(MainFormTest, Closing_Ends_The_Program_Only_When_It_Is_Meant) {
    form.Guard_Hiding({});
    QTest::mouseClick(form.wbButton1, Qt::LeftButton);
    QTest::mouseClick(form.wbButton1, Qt::LeftButton, Qt::ShiftModifier | Qt::ControlModifier);
    QTest::mouseClick(form.wbButton1, Qt::MiddleButton, Qt::ControlModifier);
    QTest::keyClick(form.wbButton1, Qt::Key_Space);
    EXPECT_EQ(done, QStringList());
    QTest::mouseClick(form.wbButton1, Qt::LeftButton, Qt::ControlModifier);
    QTest::keyClick(form.wbButton1, Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(done.size(), 2);
    EXPECT_FALSE(form.close());
    EXPECT_EQ(done.size(), 3);
    EXPECT_TRUE(form.isVisible());
    Set_Program_Ending(true);
    EXPECT_TRUE(form.close());
    EXPECT_EQ(done.size(), 3);
}

TEST_F(MainFormTest, The_Close_Buttons_Menu_Offers_What_Can_Be_Done) {
    const QString entries = u"Minimize (Left click)|Hide (Shift + Left click)|-|"
                            "Unload Toolbar (Ctrl + Left Click)"_s;
    QString seen;
    While_MenuIsOpen([&](QMenu& menu) { seen = Entries(menu); });
    QTest::mouseClick(form.wbButton1, Qt::RightButton);
    EXPECT_EQ(seen, entries);
    EXPECT_EQ(Global_HideOptionAnswer, -1);
    EXPECT_EQ(done, QStringList());
    form.wbButton1->setFocus();
    While_MenuIsOpen([](QMenu& menu) { Pick(menu, u"Unload Toolbar (Ctrl + Left Click)"_s); });
    QTest::keyClick(form.wbButton1, Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(done, QStringList{u"unload"_s});
}

TEST_F(MainFormTest, A_Right_Click_On_The_Line_Opens_The_Messages_Menu_And_Holds_It_Still) {
    QTest::mouseClick(form.Label1, Qt::RightButton); // no message, no menu
    Put_Message_OnLine();
    QString seen;
    bool paused = false;
    While_MenuIsOpen([&](QMenu& menu) {
        seen = Entries(menu);
        paused = Global_MessagePaused;
    });
    QTest::mouseClick(form.Label1, Qt::RightButton, {}, {20, 5});
    EXPECT_EQ(seen, u"Ok, I got it|-|Remind me again in|-|Disable for today|-|Disable"_s);
    EXPECT_TRUE(paused);
    EXPECT_FALSE(Global_MessagePaused);
    for (const QString& entry : {u"Ok, I got it"_s, u"Disable for today"_s, u"Disable"_s}) {
        EXPECT_EQ(Answered(), entry == u"Disable"_s ? u"not today "_s : u""_s);
        Put_Message_OnLine();
        While_MenuIsOpen([&](QMenu& menu) { Pick(menu, entry); });
        QTest::mouseClick(form.Picture1, Qt::RightButton, {}, {20, 5});
        EXPECT_LT(Global_ToolbarMessages[2].Day, 0) << "it ends with the next tick";
    }
    EXPECT_EQ(Answered(), u"disabled not today "_s);
}

TEST_F(MainFormTest, The_Choices_Of_Minutes_Hang_Under_Remind_Me_Again) {
    Put_Message_OnLine();
    form.Picture1->setFocus();
    While_MenuIsOpen([](QMenu& menu) {
        QMenu* choices = menu.actions().at(2)->menu();
        ASSERT_NE(choices, nullptr);
        EXPECT_EQ(Entries(*choices).toStdString(), "5 minutes|1 hour and 30 minutes");
        menu.setActiveAction(menu.actions().at(2));
        QTest::keyClick(&menu, Qt::Key_Right);
        Pick(*choices, u"1 hour and 30 minutes"_s);
    });
    QTest::keyClick(form.Picture1, Qt::Key_Menu);
    EXPECT_EQ(Global_RA_Reminders[0].Minute, Get_CurrentMinute() + 90);
    Global_RA_Options.clear();
    While_MenuIsOpen([](QMenu& menu) { EXPECT_FALSE(menu.actions().at(2)->isEnabled()); });
    QTest::keyClick(form.Picture1, Qt::Key_Menu);
}

TEST_F(MainFormTest, A_Reminders_Window_Has_The_Menu_Without_What_Is_The_Lines_Alone) {
    const ReminderRef reminder = ReminderRef::Of_Slot(0);
    Show_NextToToolbar(reminder);
    QPointer<frmImportantRWin> caller = Global_NearWindows[0].WorkForm;
    OptionsMenu& container = form.Container();
    QString seen;
    While_MenuIsOpen([&](QMenu& menu) { seen = Entries(menu); });
    container.Open_For_Window(*caller, {20, 30});
    EXPECT_EQ(seen.toStdString(), "Remind me again in|-|Disable for today|-|Disable");
    EXPECT_FALSE(Global_MessagePaused);

    const std::function<void()> ends[] = {
        [&] { caller->UpdateWindow(ReminderRef::Of_Slot(1)); }, // went on to its next reminder
        [&] { Set_Program_Ending(true); },
        [&] { delete caller; },
    };
    Global_Reminders[1] = {true, false, std::make_unique<ReminderClass>()};
    for (const auto& end : ends) {
        caller->UpdateWindow(reminder);
        While_MenuIsOpen([&end](QMenu& menu) {
            end();
            Pick(menu, u"Disable"_s);
        });
        container.Open_For_Window(*caller, {20, 30});
        Set_Program_Ending(false);
    }
    EXPECT_EQ(Answered(), u""_s);
    Show_NextToToolbar(reminder);
    While_MenuIsOpen([](QMenu& menu) { Pick(menu, u"Disable"_s); });
    container.Open_For_Window(*Global_NearWindows[0].WorkForm, {20, 30});
    EXPECT_EQ(Answered(), u"disabled "_s);
}

TEST_F(MainFormTest, A_Menu_Does_Nothing_For_A_Message_Or_A_Program_That_Has_Ended_Meanwhile) {
    form.Picture1->setFocus();
    const std::pair<const char*, std::function<void()>> ends[] = {
        {"message gone", [] { Global_CurrentMessage = -1; }},
        {"slot taken by another", [] { Global_ToolbarMessages[2].Reminder = {}; }},
        {"tables made anew", [] { Init_ToolbarMessages(); }},
        {"program ending", [] { Set_Program_Ending(true); }},
    };
    for (const auto& [name, end] : ends) {
        Put_Message_OnLine();
        While_MenuIsOpen([&end = end](QMenu& menu) {
            end();
            Pick(menu, u"Disable"_s);
        });
        QTest::keyClick(form.Picture1, Qt::Key_Menu);
        EXPECT_EQ(Answered(), QString()) << name;
        EXPECT_FALSE(Global_MessagePaused) << name;
    }
    EXPECT_EQ(menus, 4);
}

} // namespace
