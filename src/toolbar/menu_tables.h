// The popup menus of the program, entry by entry. A caption of "-" is a separator; the number of an
// entry is its place among the entries that belong together.
#pragma once

#include <QStringView>

#include <span>

enum class OptionsItem {
    Ok_GotIt = 100,
    SR_Separator = 101,
    RemindAgain = 0,
    DisableForToday = 2,
    Disable = 4,
    FirstRA = 1000, // mnuOptionsRA: this and the index into Global_RA_Options
};
enum class HideOption { Minimize = 0, Hide = 1, Unload = 3 };
enum class TrayItem {
    Show_Toolbar = 0,
    Add_Reminder = 2,
    View_Reminders = 4,
    View_Notes = 5,
    Setup = 7,
    Exit = 9,
};

struct MenuRow {
    int Number;
    QStringView Caption;

    bool Is_Separator() const { return Caption == u"-"; }
};

// Only while the menu serves the message line: the first two entries of the options menu.
std::span<const MenuRow> mnuOptions_SR_Only();
std::span<const MenuRow> mnuOptions();
std::span<const MenuRow> mnuHideOptions();
std::span<const MenuRow> mnuTrayIcon();
