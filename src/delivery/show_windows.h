// Brings a due reminder into a window beside the toolbar, or into the shared one at the centre.
#pragma once

#include <cstdint>

enum class OtherApplications { Leave, Minimize };

// Index: a used slot of Global_Reminders. A reminder that is on view or waits in a window already
// is not shown twice.
void Show_NextToToolbar(std::int32_t index);
void Show_Centered(std::int32_t index, OtherApplications others);
// Releases all reminder windows, at the end of the program.
void Unload_ReminderWindows();
