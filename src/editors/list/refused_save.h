// A save that a field at fault has stopped leaves its record half cleared until a later one
// succeeds; the file gets the record as it stood before.
#pragma once

#include "core/reminder_ref.h"
#include "editors/pages/reminder_page.h"

#include <optional>

class RefusedSave {
public:
    // Before each save. The record of a first refused one is kept until a save succeeds.
    void Save_Begins(const ReminderRef& target);
    // Before its box, under which the program may end and save once more.
    void Save_Refused(EditPage page);
    void Save_Done();
    // A condition that the record has got besides.
    void Condition_Added(const HourSetup& condition);
    // Gives the record its date back, and its hours if a save has touched them. Nothing without a
    // refused save of this record.
    void Restore(const ReminderRef& target);

private:
    ReminderRef reminder;
    std::optional<ReminderClass> before;
    bool isRefused = false;
    bool hoursTouched = false;
};
