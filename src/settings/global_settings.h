// The program-wide settings: read once at the start, written once at the end. In between everybody
// reads and changes the variables directly.
#pragma once

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

extern bool Global_TopForm;                   // the toolbar stays above other windows
extern bool Global_UseShadows;                // takes effect with Global_IsWinXP only
extern bool Global_UseTransparency;           // takes effect with Global_IsWinXP only
extern std::int32_t Global_Autohide_WaitTime; // ms of mouse absence
extern bool Global_Autohide_Enabled;
extern std::int32_t Global_Autohide_SelectedHideMode; // a HideMode's number: -1 = best, 0..4
extern std::int32_t Global_Config_MainForm_Width;     // twips
extern std::int32_t Global_Config_MainForm_Top;       // twips
extern std::int32_t Global_Config_MainForm_Left;      // twips
extern std::int32_t Global_Config_Textbox_Top;        // twips
extern std::int32_t Global_Config_Textbox_Left;       // twips
extern std::int32_t Global_CurID;        // number of this user's account; -1 = none yet
extern std::int32_t FirstTime;           // not 0: the setup wizard runs after the load
extern std::int32_t Global_MaxAccountID; // next free account number, shared by all users

extern bool Global_IsWinXP; // the system counts as recent

// The sizes that some defaults come from.
struct SettingsDefaults {
    std::int32_t ToolbarWidth = 333 * 15; // the toolbar's design width, twips
    std::int32_t ScreenWidth = 0;         // of the primary screen, twips
    std::int32_t TextboxWidth = 258 * 15; // the text box: 250 pixels inside its frame, twips
    std::int32_t TwipsPerPixelY = 15;
    // Whether an account number that seems to be free belongs to somebody else.
    std::function<bool(std::int32_t number)> AccountIsTaken = {};
    std::int32_t ScreenLeft = 0; // of the primary screen, twips
    std::int32_t ScreenTop = 0;
    // Whether the user's own number leads to a folder that is closed to the user.
    std::function<bool(std::int32_t number)> AccountIsClosed = {};
};

// Where a window stands when the program ends, twips.
struct WindowPlace {
    std::int32_t Top = 0;
    std::int32_t Left = 0;
};

struct LiveGeometry {
    std::int32_t ToolbarWidth = 0; // twips
    WindowPlace Toolbar;
    std::optional<WindowPlace> Textbox; // nothing: no such window; the loaded place is kept
};

// Asks the system's version; to be called before the load, which takes a default from it.
void Compute_IsWinXP();
// Reads all values, repairs them, and gives a user without an account the next free number. What
// cannot be read has its default.
void Load_Global_Settings(const SettingsDefaults& defaults);
// Writes all values; programFolder in the system's own form. Failures are silent.
void Save_Global_Settings(const LiveGeometry& geometry, const QString& programFolder);

// What of the values is to be written while the program runs: all but "First Time", so that a first
// run that was cut short begins anew. The result writes them, on any thread.
std::function<void()> Take_Global_Settings(const LiveGeometry& geometry,
                                           const QString& programFolder);
