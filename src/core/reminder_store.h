// The table of all reminders of the account, and its file.
#pragma once

#include "core/reminder.h"

#include <QString>

#include <memory>
#include <vector>

struct ReminderSlot {
    bool Used = false;
    bool Pending = false; // being built by a dialog: not fired, not saved
    std::unique_ptr<ReminderClass> Reminder;
};

extern std::vector<ReminderSlot> Global_Reminders;

// 0..50, all free.
void Init_Reminders();

// Loads the table. 0; -1 wrong header or unreadable, -2 version not known: then the table is empty
// (0..20) and the file's damaged bytes are kept aside before a later save replaces them.
int Load_Reminders(const QString& fileName);
// Writes the used slots that are not pending. False: nothing was replaced.
bool Save_Reminders(const QString& fileName);

// The lowest rs_ID that no used slot has, and the millisecond clock as the second number.
std::int32_t Get_NewReminderID(std::int32_t& id2);
// Slot of the used reminder with this pair of numbers, or -1.
std::int32_t Find_ReminderIndex(std::int32_t id, std::int32_t id2);
// Frees a slot; the used ones behind it move down in order.
void Delete_ReminderSlot(std::int32_t index);
// A free slot; the table grows by 20 when there is none.
std::int32_t Take_FreeReminderSlot();
