// Reminders in a window at the centre of the screen, which they share: one is on view, the others
// wait in it.
#pragma once

#include "core/reminder_ref.h"

#include <vector>

class frmImportantRWin;

struct CenterWindowEntry {
    bool Used = false;
    ReminderRef Reminder;
    frmImportantRWin* WorkForm = nullptr;
};

extern std::vector<CenterWindowEntry> Global_CenterWindows; // 0..20, grown by 20

void Init_CenterWindows();
// A reminder that is there. One that is on view or waits already is not shown twice.
void Show_Centered(const ReminderRef& due);
