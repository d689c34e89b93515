// The steps of the load and of the save, each in its fixed order.
#include "accessories/setup/setup.h"
#include "accessories/textbox/frm_textbox.h"
#include "app/app_message.h"
#include "app/application.h"
#include "app/background_save.h"
#include "app/windows.h"
#include "controls/program_end.h"
#include "controls/tooltip_picture.h"
#include "core/categories.h"
#include "core/date_text.h"
#include "core/remind_again.h"
#include "core/reminder_store.h"
#include "core/time_routines.h"
#include "delivery/deliver.h"
#include "delivery/message_queue.h"
#include "delivery/missed_reminders.h"
#include "delivery/options_menu.h"
#include "links/menu/links_menu.h"
#include "links/store/link_rec.h"
#include "notes/notes_store.h"
#include "notes/open_note.h"
#include "platform/desktop.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "settings/account.h"
#include "settings/global_settings.h"
#include "toolbar/main_form.h"
#include "toolbar/toolbar_layout.h"

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t LinkRowsAtStart = 101;

void Show_Error(const QString& text) {
    platform::Dialogs::Get().Message(text, platform::BoxStyle::Critical);
}

void Tell_Damage(TableLoad result, const QString& invalid, const QString& unknownVersion) {
    if (result == TableLoad::Invalid) {
        Show_Error(invalid);
    } else if (result == TableLoad::UnknownVersion) {
        Show_Error(unknownVersion);
    }
}

} // namespace

const Application::Step Application::LoadOrder[17] = {
    {"windows", &Application::Create_Windows},
    {"memory tables", &Application::Init_GlobalArrays},
    {"tooltips", &Application::Load_TooltipTexts},
    {"settings", &Application::Load_Settings},
    {"account", &Application::Open_UserFolder},
    {"program's own links", &Application::Build_OwnLinks},
    {"categories", &Application::Load_CategoryTable},
    {"reminders", &Application::Load_ReminderTable},
    {"remind-again queue", &Application::Load_RemindAgain},
    {"links", &Application::Load_LinkTable},
    {"notes", &Application::Load_NoteTable},
    {"toolbar", &Application::Start_Toolbar},
    {"text box", &Application::Place_Textbox},
    {"links menu", &Application::Build_LinksMenu},
    {"missed reminders", &Application::Show_Missed},
    {"timers", &Application::Start_Timers},
    {"setup wizard", &Application::Await_SetupWizard},
};

const Application::Step Application::SaveOrder[7] = {
    {"open edits", &Application::Take_OpenEdits},
    {"reminders", &Application::Save_ReminderTable},
    {"remind-again queue", &Application::Save_RemindAgain},
    {"links", &Application::Save_LinkTable},
    {"notes", &Application::Save_NoteTable},
    {"categories", &Application::Save_CategoryTable},
    {"registry values", &Application::Save_RegistryValues},
};

void Application::Create_Windows() {
    programFolder = platform::Paths::Get().Program_Folder();
    commands.Connect(ToolbarCommand::Unload, [this] { Unload(); });
    Connect_Timers();
    mainForm = std::make_unique<MainForm>(commands);
    mainForm->Connect_Hiding({Clear_AppMessage, LinksMenu_Visible});
    Global_OptionsMenu = &mainForm->Container();
    Global_Toolbar = mainForm.get();
    Global_MessageLine = mainForm.get();
    Connect_Windows(commands, *mainForm);
}

void Application::Init_GlobalArrays() {
    Init_Reminders();
    Init_Categories();
    Global_LinkArray.assign(LinkRowsAtStart, {});
    Init_Notes();
    Init_TimeRoutines();
    Init_DateText();
    Init_RA_Reminders();
    Init_MessageWinRoutines();
    Load_RA_Options(programFolder + "/runagain.txt"_L1);
    Compute_IsWinXP();
}

void Application::Load_TooltipTexts() {
    if (!Load_Tooltips(platform::Paths::Get().Shipped_File(u"tooltips.txt"_s))) {
        Show_Error(u"Error loading tooltips"_s);
    }
}

void Application::Load_Settings() {
    auto& desktop = platform::Desktop::Get();
    SettingsDefaults defaults;
    defaults.ToolbarWidth = ToolbarDesignWidth * desktop.TwipsPerPixelX();
    const QRect screen = desktop.Screens().front();
    defaults.ScreenWidth = PixelsX_To_Twips(screen.width());
    defaults.ScreenLeft = PixelsX_To_Twips(screen.left());
    defaults.ScreenTop = PixelsY_To_Twips(screen.top());
    defaults.TwipsPerPixelY = desktop.TwipsPerPixelY();
    defaults.AccountIsTaken = [this](std::int32_t number) {
        return Account_Is_Taken(programFolder, number);
    };
    defaults.AccountIsClosed = [this](std::int32_t number) {
        return Account_Is_Closed(programFolder, number);
    };
    Load_Global_Settings(defaults);
}

