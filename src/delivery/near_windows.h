// Reminders in windows beside the toolbar: each has a window of its own as long as there is room,
// and waits in one of them after that.
#pragma once

#include "delivery/near_placement.h"

extern std::vector<NearWindowEntry> Global_NearWindows; // 0..20, grown by 20

void Init_NearWindows();
// A reminder that is there. One that is on view or waits in a window already is not shown twice.
void Show_NextToToolbar(const ReminderRef& due);
