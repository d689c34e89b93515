// What a link of the menu does: a command of the program, or a target for the desktop.
#pragma once

#include "platform/shell.h"

#include <QString>

#include <cstdint>
#include <functional>

// Who carries the commands out; connected by the application. One that is not connected does
// nothing.
struct LinkCommands {
    std::function<void()> Reminder_Edit;
    std::function<void()> Links_Edit;
    std::function<void()> Program_Setup;
    std::function<void()> Notes_Editor;
    std::function<void()> Setup_Wizard;
    std::function<void(const QString& page)> Help; // a file name like "contents.html"
};
void Connect_LinkCommands(LinkCommands commands);

enum class LinkAction {
    Nothing,
    Reminder_Edit,
    Links_Edit,
    Program_Setup,
    Notes_Editor,
    Setup_Wizard,
    Help_Contents,
    About,
    Start_Program,
    Open_Target,
};
// url: without the depth digit.
LinkAction Action_Of(const QString& url);
// A StartSize of a link; an unknown one opens normally.
platform::ShowState Show_StateOf(std::uint8_t startSize);

// Does what the link says. A target that cannot be opened is not reported. May handle events.
void Open_Link(const QString& url, std::uint8_t startSize);
