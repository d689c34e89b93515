// What a link of the menu does: a command of the program, or a target for the desktop.
#pragma once

#include <QString>

#include <cstdint>
#include <functional>

// Who carries the commands out; connected by the application.
struct LinkCommands {
    std::function<void()> Reminder_Edit;
    std::function<void()> Links_Edit;
    std::function<void()> Program_Setup;
    std::function<void()> Notes_Editor;
    std::function<void()> Setup_Wizard;
    std::function<void()> Help_Contents;
};
extern LinkCommands Global_LinkCommands;

// Does what the link says; url: without the depth digit. A target that cannot be opened is not
// reported. May handle events.
void Open_Link(const QString& url, std::uint8_t startSize);
