#include "core/swallowed_runs.h"

#include "core/reminder_store.h"

#include <algorithm>
#include <set>
#include <tuple>

namespace {

constexpr Day LongestGap = 60;

// The end of a day that has passed, for the rules of dates.
Moment Moment_OfDay(Day day) {
    const CalendarDate date = DayToDate(day);
    return Moment_Of({date.year, date.month, date.day, 23, 59, 0, 0});
}

// Setups of the same minute are one.
std::set<std::int32_t> At_Minutes(const ReminderClass& reminder) {
    std::set<std::int32_t> minutes;
    for (std::int32_t index = 0; index <= reminder.HourSetupList_Size(); ++index) {
        const HourSetup& setup = reminder.GetHourSetup(index);
        if (setup.Enabled == -1 && setup.EveryXMinutes == 0 && setup.StartMinute >= 0) {
            minutes.insert(setup.StartMinute);
        }
    }
    return minutes;
}

} // namespace

std::vector<SwallowedRun> Take_SwallowedRuns(const Moment& before, const Moment& now) {
    const std::int64_t passed =
        (std::int64_t{now.Today} - before.Today) * MinutesOfDay + now.Minute - before.Minute;
    std::vector<SwallowedRun> runs;
    if (passed <= LongestPause) {
        return runs;
    }
    const bool isCut = now.Today - before.Today > LongestGap;
    const Day first = isCut ? now.Today - LongestGap : before.Today;
    // Of the last day, what is not over by five minutes still fires.
    const auto isSwallowed = [&](Day day, std::int32_t minute) {
        return (day > before.Today || minute > before.Minute) &&
               (day < now.Today || now.Minute > minute + LongestPause);
    };
    for (Day day = first; day <= now.Today; ++day) {
        const Moment moment = day == now.Today ? now : Moment_OfDay(day);
        for (std::size_t slot = 0; slot < Global_Reminders.size(); ++slot) {
            const ReminderSlot& one = Global_Reminders[slot];
            if (!one.Used || one.Pending || !one.Reminder.Peek().rs_Enabled ||
                !one.Reminder->Engine_CheckDate(moment)) {
                continue;
            }
            for (const std::int32_t minute : At_Minutes(one.Reminder.Peek())) {
                if (isSwallowed(day, minute)) {
                    runs.push_back({static_cast<std::int32_t>(slot), day, minute});
                }
            }
        }
    }
    std::stable_sort(runs.begin(), runs.end(),
                     [](const SwallowedRun& one, const SwallowedRun& two) {
                         return std::tie(one.Day, one.Minute) > std::tie(two.Day, two.Minute);
                     });
    return runs;
}
