#include "app/application.h"

#include "accessories/setup/setup.h"
#include "app/app_message.h"
#include "app/background_save.h"
#include "app/windows.h"
#include "controls/program_end.h"
#include "controls/transparency.h"
#include "controls/unload_queue.h"
#include "delivery/deliver.h"
#include "delivery/important_rwin.h"
#include "delivery/message_queue.h"
#include "delivery/missed_reminders.h"
#include "delivery/options_menu.h"
#include "platform/desktop.h"
#include "platform/dialogs.h"
#include "platform/instance.h"
#include "platform/window.h"
#include "toolbar/main_form.h"
#include "toolbar/mdl_tray.h"

#include <QApplication>

using namespace Qt::StringLiterals;

Application::Application() : watch(timers, Watch_Ports()) {
    Set_Program_Ending(false);
    Global_Timers = &timers;
}

Application::~Application() {
    Global_PlayerClass.reset();
    Tray_RemoveIcon();
    Release_Windows();
    Unload_MissedReminders();
    Unload_ReminderWindows();
    Global_OptionsMenu = nullptr;
    Global_Toolbar = nullptr;
    Global_MessageLine = nullptr;
    mainForm.reset();
    Release_Transparency();
    Global_Timers = nullptr;
}

bool Application::Load() {
    for (const Step& step : LoadOrder) {
        (this->*step.Run)();
        if (Program_Is_Ending()) {
            return false;
        }
    }
    loaded = true;
    return true;
}

ReminderWatch::Ports Application::Watch_Ports() {
    return {Deliver_Reminder, Show_SwallowedReminders, [this] {
                if (background != nullptr) {
                    background->Note_Change();
                }
            }};
}

void Application::Connect_Timers() {
    timers.On_Tick(TimerName::S_Reminder_Timer, Message_Tick);
    timers.On_Tick(TimerName::UnloadFormsTimer, UnloadFormsTimer_Tick);
    timers.On_Tick(TimerName::TK_AppMessage_Timer, [this] {
        if (Show_IsWaiting()) {
            timers.Enable(TimerName::TK_AppMessage_Timer, false);
            if (!mainForm->Toolbar_Visible()) {
                mainForm->AutoHide_ShowProc(false);
                platform::Desktop::Get().Beep();
            }
            if (QApplication::activeModalWidget() == nullptr) {
                mainForm->Activate();
            }
        }
    });
}

void Application::Show_Again() {
    QWidget* box = QApplication::activeModalWidget();
    if (box != nullptr) {
        platform::Windows::Get().Activate(box->winId());
    }
    if (Program_Is_Ending() || mainForm == nullptr) {
        return;
    }
    if (box == nullptr && mainForm->isVisible()) {
        mainForm->Activate();
    } else {
        // The timer runs only while there is something to read: a toolbar in the tray wakes nobody.
        // A box that holds the timers comes first, and the strip after it.
        Post_AppMessage(u"Show"_s);
        timers.Enable(TimerName::TK_AppMessage_Timer);
    }
}

bool Application::Begin_Ending() {
    if (Program_Is_Ending()) {
        return false;
    }
    Set_Program_Ending(true);
    timers.Stop_All();
    return true;
}

void Application::Unload() {
    if (!loaded || !Begin_Ending()) {
        return;
    }
    platform::Instance::Get().Begin_Ending();
    Global_PlayerClass.reset();
    Drop_SetupWizard();
    CloseProgram();
    for (const QString& failure : saveFailures) {
        platform::Dialogs::Get().Message(failure, platform::BoxStyle::Critical);
    }
    QCoreApplication::exit(0);
}

void Application::End(platform::EndReason reason) {
    if (reason == platform::EndReason::NoDisplay) {
        Set_Program_Ending(true);
        windowsGone = true;
        CloseProgram();
        Global_PlayerClass.reset(); // its service goes before it
        return;
    }
    const bool first = Begin_Ending();
    platform::Instance::Get().Begin_Ending();
    platform::Dialogs::Get().Dismiss_All();
    if (first) {
        Drop_SetupWizard();
        CloseProgram();
        Global_PlayerClass.reset();
    }
    QCoreApplication::exit(0);
}

void Application::CloseProgram() {
    // What a load that did not come to its end has in memory is not the user's.
    if (!loaded || saved) {
        return;
    }
    saved = true;
    if (background != nullptr) {
        background->Finish();
        saveFailures += background->Take_OtherCopies();
    }
    for (const Step& step : SaveOrder) {
        (this->*step.Run)();
    }
}
