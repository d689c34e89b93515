#include "app/application.h"

#include "app/app_message.h"
#include "controls/program_end.h"
#include "controls/transparency.h"
#include "controls/unload_queue.h"
#include "core/categories.h"
#include "core/date_text.h"
#include "core/remind_again.h"
#include "core/reminder_store.h"
#include "core/time_routines.h"
#include "delivery/deliver.h"
#include "delivery/message_menu.h"
#include "delivery/message_queue.h"
#include "delivery/missed_reminders.h"
#include "delivery/options_menu.h"
#include "delivery/show_windows.h"
#include "platform/desktop.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/instance.h"
#include "platform/paths.h"
#include "platform/window.h"
#include "settings/account.h"
#include "settings/global_settings.h"
#include "toolbar/main_form.h"
#include "toolbar/mdl_tray.h"
#include "toolbar/toolbar_layout.h"

#include <QApplication>

using namespace Qt::StringLiterals;

// Later tables have their places in both orders already: what is not there yet leaves its files and
// values as they are.
const Application::Step Application::LoadOrder[] = {
    {"windows", &Application::Create_Windows},
    {"memory tables", &Application::Init_GlobalArrays},
    {"tooltips", nullptr},
    {"settings", &Application::Load_Settings},
    {"account", &Application::Open_UserFolder},
    {"program's own links", nullptr},
    {"categories", &Application::Load_CategoryTable},
    {"reminders", &Application::Load_ReminderTable},
    {"remind-again queue", &Application::Load_RemindAgain},
    {"links", nullptr},
    {"notes", nullptr},
    {"toolbar", &Application::Start_Toolbar},
    {"text box", nullptr},
    {"links menu", nullptr},
    {"missed reminders", &Application::Show_Missed},
    {"setup wizard", nullptr},
    {"timers", &Application::Start_Timers},
};

const Application::Step Application::SaveOrder[] = {
    {"reminders", &Application::Save_ReminderTable},
    {"remind-again queue", &Application::Save_RemindAgain},
    {"links", nullptr},
    {"notes", nullptr},
    {"categories", &Application::Save_CategoryTable},
    {"registry values", &Application::Save_RegistryValues},
};

Application::Application() {
    Set_Program_Ending(false);
    Global_Timers = &timers;
}

Application::~Application() {
    Global_PlayerClass.reset();
    Tray_RemoveIcon();
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
        if (step.Run != nullptr) {
            (this->*step.Run)();
        }
        if (Program_Is_Ending()) {
            return false;
        }
    }
    loaded = true;
    return true;
}

void Application::Create_Windows() {
    programFolder = platform::Paths::Get().Program_Folder();
    commands.Connect(ToolbarCommand::Unload, [this] { Unload(); });
    Connect_Timers();
    mainForm =
        std::make_unique<MainForm>(commands, MessageActions{Message_Ok, Message_DisableForToday,
                                                            Message_Disable, Message_RemindAgain});
    mainForm->Container().Serve_Windows(
        {Window_DisableForToday, Window_Disable, Window_RemindAgain});
    mainForm->Connect_Hiding({Clear_AppMessage, {}});
    Global_OptionsMenu = &mainForm->Container();
    Global_Toolbar = mainForm.get();
    Global_MessageLine = mainForm.get();
}

void Application::Init_GlobalArrays() {
    Init_Reminders();
    Init_Categories();
    Init_TimeRoutines();
    Init_DateText();
    Init_MessageWinRoutines();
    Load_RA_Options(programFolder + "/runagain.txt"_L1);
    Compute_IsWinXP();
}

void Application::Load_Settings() {
    auto& desktop = platform::Desktop::Get();
    SettingsDefaults defaults;
    defaults.ToolbarWidth = ToolbarDesignWidth * desktop.TwipsPerPixelX();
    defaults.ScreenWidth = desktop.Screen_Size().width * desktop.TwipsPerPixelX();
    defaults.TwipsPerPixelY = desktop.TwipsPerPixelY();
    defaults.AccountIsTaken = [this](std::int32_t number) {
        return Account_Is_Taken(programFolder, number);
    };
    Load_Global_Settings(defaults);
}

