// Which reminders had their time while the program was not running, and the window that offers
// them once at each start.
#pragma once

#include "controls/toolbar.h"
#include "core/reminder_ref.h"
#include "core/time_routines.h"
#include "platform/desktop.h"

#include <QString>

#include <cstdint>
#include <vector>

struct MissedEntry {
    QString Text; // with the day in front
    ReminderRef Reminder;
    ::Day Day = 0; // the day missed
};

// The rows, newest day first. Notes in each reminder that its run has been offered.
std::vector<MissedEntry> List_MissedReminders(const Moment& now);

// The rows of what went by between two checks, while the machine slept or the clock was set
// forward, newest first. Notes in each reminder that its run has been offered.
std::vector<MissedEntry> List_SwallowedReminders(const Moment& before, const Moment& now);

// Bounds of the window with its frame, screen pixels.
struct MissedPlace {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    bool operator==(const MissedPlace&) const = default;
};
// widestText and frameHeight (what the frame adds to the height): pixels.
MissedPlace Place_MissedWindow(int rows, int widestText, int frameHeight,
                               const ToolbarRect& toolbar, const QRect& screen);

// Builds the list, and shows the window when there is something in it.
void LoadAndShow_MissedReminders();
// Adds the rows of what went by between two checks, if there are any: to those of a window that is
// still on view, else to an empty one.
void Show_SwallowedReminders(const Moment& before, const Moment& now);
// Releases the window, at the end of the program.
void Unload_MissedReminders();
