// The check of every second over the table of reminders.
#include "core/reminder_store.h"

namespace {

// Within so many ticks each reminder is asked once although it is said to be quiet: somebody may
// have kept a reference to it and changed it since.
constexpr std::size_t ticksOfRound = 60;

MinuteCount lastTick = 0;
std::size_t turn = 0;

// A clock that went back makes hours due that were behind it.
void Follow_Clock(MinuteCount now) {
    if (now < lastTick) {
        for (const ReminderSlot& slot : Global_Reminders)
            slot.Reminder.End_Quiet();
    }
    lastTick = now;
}

} // namespace

void Check_AllReminders(const std::function<void(std::int32_t)>& deliver) {
    Moment now = Read_Moment();
    Follow_Clock(now.Count());
    const std::size_t bound = Global_Reminders.size();
    const std::size_t share = bound / ticksOfRound + 1;
    const std::size_t askedAnyway = turn * share;
    turn = (turn + 1) % ticksOfRound;
    MinuteCount count = now.Count();
    for (std::size_t index = 0; index < bound && index < Global_Reminders.size(); ++index) {
        const ReminderSlot& slot = Global_Reminders[index];
        if (slot.Reminder.Is_Quiet(count) && index - askedAnyway >= share)
            continue;
        if (!slot.Used || slot.Pending || !slot.Reminder.Check_Run(now))
            continue;
        deliver(static_cast<std::int32_t>(index));
        // A delivery may have handled events for a while, even over midnight.
        now = Read_Moment();
        count = now.Count();
        Follow_Clock(count);
    }
}
