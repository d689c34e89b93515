#include "editors/pages/date_rules.h"

#include "core/date_text.h"

#include <algorithm>

using namespace date_box;

namespace {

void Clear_Boxes(DatePageState& state, int first, int last) {
    std::fill(state.Ticks.begin() + first, state.Ticks.begin() + last + 1, false);
}

Day Ticked_On(const DatePageState& state, DateField field, const Moment& now) {
    return state.TickedOn[field] == 0 ? now.Today : state.TickedOn[field];
}

WhichWeek Week_Of(const DatePageState& state, WeekOption next) {
    return state.WeekOptions[next] ? WhichWeek::Next : WhichWeek::This;
}

// Radio behaviour by hand: everything in the range but one goes.
void Clear_Others(DatePageState& state, int first, int last, int kept) {
    const bool was = state.Tick(kept);
    Clear_Boxes(state, first, last);
    state.Tick(kept) = was;
}

// The choice alone: the days that have passed are blocked by a click on "This:" only, and until
// then it is the save that refuses them.
void Choose_Week_If_None(DatePageState& state, WeekOption thisWeek) {
    const auto at = static_cast<std::size_t>(thisWeek);
    if (!state.WeekOptions[at] && !state.WeekOptions[at + 1])
        state.WeekOptions[at] = true;
}

void Exact_Checked(DatePageState& state, int box, const Moment& now) {
    const bool everyYear = state.Tick(EveryYear);
    Clear_Others(state, EveryDay, StartSunday, box);
    state.Tick(EveryYear) = everyYear;
    state.TickedOn[ExactField] = now.Today;
    // An exact date has no start date.
    state.Tick(AlwaysActive) = true;
    if (box >= ExactMonday)
        Choose_Week_If_None(state, ExactThis);
}

TickOutcome Start_Checked(DatePageState& state, int box, const Moment& now) {
    if (box != AlwaysActive && Exact_Tick(state)) {
        state.Tick(box) = false;
        return TickOutcome::StartDateRefused;
    }
    state.TickedOn[StartField] = now.Today;
    Clear_Others(state, AlwaysActive, StartSunday, box);
    if (box >= StartMonday)
        Choose_Week_If_None(state, StartThis);
    return TickOutcome::Taken;
}

// Day and month of the text in the exact field.
std::optional<CalendarDate> Typed_Date(const DatePageState& state, const Moment& now) {
    CalendarDate date;
    if (ParseUserDate(state.Dates[ExactField], date.day, date.month, date.year, {}, true) != 0)
        return std::nullopt;
    if (date.year == 0)
        date.year = now.Year;
    else if (DateToDay(date.day, date.month, date.year) == NoDay)
        return std::nullopt;
    return date;
}

std::optional<CalendarDate> Exact_Date(const DatePageState& state, MakeEveryYear make,
                                       const Moment& now) {
    const std::optional<int> box = Exact_Tick(state);
    if (!box)
        return std::nullopt;
    if (*box == OnDate)
        return Typed_Date(state, now);
    if (make == MakeEveryYear::No)
        return std::nullopt;
    const Day day = Exact_Day(state, *box, now);
    return day == NoDay ? std::nullopt : std::optional(DayToDate(day));
}

} // namespace

TickOutcome Date_Option_Checked(DatePageState& state, int box, const Moment& now) {
    if (box >= AlwaysActive)
        return Start_Checked(state, box, now);
    if (box == EveryDay) {
        Clear_Boxes(state, Monday, EveryYear);
    } else if (box <= Weeks) {
        state.Tick(EveryDay) = false;
        Clear_Boxes(state, DayOfMonth, EveryYear);
    } else if (box <= EveryXDays) {
        Clear_Others(state, EveryDay, EveryYear, box);
    } else if (box <= ExactSunday) {
        Exact_Checked(state, box, now);
    } else if (ExactDate_To_Field(state, MakeEveryYear::Yes, now)) {
        Clear_Boxes(state, EveryDay, ExactSunday);
        state.Tick(OnDate) = true;
    } else {
        state.Tick(EveryYear) = false;
    }
    return TickOutcome::Taken;
}

void Date_Option_Unchecked(DatePageState& state, int box, const Moment& now) {
    if (box == EveryYear)
        ExactDate_To_Field(state, MakeEveryYear::No, now);
}

void Week_Option_Clicked(DatePageState& state, WeekOption option, const Moment& now) {
    const bool exact = option == ExactThis || option == ExactNext;
    const bool next = option == ExactNext || option == StartNext;
    const std::size_t first = exact ? ExactThis : StartThis;
    state.WeekOptions[first] = !next;
    state.WeekOptions[first + 1] = next;
    state.TickedOn[exact ? ExactField : StartField] = now.Today;
    const int monday = exact ? ExactMonday : StartMonday;
    for (int weekday = 0; weekday < 7; ++weekday) {
        const int number = monday + weekday;
        const auto box = static_cast<std::size_t>(number);
        state.Blocked[box] = !next && weekday < now.Weekday;
        if (state.Blocked[box])
            state.Ticks[box] = false;
    }
}

bool ExactDate_To_Field(DatePageState& state, MakeEveryYear make, const Moment& now) {
    const std::optional<CalendarDate> date = Exact_Date(state, make, now);
    if (!date)
        return false;
    const bool everyYear = make == MakeEveryYear::Yes;
    state.Dates[ExactField] =
        FormatUserDate(date->day, date->month, everyYear ? 0 : now.Year, everyYear);
    return true;
}

std::optional<int> Exact_Tick(const DatePageState& state) {
    for (int box = date_box::Today; box <= ExactSunday; ++box)
        if (state.Tick(box))
            return box;
    return std::nullopt;
}

Day Exact_Day(const DatePageState& state, int box, const Moment& now) {
    const Day ticked = Ticked_On(state, ExactField, now);
    if (box < ExactMonday)
        return box == Tomorrow ? ticked + 1 : ticked;
    return NextWeekdayDay(now, ticked, Week_Of(state, ExactNext), box - ExactMonday);
}

Day Start_Day(const DatePageState& state, int box, const Moment& now) {
    const Day ticked = Ticked_On(state, StartField, now);
    if (box == StartTomorrow)
        return ticked + 1;
    return NextWeekdayDay(now, ticked, Week_Of(state, StartNext), box - StartMonday);
}

CalendarDate Calendar_Start(const DatePageState& state, DateField field, const Moment& now) {
    CalendarDate date;
    const bool read = ParseUserDate(state.Dates[field], date.day, date.month, date.year, {},
                                    field == ExactField) == 0;
    if (read && date.year == 0)
        date.year = now.Year;
    if (!read || DateToDay(date.day, date.month, date.year) == NoDay)
        return {0, now.Month, now.Year};
    return date;
}