void Application::Open_UserFolder() {
    platform::Files::Get().Sweep(programFolder);
    if (!Open_Account(programFolder, Global_CurID)) {
        Show_Error(u"The folder for your data cannot be made:\r\n"_s + Global_UserPath +
                   u"\r\nNothing that you enter will be saved."_s);
    }
    platform::Files::Get().Sweep(Global_UserPath);
}

void Application::Load_CategoryTable() {
    Load_Categories(Account_File(u"rcategories.txt"_s));
}

void Application::Load_ReminderTable() {
    const QString error = u"Error loading reminders configuration:\r\n"_s;
    Tell_Damage(Load_AccountReminders(Global_UserPath, platform::Paths::Get().Shipped_File(
                                                           u"examplereminders.dat"_s)),
                error + u"Invalid file"_s, error + u"Version not supported"_s);
}

void Application::Load_RemindAgain() {
    Load_RA_Reminders(Account_File(u"rareminders.dat"_s));
}

void Application::Build_OwnLinks() {
    Build_Program_Links();
}

void Application::Load_LinkTable() {
    const TableLoad result = Load_Links_File(Account_File(u"links.dat"_s));
    Tell_Damage(result, u"Error loading links"_s,
                u"Error loading links (file version not supported)"_s);
    if (result != TableLoad::Loaded) {
        Build_Default_Links();
    }
}

void Application::Load_NoteTable() {
    Tell_Damage(Load_AccountNotes(Global_UserPath,
                                  platform::Paths::Get().Shipped_File(u"examplenotes.dat"_s)),
                u"Error loading notes"_s, u"Error loading notes (file version not supported)"_s);
}

void Application::Place_Textbox() {
    Init_Textbox();
}

void Application::Build_LinksMenu() {
    Init_LinksMenu({[this] {
                        if (!Program_Is_Ending())
                            mainForm->MouseOver();
                    },
                    [this] {
                        if (!Program_Is_Ending())
                            mainForm->Take_Focus();
                    }});
}

void Application::Await_SetupWizard() {
    Connect_RunWizard(timers);
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
    watch.Start();
    timers.Start_FirstTimers();
    Start_BackgroundSave();
}

void Application::Start_BackgroundSave() {
    const QString queue = Account_File(u"rareminders.dat"_s);
    BackgroundSave::Ports ports{
        {Account_File(u"reminders.dat"_s), Reminders_File(), {}, u"Error saving reminders"_s},
        {{queue, RA_File(), [queue] { return Encode_RA_Reminders(queue); },
          u"Error saving the reminders to come again"_s},
         {Account_File(u"links.dat"_s), Links_File(), Encode_Links, u"Error saving links"_s},
         {Account_File(u"notes.dat"_s), Notes_File(), Encode_Notes, u"Error saving notes"_s},
         {Account_File(u"rcategories.txt"_s), Categories_File(), Encode_Categories,
          u"Error saving categories"_s}},
        [] { Store_OpenNote(); },
        [this] { return Take_Global_Settings(Live_Geometry(), programFolder); },
        [](const QString& text) {
            platform::Dialogs::Get().Notice(text, platform::BoxStyle::Exclamation);
        }};
    background = std::make_unique<BackgroundSave>(std::move(ports));
}

LiveGeometry Application::Live_Geometry() const {
    const TwipsRect bounds = mainForm->Live_Bounds();
    return {bounds.Width, {bounds.Top, bounds.Left}, Textbox_Place()};
}

void Application::Take_OpenEdits() {
    Store_OpenEdits(windowsGone ? WindowsAre::Gone : WindowsAre::There);
}

void Application::Save_ReminderTable() {
    if (!Save_Reminders(Account_File(u"reminders.dat"_s))) {
        saveFailures.append(u"Error saving reminders"_s);
    }
}

void Application::Save_LinkTable() {
    if (!Save_Links_File(Account_File(u"links.dat"_s))) {
        saveFailures.append(u"Error saving links"_s);
    }
}

void Application::Save_NoteTable() {
    if (!Save_Notes_File(Account_File(u"notes.dat"_s))) {
        saveFailures.append(u"Error saving notes"_s);
    }
}

void Application::Save_RemindAgain() {
    Save_RA_Reminders(Account_File(u"rareminders.dat"_s));
}

void Application::Save_CategoryTable() {
    Save_Categories(Account_File(u"rcategories.txt"_s));
}

void Application::Save_RegistryValues() {
    Save_Global_Settings(Live_Geometry(), programFolder);
}
