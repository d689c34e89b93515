// What the tests of the reminder windows stand on: a screen, a shell and a window system that write
// down what is asked, and a toolbar that stands where a test puts it.
#pragma once

#include "controls/unload_queue.h"
#include "delivery/centered_windows.h"
#include "delivery/important_rwin.h"
#include "delivery/near_windows.h"
#include "delivery_fixture.h"
#include "settings/global_settings.h"
#include "support/fake_desktop.h"
#include "support/recording_media.h"
#include "support/recording_shell.h"
#include "support/recording_windows.h"

#include <QCoreApplication>
#include <QPlainTextEdit>
#include <QtTest/QTest>

class WindowTest : public DeliveryTest {
protected:
    WindowTest() {
        desktop.screen = {1024, 768};
        toolbar.bounds = {345, 0, 678, 20};
        Global_UseTransparency = false;
    }
    ~WindowTest() override {
        Unload_ReminderWindows();
        Global_PendingUnloads.clear();
        Init_MessageWinRoutines();
        Global_PlayerClass.reset();
    }
    std::int32_t Add_Typed(const QString& text, ReminderType type) {
        const std::int32_t index = Add_Reminder(text);
        Reminder(index).rs_ID2 = 7;
        Reminder(index).rs_Reminder_Type = type;
        return index;
    }
    // The window of the reminder that came "number"th.
    static frmImportantRWin* Near_Window(std::size_t number) {
        return Global_NearWindows[number].WorkForm;
    }
    static frmImportantRWin* Centered_Window() {
        for (const CenterWindowEntry& entry : Global_CenterWindows)
            if (entry.Used)
                return entry.WorkForm;
        return nullptr;
    }
    static QString Text_Of(const QWidget* window) {
        return window->findChild<QPlainTextEdit*>()->toPlainText();
    }
    static std::vector<wbButton*> Buttons_Of(const QWidget* window) {
        std::vector<wbButton*> buttons;
        for (wbButton* button : window->findChildren<wbButton*>())
            if (!button->isHidden())
                buttons.push_back(button);
        return buttons;
    }
    static void Click(wbButton* button) { QTest::mouseClick(button, Qt::LeftButton); }
    // The button at the end of the row: next or close.
    static wbButton* Last_Button(const QWidget* window) { return Buttons_Of(window).back(); }

    FakeDesktop desktop;
    RecordingMedia media;
    RecordingShell shell;
    RecordingWindows windows;
};
