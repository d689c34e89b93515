// The program from its load to its end: constructs the windows, connects the floors, loads and
// saves in a fixed order.
#pragma once

#include "accessories/help/help_keys.h"
#include "app/reminder_watch.h"
#include "controls/file_drops.h"
#include "controls/timers.h"
#include "platform/session.h"
#include "settings/global_settings.h"
#include "toolbar/toolbar_commands.h"

#include <QString>
#include <QStringList>

#include <memory>

class BackgroundSave;
class MainForm;

class Application {
public:
    Application();
    ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    // The load sequence; false when the end came in the middle of it. Boxes of the load pump
    // events.
    bool Load();
    // The user ends the program: everything is saved, then a box tells what could not be.
    void Unload();
    // The system ends the program: everything is saved, nothing waits for an answer.
    void End(platform::EndReason reason);
    // A later launch asks for the toolbar.
    void Show_Again();

    MainForm* Main_Form() const { return mainForm.get(); }
    // From the end of the load to the end.
    BackgroundSave* Background() const { return background.get(); }

private:
    struct Step {
        const char* Name;
        void (Application::*Run)();
    };
    static const Step LoadOrder[17];
    static const Step SaveOrder[7];

    void Create_Windows();
    void Init_GlobalArrays();
    void Load_TooltipTexts();
    void Load_Settings();
    void Open_UserFolder();
    void Build_OwnLinks();
    void Load_CategoryTable();
    void Load_ReminderTable();
    void Load_RemindAgain();
    void Load_LinkTable();
    void Load_NoteTable();
    void Place_Textbox();
    void Build_LinksMenu();
    void Show_Missed();
    void Start_Toolbar();
    void Start_Timers();
    void Await_SetupWizard();

    void Take_OpenEdits();
    void Save_ReminderTable();
    void Save_RemindAgain();
    void Save_LinkTable();
    void Save_NoteTable();
    void Save_CategoryTable();
    void Save_RegistryValues();
    void Start_BackgroundSave();
    LiveGeometry Live_Geometry() const;
    // Saves everything once, in order; shows nothing.
    void CloseProgram();
    ReminderWatch::Ports Watch_Ports();
    void Connect_Timers();
    // True for the first call: the program ends now.
    bool Begin_Ending();

    FileDrops fileDrops;
    HelpKeys helpKeys;
    QString programFolder;
    Timers timers;
    ReminderWatch watch;
    ToolbarCommands commands;
    std::unique_ptr<MainForm> mainForm;
    std::unique_ptr<BackgroundSave> background; // from the end of the load to the end
    bool loaded = false;
    bool saved = false;
    bool windowsGone = false;
    QStringList saveFailures; // one line for each table that could not be saved
};
