// Does a reminder fire at this moment? Asked of every reminder once a second.
#include "core/reminder.h"

#include <algorithm>
#include <limits>

namespace {

constexpr std::int16_t HourEnabled = -1;
constexpr std::int16_t AtStartUp = -1;
constexpr std::int32_t LateMinutes = 5; // a machine asleep at the minute still fires

// Whether value mod divisor is 0. Nearly all are small, and the short division is the quick one.
bool Is_MultipleOf(std::int64_t value, std::int32_t divisor) {
    constexpr std::int64_t limit = std::numeric_limits<std::int32_t>::max();
    if (value >= -limit && value <= limit)
        return static_cast<std::int32_t>(value) % divisor == 0;
    return value % divisor == 0;
}

} // namespace

std::int32_t ReminderClass::First_ActiveDay() const {
    return rs_ActivationDay == 0 ? std::numeric_limits<Day>::min() : rs_ActivationDay;
}

bool ReminderClass::Matches_ExactDate(const Moment& now) const {
    if (now.Today == NoDay)
        return false;
    if (rs_SRYear != 0)
        return rs_SRLongday == now.Today;
    // Day 0 stands for the last of the month before.
    return (rs_SRDay == 0 || rs_SRDay == now.DayOfMonth) &&
           DateToDay(rs_SRDay, rs_SRMonth, now.Year) == now.Today;
}

void ReminderClass::Start_DayCycle(const Moment& now) {
    if (rs_FirstRunDate == 0)
        rs_FirstRunDate = rs_ActivationDay != 0 ? rs_ActivationDay : now.Today;
}

bool ReminderClass::Matches_DayCycle(const Moment& now) {
    Start_DayCycle(now);
    return rs_ReDays != 0 && Is_MultipleOf(std::int64_t{now.Today} - rs_FirstRunDate, rs_ReDays);
}

bool ReminderClass::Matches_Weekday(const Moment& now) {
    if (rs_wDays[static_cast<std::size_t>(now.Weekday)] == 0)
        return false;
    if (rs_ReWeeks != 0 && rs_wDaysArray_LWeek != 0 &&
        !Is_MultipleOf(std::int64_t{now.Week} - rs_wDaysArray_LWeek, rs_ReWeeks))
        return false;
    // The first match anchors the cycle of weeks, whether or not an hour then fires.
    rs_wDaysArray_LMonth = (now.Year - 2000) * 12 + now.Month;
    rs_wDaysArray_LWeek = now.Week;
    return true;
}

bool ReminderClass::Engine_CheckDate(const Moment& now) {
    if (!rs_Enabled)
        return false;
    if (rs_DisabledForToday != 0) {
        if (rs_DisabledForToday == now.Today)
            return false;
        rs_DisabledForToday = 0;
    }
    // The start date itself does not fire: that is meant.
    if (First_ActiveDay() >= now.Today)
        return false;
    switch (rs_DateType_Used) {
    case DateType::EveryDay:
        return rs_REveryDay;
    case DateType::Weekdays:
        return Matches_Weekday(now);
    case DateType::EveryXDays:
        return Matches_DayCycle(now);
    case DateType::ExactDate:
        return Matches_ExactDate(now);
    case DateType::DayOfMonth:
        return std::min(rs_REDayOfMonth, now.DaysInThisMonth) == now.DayOfMonth;
    }
    return false;
}

void ReminderClass::Start_NewDay(Serial today) {
    const std::int32_t slots = static_cast<std::int32_t>(MoreHours.size()) + 1;
    for (std::int32_t index = 0; index < slots; ++index) {
        Hour_Slot(index).IntervalMark = 0;
        Hour_Slot(index).StartupDone = false;
    }
    AtMarks.clear();
    LastCheckDate = today;
}

bool ReminderClass::Fire_Interval(HourSlot& slot, std::int32_t minute) {
    if (minute - (slot.IntervalMark - 1) < slot.Setup.EveryXMinutes)
        return false;
    slot.IntervalMark = minute + 1;
    return true;
}

bool ReminderClass::Fire_At(std::int32_t start, std::int32_t minute) {
    if (minute < start || minute > start + LateMinutes)
        return false;
    const auto mark = std::find_if(AtMarks.begin(), AtMarks.end(),
                                   [start](const AtMark& at) { return at.Minute == start; });
    if (mark == AtMarks.end()) {
        AtMarks.push_back({start, AtState::Fired});
        return true;
    }
    if (mark->State != AtState::FiresAgain)
        return false;
    mark->State = AtState::Done;
    return true;
}

