// What the menu of a shown reminder does to the reminder, and to its message on the line or its
// window.
#pragma once

#include <cstdint>

class frmImportantRWin;

// Both find the reminder by its two numbers; false when it is gone. The file is written with the
// next save of the store.
bool Disable_ReminderForToday(std::int32_t id, std::int32_t id2);
bool Disable_Reminder(std::int32_t id, std::int32_t id2);

// The entries for a message of Global_ToolbarMessages. When its reminder is gone, a box says so and
// the message stays. option: index into Global_RA_Options.
void Message_Ok(std::int32_t messageIndex);
void Message_RemindAgain(std::int32_t messageIndex, std::int32_t option);
void Message_DisableForToday(std::int32_t messageIndex);
void Message_Disable(std::int32_t messageIndex);

// The same for the reminder that a window shows; the window then goes on to the next or closes.
void Window_RemindAgain(frmImportantRWin& caller, std::int32_t option);
void Window_DisableForToday(frmImportantRWin& caller);
void Window_Disable(frmImportantRWin& caller);
