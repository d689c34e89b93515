// A save that a field at fault has stopped leaves its record half cleared until a later one
// succeeds; the file gets the record as it stood before.
#pragma once

#include "core/reminder_ref.h"

#include <optional>

enum class RefusedPart { Date, Hours };

class RefusedSave {
public:
    // Before each save. The record of a first refused one is kept until a save succeeds; also while
    // the box of a refused one is open, under which the program may end and save once more.
    void Save_Begins(const ReminderRef& target);
    void Save_Refused(RefusedPart part);
    void Save_Done();
    // A condition that the record has got besides.
    void Condition_Added(const HourSetup& condition);
    // Gives the record its date back, and its hours if a save has touched them. Nothing without a
    // refused save of this record.
    void Restore(const ReminderRef& target);

private:
    ReminderRef reminder;
    std::optional<ReminderClass> before;
    bool isOpen = false; // begun, and neither refused nor done
    bool isRefused = false;
    bool hoursTouched = false;
};
