// What the strip asks of the rest of the house. The application connects each command to the piece
// that carries it out; a command that nobody carries out disables its button and its menu entry.
#pragma once

#include <array>
#include <cstddef>
#include <functional>

enum class ToolbarCommand {
    Open_LinksMenu,
    Add_Reminder,
    View_Reminders,
    View_Notes,
    Toggle_Textbox,
    Open_Setup,
    Unload, // ends the program
};
inline constexpr std::size_t ToolbarCommandCount = 7;

class ToolbarCommands {
public:
    void Connect(ToolbarCommand command, std::function<void()> work);
    bool Has(ToolbarCommand command) const;
    // Does nothing for a command that nobody carries out.
    void Run(ToolbarCommand command) const;
    // Called after each change of what is connected.
    void On_Change(std::function<void()> observer) { changed = std::move(observer); }

private:
    std::array<std::function<void()>, ToolbarCommandCount> works;
    std::function<void()> changed;
};

class frmImportantRWin;

// What the entries of the options menu do for a message of the line, by the message's index. An
// entry without work is disabled. option: index into Global_RA_Options.
struct MessageActions {
    std::function<void(int)> Ok;
    std::function<void(int)> DisableForToday;
    std::function<void(int)> Disable;
    std::function<void(int, int option)> RemindAgain = {};
};

// The same for the reminder that a window shows.
struct WindowActions {
    std::function<void(frmImportantRWin&)> DisableForToday;
    std::function<void(frmImportantRWin&)> Disable;
    std::function<void(frmImportantRWin&, int option)> RemindAgain;
};
