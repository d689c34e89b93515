#include "controls/unload_queue.h"
#include "delivery/important_rwin.h"
#include "support/spoken_name.h"
#include "toolbar/main_form_fixture.h"

#include <QHelpEvent>
#include <QToolTip>

#include <memory>

namespace {

TEST_F(MainFormTest, It_stands_where_the_settings_say_on_top_and_out_of_the_task_bar) {
    EXPECT_EQ(Place(), QRect(100, 50, 333, 20));
    EXPECT_EQ(form.windowTitle(), u"Tockly Toolbar"_s);
    EXPECT_EQ(form.Picture1->geometry(), QRect(196, 4, 112, 13));
    EXPECT_EQ(form.Line_Width(), 112);
    const ToolbarRect bounds = form.Bounds();
    EXPECT_EQ((QList{bounds.Left, bounds.Top, bounds.Right, bounds.Bottom}),
              (QList{100, 50, 433, 70}));
    const auto& state = windows.windows.at(form.winId());
    EXPECT_TRUE(state.topmost);
    EXPECT_TRUE(state.leftTaskBar);
    EXPECT_EQ(state.shadow, Global_UseShadows);
}

TEST_F(MainFormTest, Use_shadows_reaches_windows_and_tool_tips_of_every_kind) {
    for (const bool wanted : {false, true}) {
        Global_UseShadows = wanted;
        for (const auto kind : {Qt::Window, Qt::Tool, Qt::ToolTip}) {
            QWidget window(nullptr, kind);
            window.show();
            EXPECT_EQ(windows.windows.at(window.winId()).shadow, wanted) << kind;
        }
    }
}

TEST_F(MainFormTest, Damaged_settings_give_a_window_that_can_be_drawn) {
    form.Load_Window({2147483647, -2147483647, 2147483647});
    EXPECT_LE(form.width(), 16000);
    form.Load_Window({0, 0, -5});
    EXPECT_EQ(form.width(), 1);
}

TEST_F(MainFormTest, Its_colours_stand_in_place) {
    const QImage face = form.grab().toImage();
    const auto at = [&face](int x, int y) { return face.pixelColor(x, y).name(); };
    EXPECT_EQ(at(0, 0), u"#808080"_s);
    EXPECT_EQ(at(332, 19), u"#808080"_s);
    EXPECT_EQ(at(5, 5), u"#e0e0e0"_s);
    EXPECT_EQ(at(1, 1), u"#ffffff"_s);
    EXPECT_EQ(at(2, 3), u"#808080"_s);
    EXPECT_EQ(at(3, 17), u"#808080"_s);
    EXPECT_EQ(at(195, 3), u"#808000"_s);
    EXPECT_EQ(at(200, 8), u"#ffffc0"_s);
    EXPECT_EQ(at(307, 16), u"#ffffc0"_s);
    EXPECT_EQ(at(309, 10), u"#404000"_s);
    EXPECT_EQ(at(250, 18), u"#404000"_s);
}

TEST_F(MainFormTest, It_is_dragged_by_the_form_the_line_and_the_text_but_not_by_a_button) {
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

TEST_F(MainFormTest, Its_right_end_sizes_and_shows_so_until_the_cursor_leaves) {
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

TEST_F(MainFormTest, The_keyboard_moves_and_sizes_it) {
    QTest::keyClick(form.Picture1, Qt::Key_Right, Qt::ControlModifier);
    QTest::keyClick(form.wbButton1, Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(Place(), QRect(110, 40, 333, 20));
    for (int i = 0; i < 9; ++i) {
        QTest::keyClick(&form, Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
        QTest::keyClick(&form, Qt::Key_Up, Qt::ControlModifier);
    }
    EXPECT_EQ(Place(), QRect(110, 0, 283, 20));
}

TEST_F(MainFormTest, Painting_puts_it_on_top_but_not_again_and_again) {
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

TEST_F(MainFormTest, The_presence_of_the_mouse_is_noted) {
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

TEST_F(MainFormTest, Text_moves_over_the_line_without_repainting_the_strip) {
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

TEST_F(MainFormTest, A_press_on_any_button_sends_the_links_menu_away_as_one_on_the_strip_does) {
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

TEST_F(MainFormTest, A_button_waits_for_somebody_to_carry_it_out) {
    EXPECT_FALSE(form.wbButton6->isEnabled());
    commands.Connect(ToolbarCommand::View_Notes, [this] { done << u"notes"_s; });
    EXPECT_TRUE(form.wbButton6->isEnabled());
    QTest::mouseClick(form.wbButton6, Qt::LeftButton);
    EXPECT_EQ(done, QStringList{u"notes"_s});
    commands.Connect(ToolbarCommand::View_Notes, {});
    EXPECT_FALSE(form.wbButton6->isEnabled());
    for (wbButton* button : {form.wbButton1, form.wbButton2, form.wbButton3, form.wbButton4,
                             form.wbButton5, form.wbButton6}) {
        EXPECT_FALSE(Spoken_Name(button).isEmpty());
    }
}

TEST_F(MainFormTest, Closing_ends_the_program_only_when_it_is_meant) {
    form.Guard_Hiding({});
    QTest::mouseClick(form.wbButton1, Qt::LeftButton);
    QTest::mouseClick(form.wbButton1, Qt::LeftButton, Qt::ShiftModifier | Qt::ControlModifier);
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

TEST_F(MainFormTest, The_close_button_s_menu_offers_what_can_be_done) {
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

TEST_F(MainFormTest, A_right_click_on_the_line_opens_the_message_s_menu_and_holds_it_still) {
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

TEST_F(MainFormTest, The_choices_of_minutes_hang_under_remind_me_again) {
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

TEST_F(MainFormTest, A_reminder_s_window_has_the_menu_without_what_is_the_line_s_alone) {
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

TEST_F(MainFormTest, A_menu_does_nothing_for_a_message_or_a_program_that_has_ended_meanwhile) {
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

TEST_F(MainFormTest, It_comes_back_where_it_was_and_a_second_launch_focuses_it) {
    form.Move_To(200, 80);
    form.hide();
    form.setEnabled(false);
    windows.windows[form.winId()].leftTaskBar = false;
    EXPECT_FALSE(form.Toolbar_Visible());
    form.Activate();
    EXPECT_TRUE(form.Toolbar_Visible());
    EXPECT_TRUE(form.isEnabled());
    EXPECT_EQ(Place(), QRect(200, 80, 333, 20));
    EXPECT_TRUE(windows.windows[form.winId()].leftTaskBar);
    EXPECT_EQ(windows.windows[form.winId()].activations, 1);
    EXPECT_NE(form.focusWidget(), nullptr);
}

} // namespace
