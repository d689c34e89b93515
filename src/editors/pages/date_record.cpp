#include "core/date_text.h"
#include "editors/pages/date_rules.h"

using namespace Qt::StringLiterals;
using namespace date_box;

namespace {

constexpr int LargestInterval = 99; // weeks or days
constexpr int LargestDayOfMonth = 31;

// A whole number from 1 to the limit; 0 for anything else.
int Number_UpTo(const QString& text, int limit) {
    bool isNumber = false;
    const int number = text.trimmed().toInt(&isNumber);
    return isNumber && number >= 1 && number <= limit ? number : 0;
}

std::int32_t Months_Since2000(std::int32_t year, std::int32_t month) {
    return (year - 2000) * 12 + month;
}

void Clear_DateSetup(ReminderClass& reminder) {
    reminder.Set_Rs_Rdays({});
    reminder.rs_REveryDay = false;
    reminder.rs_ReWeeks = 0;
    reminder.rs_ReMonths = 0;
    reminder.rs_ReDays = 0;
    reminder.rs_SRDay = 0;
    reminder.rs_SRMonth = 0;
    reminder.rs_SRYear = 0;
    reminder.rs_SRLongday = 0;
    reminder.rs_ActivationDay = 0;
    reminder.rs_REDayOfMonth = 0;
}

void Save_EveryDay(ReminderClass& reminder) {
    reminder.rs_DateType_Used = DateType::EveryDay;
    reminder.rs_REveryDay = true;
}

// The walk ends at Saturday, and that is meant: a Sunday ticked on this page is not saved.
std::array<std::uint8_t, 8> Ticked_Weekdays(const DatePageState& state) {
    std::array<std::uint8_t, 8> days{};
    for (int box = Monday; box <= Saturday; ++box)
        days[static_cast<std::size_t>(box - Monday)] = state.Tick(box) ? 1 : 0;
    return days;
}

bool Stands(const QString& text, const QString& stored) {
    return !stored.isEmpty() && text == stored;
}

std::optional<DateFault> Save_Weekdays(const DatePageState& state, const StoredDate& stored,
                                       ReminderClass& reminder) {
    reminder.Set_Rs_Rdays(Ticked_Weekdays(state));
    reminder.rs_DateType_Used = DateType::Weekdays;
    if (!state.Tick(Weeks))
        return std::nullopt;
    reminder.rs_ReWeeks =
        Stands(state.Weeks, stored.WeeksText)
            ? stored.ReWeeks
            : static_cast<std::int16_t>(Number_UpTo(state.Weeks, LargestInterval));
    if (reminder.rs_ReWeeks == 0)
        return DateFault{u"Invalid Every X weeks value"_s, ErrorMark::Weeks};
    return std::nullopt;
}

// Days and the day of the month share one message and one mark: that is meant.
DateFault Invalid_Days() {
    return {u"Invalid Every X days value"_s, ErrorMark::Days};
}

std::optional<DateFault> Save_EveryXDays(const DatePageState& state, const StoredDate& stored,
                                         ReminderClass& reminder) {
    const int days = Stands(state.Days, stored.DaysText) ? stored.ReDays
                                                         : Number_UpTo(state.Days, LargestInterval);
    if (days == 0)
        return Invalid_Days();
    reminder.rs_ReDays = static_cast<std::int16_t>(days);
    reminder.rs_DateType_Used = DateType::EveryXDays;
    return std::nullopt;
}

std::optional<DateFault> Save_DayOfMonth(const DatePageState& state, const StoredDate& stored,
                                         ReminderClass& reminder) {
    const int day = Stands(state.DayOfMonth, stored.DayOfMonthText)
                        ? stored.DayOfMonth
                        : Number_UpTo(DigitsOnly(state.DayOfMonth), LargestDayOfMonth);
    if (day == 0)
        return Invalid_Days();
    reminder.rs_REDayOfMonth = day;
    reminder.rs_DateType_Used = DateType::DayOfMonth;
    return std::nullopt;
}

// A yearly date's Day is that of the present year, where there is one.
void Save_StoredDate(const StoredDate& stored, ReminderClass& reminder, const Moment& now) {
    const Day thisYear =
        stored.SRYear == 0 ? DateToDay(stored.SRDay, stored.SRMonth, now.Year) : NoDay;
    reminder.Set_ExactDate({stored.SRDay, stored.SRMonth, stored.SRYear},
                           thisYear == NoDay ? stored.SRLongday : thisYear);
}

// A text without a year is the same date every year, whether "Every year" is ticked or not.
std::optional<DateFault> Save_TypedDate(const DatePageState& state, const StoredDate& stored,
                                        ReminderClass& reminder, const Moment& now) {
    CalendarDate date;
    const QString& text = state.Dates[ExactField];
    if (Stands(text, stored.DateTexts[ExactField])) {
        Save_StoredDate(stored, reminder, now);
        return std::nullopt;
    }
    const bool read = ParseUserDate(text, date.day, date.month, date.year, {}, true) == 0;
    const std::int32_t year = date.year == 0 ? now.Year : date.year;
    const Day day = read ? DateToDay(date.day, date.month, year) : NoDay;
    if (day == NoDay)
        return DateFault{u"Invalid (Days setup) Exact date: \r\n"_s + text, ErrorMark::ExactField};
    reminder.Set_ExactDate(date.year == 0 ? date : DayToDate(day), day);
    return std::nullopt;
}

std::optional<DateFault> Save_ExactDate(const DatePageState& state, const StoredDate& stored,
                                        int box, ReminderClass& reminder, const Moment& now) {
    if (box == OnDate)
        return Save_TypedDate(state, stored, reminder, now);
    const Day day = Exact_Day(state, box, now);
    if (day == NoDay)
        return DateFault{u"Selected (Days setup->Exact date) day is invalid"_s,
                         ErrorMark::ExactWeekdays};
    reminder.Set_ExactDate(DayToDate(day), day);
    return std::nullopt;
}

std::optional<DateFault> Save_DateRule(const DatePageState& state, const StoredDate& stored,
                                       ReminderClass& reminder, const Moment& now) {
    if (!state.Tick(EveryDay)) {
        if (Ticked_Weekdays(state) != std::array<std::uint8_t, 8>{})
            return Save_Weekdays(state, stored, reminder);
        if (state.Tick(EveryXDays))
            return Save_EveryXDays(state, stored, reminder);
        if (state.Tick(date_box::DayOfMonth))
            return Save_DayOfMonth(state, stored, reminder);
        if (const std::optional<int> box = Exact_Tick(state))
            return Save_ExactDate(state, stored, *box, reminder, now);
    }
    // Nothing ticked, or Sunday alone, is every day as well.
    Save_EveryDay(reminder);
    return std::nullopt;
}

// A new start date begins the cycles of days and weeks again.
void Start_Cycles(const DatePageState& state, ReminderClass& reminder, Day before,
                  const Moment& now) {
    const Day start = reminder.rs_ActivationDay;
    if (start != before) {
        const CalendarDate date =
            start == 0 ? CalendarDate{now.DayOfMonth, now.Month, now.Year} : DayToDate(start);
        reminder.rs_FirstRunDate = start == 0 ? now.Today : start;
        reminder.rs_wDaysArray_LWeek = DayToWeek(reminder.rs_FirstRunDate);
        reminder.rs_wDaysArray_LMonth = Months_Since2000(date.year, date.month);
    } else if (start == 0 && state.Tick(Weeks) && reminder.rs_wDaysArray_LWeek == 0) {
        reminder.rs_wDaysArray_LWeek = now.Week;
    }
}

} // namespace

