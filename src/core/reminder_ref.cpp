#include "core/reminder_ref.h"

namespace {

const ReminderSlot* Used_Slot(std::int32_t slot) {
    if (slot < 0 || static_cast<std::size_t>(slot) >= Global_Reminders.size())
        return nullptr;
    const ReminderSlot& found = Global_Reminders[static_cast<std::size_t>(slot)];
    return found.Used ? &found : nullptr;
}

} // namespace

ReminderRef ReminderRef::Of_Slot(std::int32_t slot) {
    ReminderRef made;
    if (const ReminderSlot* used = Used_Slot(slot)) {
        made.object = &used->Reminder.Peek();
        made.identity = made.object->Identity.Value();
        made.lastSlot = slot;
    }
    return made;
}

bool ReminderRef::Stands_At(std::int32_t slot) const {
    const ReminderSlot* used = Used_Slot(slot);
    return used != nullptr && &used->Reminder.Peek() == object &&
           object->Identity.Value() == identity;
}

std::int32_t ReminderRef::Slot() const {
    if (object == nullptr)
        return -1;
    if (Stands_At(lastSlot))
        return lastSlot;
    const auto count = static_cast<std::int32_t>(Global_Reminders.size());
    for (std::int32_t slot = 0; slot < count; ++slot)
        if (Stands_At(slot))
            return lastSlot = slot;
    return -1;
}

const ReminderClass* ReminderRef::Peek() const {
    const std::int32_t slot = Slot();
    return slot == -1 ? nullptr : &Global_Reminders[static_cast<std::size_t>(slot)].Reminder.Peek();
}

ReminderClass* ReminderRef::Get() const {
    const std::int32_t slot = Slot();
    return slot == -1 ? nullptr : Global_Reminders[static_cast<std::size_t>(slot)].Reminder.get();
}

bool ReminderRef::operator==(const ReminderRef& other) const {
    return object == other.object && identity == other.identity;
}
