// The reminder that was copied last, in the file "temp.dat" of the program folder.
#pragma once

#include "core/reminder.h"

#include <memory>

// Set by the first copy of this run and never cleared: what an earlier run copied is not pasted.
extern bool CopyBufferValid;

// False: the file could not be written, and the former copy stands.
bool Write_CopyBuffer(const ReminderClass& reminder);

enum class PasteResult { Nothing, Damaged, Pasted };
// Nothing: no copy was made in this run, or its file is gone. The reminder is there when Pasted,
// as new: created today, with a number of its own.
PasteResult Read_CopyBuffer(std::unique_ptr<ReminderClass>& reminder);
