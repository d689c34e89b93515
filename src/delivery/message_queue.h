// The ticker: reminders whose text passes through the toolbar, again and again for about five
// minutes, several of them taking turns.
#pragma once

#include "core/reminder_ref.h"
#include "core/time_routines.h"

#include <QString>

#include <cstdint>
#include <vector>

struct ToolbarMessage {
    bool Active = false;
    bool IsNew = false; // never been on the line: takes precedence
    bool Shown = false; // had its turn in the current round
    QString Text;
    std::int32_t LabelWidth = 0;  // pixels
    std::int32_t StartMinute = 0; // Minute
    std::int32_t EndMinute = 0;   // StartMinute + 5, not wrapped at midnight
    ::Day Day = 0;                // when it came
    std::int32_t LastShown = 0;   // millisecond clock
    ReminderRef Reminder;
};

extern std::vector<ToolbarMessage> Global_ToolbarMessages; // 0..20, grown by 20
extern std::int32_t Global_CurrentMessage;                 // -1 = none on the line
extern bool Global_MessagePaused;                          // while set the scrolling stands still

void Init_ToolbarMessages();
// Queues the reminder once, and starts S_Reminder_Timer. Nothing for one that is gone.
void Show_ToolbarMessage(const ReminderRef& due);
// One step of S_Reminder_Timer: one pixel.
void Message_Tick();
// True when a message is on the line afterwards.
bool Select_NextMessage();
bool Any_MessageActive();
// Ends a message at the next tick.
void Dismiss_Message(std::int32_t index);
