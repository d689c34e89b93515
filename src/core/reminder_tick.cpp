#include "core/reminder_tick.h"

#include "core/reminder_ref.h"

#include <algorithm>
#include <limits>
#include <utility>

ReminderTick::ReminderTick(std::function<void()> heard)
    : before(std::exchange(current, this)), onChange(std::move(heard)) {}

ReminderTick::~ReminderTick() {
    current = before;
}

void ReminderTick::Begin_Change() {
    changed = true;
    if (onChange)
        onChange();
}

// A clock that went back makes hours due that were behind it.
void ReminderTick::Follow_Clock(MinuteCount now) {
    if (now < last) {
        for (const ReminderSlot& slot : Global_Reminders)
            slot.Reminder.End_Quiet();
    }
    last = now;
}

void ReminderTick::Check(const std::function<void(const ReminderRef&)>& deliver) {
    Moment now = Read_Moment();
    MinuteCount count = now.Count();
    Follow_Clock(count);
    if (count < Quiet_Until())
        return;
    changed = false;
    quietUntil = 0;
    const std::uint32_t check = ++checks;
    MinuteCount due = std::numeric_limits<MinuteCount>::max();
    const std::size_t bound = Global_Reminders.size();
    for (std::size_t index = 0; index < bound && index < Global_Reminders.size(); ++index) {
        const ReminderSlot& slot = Global_Reminders[index];
        if (!slot.Used || slot.Pending)
            continue;
        const bool fires = !slot.Reminder.Is_Quiet(count) && slot.Reminder.Check_Run(now);
        due = std::min(due, slot.Reminder.Quiet_Until());
        if (!fires)
            continue;
        deliver(ReminderRef::Of_Slot(static_cast<std::int32_t>(index)));
        // A delivery may have handled events for a while, even over midnight.
        now = Read_Moment();
        count = now.Count();
        Follow_Clock(count);
    }
    // Another check inside a delivery has seen the table otherwise than this one.
    if (check != checks)
        changed = true;
    quietUntil = due;
}
