// The strip on a screen of its own, with everything around it replaced.
#pragma once

#include "controls/program_end.h"
#include "controls/timers.h"
#include "controls/transparency.h"
#include "core/remind_again.h"
#include "core/reminder_ref.h"
#include "delivery/deliver.h"
#include "delivery/important_rwin.h"
#include "delivery/message_queue.h"
#include "delivery/near_windows.h"
#include "settings/global_settings.h"
#include "support/fake_clock.h"
#include "support/fake_desktop.h"
#include "support/fake_tray.h"
#include "support/recording_windows.h"
#include "support/scripted_dialogs.h"
#include "toolbar/main_form.h"
#include "toolbar/message_strip.h"

#include <QMenu>
#include <QMouseEvent>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// The strip 333 pixels wide at (100, 50) of a screen of 1280 by 1024.
class MainFormTest : public testing::Test {
protected:
    MainFormTest() {
        Global_Timers = &timers;
        Global_TopForm = true;
        Global_IsWinXP = true;
        Global_UseTransparency = false;
        Global_Autohide_Enabled = true;
        Global_Autohide_SelectedHideMode = -1;
        Global_Autohide_WaitTime = 5000;
        Global_MessageLine = &form;
        Global_Toolbar = &form;
        Init_TimeRoutines();
        Init_Reminders();
        Init_RA_Reminders();
        Init_MessageWinRoutines();
        Global_RA_Options = {5, 90};
        Global_Reminders[0] = {true, false, std::make_unique<ReminderClass>()};
        Global_Reminders[0].Reminder->rs_Enabled = true;
        commands.Connect(ToolbarCommand::Unload, [this] { done << u"unload"_s; });
        form.Load_Window({100 * 15, 50 * 15, 333 * 15});
        form.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&form));
    }
    ~MainFormTest() override {
        Unload_ReminderWindows();
        Global_Toolbar = nullptr;
        Set_Program_Ending(false);
        Release_Transparency();
    }

    // A mouse event at a place of the screen.
    static void Mouse(QWidget* over, QEvent::Type type, QPoint place) {
        const bool isRelease = type == QEvent::MouseButtonRelease;
        const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, over->mapFromGlobal(place), place, button,
                          isRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(over, &event);
    }
    static void Press(QWidget* over, QPoint place) { Mouse(over, QEvent::MouseButtonPress, place); }
    static void Drag(QWidget* over, QPoint place) { Mouse(over, QEvent::MouseMove, place); }
    static void Release(QWidget* over, QPoint place) {
        Mouse(over, QEvent::MouseButtonRelease, place);
    }
    void Move_Cursor(int x, int y) { desktop.cursor = platform::Point{x, y}; }
    QRect Place() const { return form.geometry(); }
    // Of the reminder in the first slot.
    void Put_Message_OnLine() {
        Global_ToolbarMessages[2] = {};
        Global_ToolbarMessages[2].Active = true;
        Global_ToolbarMessages[2].Reminder = ReminderRef::Of_Slot(0);
        Global_CurrentMessage = 2;
    }
    // What became of the reminder.
    static QString Answered() {
        const ReminderClass& reminder = Global_Reminders[0].Reminder.Peek();
        return (reminder.rs_Enabled ? u""_s : u"disabled "_s) +
               (reminder.rs_DisabledForToday == 0 ? u""_s : u"not today "_s) +
               (Global_RA_Last < 0 ? u""_s : u"again"_s);
    }
    // Runs what a user does while the next menu is open, then closes it.
    void While_MenuIsOpen(std::function<void(QMenu&)> work) {
        QTimer::singleShot(0, &form, [this, work = std::move(work)] {
            ++menus;
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            work(*menu);
            if (menu->isVisible()) {
                menu->close();
            }
        });
    }
    static void Pick(QMenu& menu, const QString& caption) {
        for (QAction* action : menu.actions()) {
            if (action->text() == caption) {
                menu.setActiveAction(action);
                QTest::keyClick(&menu, Qt::Key_Return);
                return;
            }
        }
        ADD_FAILURE() << "no entry " << caption.toStdString();
    }
    // Entries in order, "~" before those that cannot be picked.
    static QString Entries(const QMenu& menu) {
        QStringList lines;
        for (const QAction* action : menu.actions()) {
            lines << (action->isSeparator()
                          ? u"-"_s
                          : (action->isEnabled() ? u""_s : u"~"_s) + action->text());
        }
        return lines.join(u'|');
    }

    FakeClock clock;
    FakeDesktop desktop;
    RecordingWindows windows;
    FakeTray tray;
    ScriptedDialogs dialogs;
    Timers timers;
    QStringList done;
    int menus = 0; // opened so far
    ToolbarCommands commands;
    MainForm form{commands};
};
