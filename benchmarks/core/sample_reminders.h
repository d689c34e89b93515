// Tables of reminders as users make them, of all kinds and all forms of hours, the same every time.
#pragma once

#include <cstddef>

// Fills Global_Reminders.
void Make_SampleReminders(std::size_t count);
