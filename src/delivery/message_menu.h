// What a user answers in the menu of a shown reminder.
#pragma once

#include <cstdint>

class frmImportantRWin;

enum class ReminderAnswer { Ok, RemindAgain, DisableForToday, Disable };

// For a message of Global_ToolbarMessages, which then leaves the line, and for the reminder that a
// window shows; the window then goes on to the next or closes. When the reminder is gone, a box
// says so, and message or window stay. option: of RemindAgain, index into Global_RA_Options.
void Answer_Message(std::int32_t messageIndex, ReminderAnswer answer, std::int32_t option = 0);
void Answer_Window(frmImportantRWin& caller, ReminderAnswer answer, std::int32_t option = 0);