void Application::Open_UserFolder() {
    Open_Account(programFolder, Global_CurID);
}

void Application::Load_CategoryTable() {
    Load_Categories(Account_File(u"rcategories.txt"_s));
}

void Application::Load_ReminderTable() {
    const AccountLoad result = Load_AccountReminders(
        Global_UserPath, platform::Paths::Get().Shipped_File(u"examplereminders.dat"_s));
    if (result != AccountLoad::InvalidFile && result != AccountLoad::UnknownVersion) {
        return;
    }
    platform::Dialogs::Get().Message(u"Error loading reminders configuration:\r\n"_s +
                                         (result == AccountLoad::UnknownVersion
                                              ? u"Version not supported"_s
                                              : u"Invalid file"_s),
                                     platform::BoxStyle::Critical);
}

void Application::Load_RemindAgain() {
    const QString fileName = Account_File(u"rareminders.dat"_s);
    if (platform::Files::Get().Exists(fileName)) {
        Load_RA_Reminders(fileName);
    }
}

void Application::Show_Missed() {
    LoadAndShow_MissedReminders();
}

void Application::Start_Toolbar() {
    mainForm->Load_Window(
        {Global_Config_MainForm_Left, Global_Config_MainForm_Top, Global_Config_MainForm_Width});
    mainForm->show();
}

void Application::Start_Timers() {
    timers.Start_FirstTimers();
}

void Application::Connect_Timers() {
    timers.On_Tick(TimerName::R_CheckDate_Timer, [] { Check_AllReminders(Deliver_Reminder); });
    timers.On_Tick(TimerName::Check_Ra_Reminders_Timer,
                   [] { Check_RA_Reminders(Deliver_Reminder); });
    timers.On_Tick(TimerName::S_Reminder_Timer, Message_Tick);
    timers.On_Tick(TimerName::UnloadFormsTimer, UnloadFormsTimer_Tick);
    timers.On_Tick(TimerName::TK_AppMessage_Timer, [this] {
        if (Show_IsWaiting()) {
            timers.Enable(TimerName::TK_AppMessage_Timer, false);
            mainForm->AutoHide_ShowProc(false);
            platform::Desktop::Get().Beep();
        }
    });
}

void Application::Show_Again() {
    if (Program_Is_Ending() || mainForm == nullptr) {
        return;
    }
    if (QWidget* box = QApplication::activeModalWidget()) {
        platform::Windows::Get().Activate(box->winId());
    } else if (mainForm->isVisible()) {
        mainForm->Activate();
    } else {
        // The timer runs only while there is something to read: a toolbar in the tray wakes nobody.
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
    CloseProgram();
    if (!remindersSaved) {
        platform::Dialogs::Get().Message(u"Error saving reminders"_s, platform::BoxStyle::Critical);
    }
    QCoreApplication::exit(0);
}

void Application::End(platform::EndReason reason) {
    if (reason == platform::EndReason::NoDisplay) {
        Set_Program_Ending(true);
        CloseProgram();
        return;
    }
    const bool first = Begin_Ending();
    platform::Instance::Get().Begin_Ending();
    platform::Dialogs::Get().Dismiss_All();
    if (first) {
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
    for (const Step& step : SaveOrder) {
        if (step.Run != nullptr) {
            (this->*step.Run)();
        }
    }
}

void Application::Save_ReminderTable() {
    remindersSaved = Save_Reminders(Account_File(u"reminders.dat"_s));
}

void Application::Save_RemindAgain() {
    Save_RA_Reminders(Account_File(u"rareminders.dat"_s));
}

void Application::Save_CategoryTable() {
    Save_Categories(Account_File(u"rcategories.txt"_s));
}

void Application::Save_RegistryValues() {
    const TwipsRect bounds = mainForm->Live_Bounds();
    Save_Global_Settings({bounds.Width, {bounds.Top, bounds.Left}, std::nullopt}, programFolder);
}