Day Get_Start_Date(const DatePageState& state, const StoredDate& stored, const Moment& now,
                   DateFault& fault) {
    if (state.Tick(AlwaysActive))
        return 0;
    Day start = 0;
    if (state.Tick(StartTomorrow))
        start = Start_Day(state, StartTomorrow, now);
    if (state.Tick(StartOn)) {
        const QString& text = state.Dates[StartField];
        start = Stands(text, stored.DateTexts[StartField]) ? stored.ActivationDay
                                                           : ParseUserDateToDay(text, {});
        if (start == NoDay) {
            fault = {u"Invalid (Days setup) start date: \r\n"_s + text, ErrorMark::StartField};
            return StartDate_Failed;
        }
    }
    for (int box = StartMonday; box <= StartSunday; ++box) {
        if (!state.Tick(box))
            continue;
        start = Start_Day(state, box, now);
        if (start == NoDay) {
            fault = {u"Selected (days setup) start day is invalid"_s, ErrorMark::StartWeekdays};
            return StartDate_Failed;
        }
    }
    return start;
}

StoredDate Stored_Date(const DatePageState& state, const ReminderClass& reminder) {
    StoredDate stored;
    stored.ReWeeks = reminder.rs_ReWeeks;
    stored.ReDays = reminder.rs_ReDays;
    stored.DayOfMonth = reminder.rs_REDayOfMonth;
    stored.SRDay = reminder.rs_SRDay;
    stored.SRMonth = reminder.rs_SRMonth;
    stored.SRYear = reminder.rs_SRYear;
    stored.SRLongday = reminder.rs_SRLongday;
    stored.ActivationDay = reminder.rs_ActivationDay;
    if (stored.ReWeeks != 0)
        stored.WeeksText = state.Weeks;
    if (stored.DayOfMonth != 0)
        stored.DayOfMonthText = state.DayOfMonth;
    if (stored.ReDays != 0)
        stored.DaysText = state.Days;
    if (stored.SRLongday != 0 && state.Tick(OnDate))
        stored.DateTexts[ExactField] = state.Dates[ExactField];
    if (stored.ActivationDay != 0 && state.Tick(StartOn))
        stored.DateTexts[StartField] = state.Dates[StartField];
    return stored;
}

