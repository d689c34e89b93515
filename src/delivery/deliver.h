// The road of a due reminder to its user: first the sound, then the message line or a window.
#pragma once

#include "core/reminder_ref.h"
#include "delivery/mci_class.h"

#include <memory>

// The sound that plays now; a new one ends it.
extern std::unique_ptr<MCIClass> Global_PlayerClass;

// Fresh tables of messages and windows.
void Init_MessageWinRoutines();
// Nothing for one that is gone.
void Deliver_Reminder(const ReminderRef& due);