// A minute that fires for the first time lets each other one whose five minutes are not over fire
// once more at the next check, and no later. That is meant.
void ReminderClass::Settle_AtMarks(std::size_t marksBefore, std::int32_t minute) {
    const std::size_t firstFires = AtMarks.size() - marksBefore;
    for (std::size_t index = 0; index < AtMarks.size(); ++index) {
        AtMark& mark = AtMarks[index];
        const bool isInside = minute >= mark.Minute && minute <= mark.Minute + LateMinutes;
        const std::size_t others = firstFires - (index >= marksBefore ? 1 : 0);
        if (mark.State == AtState::FiresAgain)
            mark.State = AtState::Done;
        else if (mark.State == AtState::Fired && isInside && others > 0)
            mark.State = AtState::FiresAgain;
    }
}

bool ReminderClass::Fire_HourSetup(HourSlot& slot, std::int32_t minute) {
    const std::int32_t start = slot.Setup.StartMinute;
    const std::int32_t every = slot.Setup.EveryXMinutes;
    if (slot.Setup.Enabled != HourEnabled || every < 0)
        return false;
    if (every == 0 && start == AtStartUp) {
        const bool first = !slot.StartupDone;
        slot.StartupDone = true;
        return first;
    }
    if (every == 0)
        return Fire_At(start, minute);
    if (start == AtStartUp && !slot.StartupDone) {
        slot.IntervalMark = minute - every + 1;
        slot.StartupDone = true;
    }
    if (minute > slot.Setup.EndMinute)
        return false;
    if (start != AtStartUp && slot.IntervalMark == 0)
        slot.IntervalMark = start - every + 1;
    return Fire_Interval(slot, minute);
}

// The first minute of the day after this one in which the slot could fire, for a slot that has just
// been asked and did not.
std::int32_t ReminderClass::Next_DueMinute(const HourSlot& slot, std::int32_t minute) {
    const std::int32_t start = slot.Setup.StartMinute;
    const std::int32_t every = slot.Setup.EveryXMinutes;
    if (slot.Setup.Enabled != HourEnabled || every < 0)
        return MinutesOfDay;
    if (every == 0)
        return minute < start ? start : MinutesOfDay;
    if (minute > slot.Setup.EndMinute)
        return MinutesOfDay;
    return slot.IntervalMark - 1 + every;
}

MinuteCount ReminderClass::Next_DueMinute(const Moment& now) const {
    std::int32_t due = MinutesOfDay;
    for (std::int32_t index = 0; index < HourCount; ++index)
        due = std::min(due, Next_DueMinute(Hour_Slot(index), now.Minute));
    return now.Start_OfDay() + static_cast<MinuteCount>(due);
}

bool ReminderClass::Engine_CheckTime(const Moment& now) {
    if (LastCheckDate != now.TodaySerial)
        Start_NewDay(now.TodaySerial);
    bool fired = false;
    const std::size_t marksBefore = AtMarks.size();
    for (std::int32_t index = 0; index < HourCount; ++index)
        fired |= Fire_HourSetup(Hour_Slot(index), now.Minute);
    Settle_AtMarks(marksBefore, now.Minute);
    if (fired)
        rs_LastExecutedDate = now.TodaySerial;
    return fired;
}

bool ReminderClass::Engine_CheckRunReminder(const Moment& now) {
    return Engine_CheckDate(now) && Engine_CheckTime(now);
}

bool ReminderClass::Engine_CheckRunReminder(const Moment& now, MinuteCount& quietUntil) {
    quietUntil = 0;
    if (!Engine_CheckDate(now)) {
        quietUntil = now.Start_OfDay() + static_cast<MinuteCount>(MinutesOfDay);
        return false;
    }
    if (Engine_CheckTime(now))
        return true;
    quietUntil = Next_DueMinute(now);
    return false;
}

bool ReminderClass::Check_ReminderWasMissedToday(const Moment& now) {
    if (rs_LastExecutedDate == now.TodaySerial)
        return false;
    for (std::int32_t index = 0; index < HourCount; ++index) {
        const HourSetup& setup = Hour_Slot(index).Setup;
        const std::int32_t limit =
            setup.EveryXMinutes == 0 ? setup.StartMinute + LateMinutes : setup.EndMinute;
        if (setup.Enabled == HourEnabled && now.Minute > limit) {
            rs_LastExecutedDate = now.TodaySerial;
            return true;
        }
    }
    return false;
}
