// The road of a due reminder to its user: first the sound, then the message line or a window.
#pragma once

#include "delivery/mci_class.h"

#include <cstdint>
#include <memory>

// The sound that plays now; a new one ends it.
extern std::unique_ptr<MCIClass> Global_PlayerClass;

// Fresh tables of messages, windows and reminders sent away.
void Init_MessageWinRoutines();
// A free slot, or an index outside the table, does nothing.
void Deliver_Reminder(std::int32_t index);
