// Names one reminder of the table for as long as it lives: slots move when an earlier one is
// deleted, and a window may show a reminder that somebody else takes away.
#pragma once

#include "core/reminder_store.h"

#include <cstdint>

class ReminderRef {
public:
    // Names none.
    ReminderRef() = default;
    // A slot outside the table or a free one gives a name of none.
    static ReminderRef Of_Slot(std::int32_t slot);

    // Something was named; it may be gone since.
    bool Is_Set() const { return object != nullptr; }
    // Where it stands now; -1 = gone, or none was named.
    std::int32_t Slot() const;
    // To read only; null like Slot's -1.
    const ReminderClass* Peek() const;
    // To change; null like Slot's -1.
    ReminderClass* Get() const;
    bool operator==(const ReminderRef& other) const;

private:
    bool Stands_At(std::int32_t slot) const;

    // Both are compared: a new reminder may get the memory of a deleted one.
    const ReminderClass* object = nullptr;
    std::uint64_t identity = 0;
    mutable std::int32_t lastSlot = -1;
};
