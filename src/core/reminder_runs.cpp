// The run dates of a reminder before and after today.
#include "core/reminder.h"

#include <algorithm>
#include <limits>

namespace {

constexpr std::size_t DaysOfWeek = 7;

// A run that the numbers of Days cannot tell is no run.
Day To_Day(std::int64_t day) {
    if (day < std::numeric_limits<Day>::min() || day > std::numeric_limits<Day>::max())
        return NoDay;
    return static_cast<Day>(day);
}

Day Day_OfMonth(std::int32_t day, std::int32_t month, std::int32_t year) {
    return DateToDay(std::min(day, DaysInMonth(month, year)), month, year);
}

} // namespace

Day ReminderClass::GetNext_RunDate(const Moment& now) {
    switch (rs_DateType_Used) {
    case DateType::EveryDay:
        return rs_REveryDay ? now.Today : NoDay;
    case DateType::Weekdays:
        return Next_Weekday(now);
    case DateType::EveryXDays:
        return Next_InDayCycle(now);
    case DateType::ExactDate:
        return Next_ExactDate(now);
    case DateType::DayOfMonth:
        return Next_DayOfMonth(now);
    }
    return NoDay;
}

Day ReminderClass::Next_DayOfMonth(const Moment& now) const {
    if (now.DayOfMonth <= std::min(rs_REDayOfMonth, now.DaysInThisMonth))
        return Day_OfMonth(rs_REDayOfMonth, now.Month, now.Year);
    if (now.Month == 12)
        return Day_OfMonth(rs_REDayOfMonth, 1, now.Year + 1);
    return Day_OfMonth(rs_REDayOfMonth, now.Month + 1, now.Year);
}

Day ReminderClass::Next_ExactDate(const Moment& now) const {
    if (rs_SRYear != 0)
        return rs_SRLongday < now.Today ? NoDay : rs_SRLongday;
    const Day thisYear = DateToDay(rs_SRDay, rs_SRMonth, now.Year);
    return thisYear < now.Today ? DateToDay(rs_SRDay, rs_SRMonth, now.Year + 1) : thisYear;
}

Day ReminderClass::Next_InDayCycle(const Moment& now) const {
    const std::int64_t today = now.Today;
    std::int64_t base = rs_FirstRunDate;
    if (base == 0)
        base = rs_ActivationDay;
    if (base == 0)
        base = today;
    if (base >= today)
        return To_Day(base);
    if (rs_ReDays == 0)
        return NoDay;
    if ((today - base) % rs_ReDays == 0)
        return now.Today;
    // Counts from the field, also where the base above is the start date: that is meant.
    const std::int64_t first = rs_FirstRunDate;
    return To_Day(first + ((today - first) / rs_ReDays + 1) * rs_ReDays);
}

Day ReminderClass::Next_Weekday(const Moment& now) const {
    const std::int64_t anchor = rs_wDaysArray_LWeek;
    std::int64_t week = DayToWeek(std::max(First_ActiveDay(), now.Today));
    std::int64_t nextWeek = week + 1;
    if (rs_ReWeeks != 0) {
        if (anchor == 0)
            return NoDay;
        week = week < anchor ? anchor : (week - anchor) / rs_ReWeeks * rs_ReWeeks + anchor;
        nextWeek = week + rs_ReWeeks;
    }
    for (const std::int64_t candidateWeek : {week, nextWeek}) {
        for (std::size_t weekday = 0; weekday < DaysOfWeek; ++weekday) {
            const std::int64_t day = candidateWeek * 7 - 4 + static_cast<std::int64_t>(weekday);
            if (rs_wDays[weekday] != 0 && day >= First_ActiveDay() && day >= now.Today)
                return To_Day(day);
        }
    }
    return NoDay;
}

Day ReminderClass::GetPrevious_RunDate(const Moment& now) {
    // A start date moved into the future starts the cycle of days again.
    if (First_ActiveDay() > now.Today) {
        rs_FirstRunDate = 0;
        return NoDay;
    }
    const Day result = Previous_RunDate(now);
    return result < rs_ActivationDay ? NoDay : result;
}

Day ReminderClass::Previous_RunDate(const Moment& now) {
    switch (rs_DateType_Used) {
    case DateType::EveryDay:
        return rs_REveryDay ? now.Today - 1 : NoDay;
    case DateType::Weekdays:
        return Previous_Weekday(now);
    case DateType::EveryXDays:
        return Previous_InDayCycle(now);
    case DateType::ExactDate:
        return Previous_ExactDate(now);
    case DateType::DayOfMonth:
        return Previous_DayOfMonth(now);
    }
    return NoDay;
}

Day ReminderClass::Previous_DayOfMonth(const Moment& now) const {
    if (now.DayOfMonth > std::min(rs_REDayOfMonth, now.DaysInThisMonth))
        return Day_OfMonth(rs_REDayOfMonth, now.Month, now.Year);
    if (now.Month == 1)
        return Day_OfMonth(rs_REDayOfMonth, 12, now.Year - 1);
    return Day_OfMonth(rs_REDayOfMonth, now.Month - 1, now.Year);
}

Day ReminderClass::Previous_ExactDate(const Moment& now) const {
    if (rs_SRYear != 0)
        return rs_SRLongday < now.Today ? rs_SRLongday : NoDay;
    // The 29th of February counts as before today in every year without one, and gives none.
    const Day thisYear = DateToDay(rs_SRDay, rs_SRMonth, now.Year);
    return thisYear < now.Today ? thisYear : DateToDay(rs_SRDay, rs_SRMonth, now.Year - 1);
}

Day ReminderClass::Previous_InDayCycle(const Moment& now) {
    Start_DayCycle(now);
    if (rs_ReDays == 0)
        return NoDay;
    const std::int64_t first = rs_FirstRunDate;
    std::int64_t last = now.Today;
    if ((last - first) % rs_ReDays == 0)
        --last;
    return To_Day(first + (last - first) / rs_ReDays * rs_ReDays);
}

Day ReminderClass::Previous_Weekday(const Moment& now) const {
    const std::int64_t anchor = rs_wDaysArray_LWeek;
    std::int64_t week = now.Week;
    std::int64_t weekBefore = week - 1;
    if (rs_ReWeeks != 0) {
        if (anchor == 0)
            return NoDay;
        week = (week - anchor) / rs_ReWeeks * rs_ReWeeks + anchor;
        weekBefore = week - rs_ReWeeks;
    }
    for (const std::int64_t candidateWeek : {week, weekBefore}) {
        for (std::size_t weekday = DaysOfWeek; weekday-- > 0;) {
            const std::int64_t day = candidateWeek * 7 - 4 + static_cast<std::int64_t>(weekday);
            // A Serial in that field is above every Day, so after a fire nothing is found here
            // until the list of missed reminders has written a Day: that is meant.
            if (rs_wDays[weekday] != 0 && day > rs_LastExecutedDate && day >= First_ActiveDay() &&
                day < now.Today)
                return To_Day(day);
        }
    }
    return NoDay;
}
