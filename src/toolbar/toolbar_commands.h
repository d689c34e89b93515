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