std::optional<DateFault> Save_DateSetup(const DatePageState& state, const StoredDate& stored,
                                        ReminderClass& reminder, const Moment& now) {
    const Day before = reminder.rs_ActivationDay;
    Clear_DateSetup(reminder);
    if (auto fault = Save_DateRule(state, stored, reminder, now))
        return fault;
    DateFault fault;
    const Day start = Get_Start_Date(state, stored, now, fault);
    if (start == StartDate_Failed)
        return fault;
    reminder.rs_ActivationDay = start;
    Start_Cycles(state, reminder, before, now);
    return std::nullopt;
}

DatePageState Cleared_DatePage(const Moment& now) {
    DatePageState state;
    state.Weeks = u"2"_s;
    state.DayOfMonth = u"2nd"_s;
    state.Days = u"2"_s;
    state.Dates.fill(DayToDateString(now.Today));
    return state;
}

// The boxes "Today", "Tomorrow" and the weekdays of a date are never ticked here: they are ways to
// enter a date, and the record holds the date itself.
DatePageState Load_DateSetup(const ReminderClass& reminder, const Moment& now) {
    DatePageState state = Cleared_DatePage(now);
    state.Tick(EveryDay) = reminder.rs_REveryDay;
    const std::array<std::uint8_t, 8> days = reminder.Get_Rs_Rdays();
    for (int box = Monday; box <= Sunday; ++box)
        state.Tick(box) = days[static_cast<std::size_t>(box - Monday)] != 0;
    if (reminder.rs_ReWeeks != 0) {
        state.Tick(Weeks) = true;
        state.Weeks = QString::number(reminder.rs_ReWeeks);
    }
    if (reminder.rs_ReDays != 0) {
        state.Tick(EveryXDays) = true;
        state.Days = QString::number(reminder.rs_ReDays);
    }
    if (reminder.rs_REDayOfMonth != 0) {
        state.Tick(date_box::DayOfMonth) = true;
        state.DayOfMonth = OrdinalText(reminder.rs_REDayOfMonth);
    }
    if (reminder.rs_SRLongday != 0) {
        state.Tick(OnDate) = true;
        state.Tick(EveryYear) = reminder.rs_SRYear == 0;
        state.Dates[ExactField] =
            FormatUserDate(reminder.rs_SRDay, reminder.rs_SRMonth, reminder.rs_SRYear, true);
    }
    if (reminder.rs_ActivationDay != 0) {
        state.Tick(StartOn) = true;
        state.Dates[StartField] = DayToDateString(reminder.rs_ActivationDay);
    } else {
        state.Tick(AlwaysActive) = true;
    }
    return state;
}

QString DateSetup_Warning(const ReminderClass& reminder) {
    if (reminder.rs_ReMonths == 0)
        return {};
    return u"Every X months option is no longer supported this version of Tockly.\r\n"_s
           u"Please select another date"_s;
}
