// The date page as plain data: which tick clears which, how an exact date becomes text, and the way
// to the record and back, with what is refused.
#pragma once

#include "core/reminder.h"

#include <QString>

#include <array>
#include <limits>
#include <optional>

// The boxes by their index. The weekdays follow their Monday.
namespace date_box {
inline constexpr int EveryDay = 0;
inline constexpr int Monday = 1;
inline constexpr int Saturday = 6;
inline constexpr int Sunday = 7;
inline constexpr int Weeks = 8;
inline constexpr int DayOfMonth = 9;
inline constexpr int EveryXDays = 10;
inline constexpr int Today = 11;
inline constexpr int Tomorrow = 12;
inline constexpr int OnDate = 13;
inline constexpr int ExactMonday = 14;
inline constexpr int ExactSunday = 20;
inline constexpr int EveryYear = 21;
inline constexpr int AlwaysActive = 22;
inline constexpr int StartTomorrow = 23;
inline constexpr int StartOn = 24;
inline constexpr int StartMonday = 25;
inline constexpr int StartSunday = 31;
inline constexpr int Count = 32;
} // namespace date_box

// The choices between this and the next week, and the two dates that can be typed.
enum WeekOption { ExactThis = 0, ExactNext = 1, StartThis = 2, StartNext = 3 };
enum DateField { ExactField = 0, StartField = 1 };

// What the page shows.
struct DatePageState {
    std::array<bool, date_box::Count> Ticks{};
    std::array<bool, date_box::Count> Blocked{}; // weekdays that have passed
    QString Weeks;
    QString DayOfMonth;
    QString Days;
    std::array<QString, 2> Dates;      // by DateField
    std::array<bool, 4> WeekOptions{}; // by WeekOption
    // By DateField: the day on which a box was ticked that counts from it; 0 = not by hand.
    std::array<Day, 2> TickedOn{};

    bool operator==(const DatePageState&) const = default;
    bool& Tick(int box) { return Ticks[static_cast<std::size_t>(box)]; }
    bool Tick(int box) const { return Ticks[static_cast<std::size_t>(box)]; }
};

enum class TickOutcome { Taken, StartDateRefused };
enum class MakeEveryYear { No, Yes };

// After the user has ticked the box. StartDateRefused: the tick is off again, and the user has to
// be told.
TickOutcome Date_Option_Checked(DatePageState& state, int box, const Moment& now);
// After the user has removed the tick.
void Date_Option_Unchecked(DatePageState& state, int box, const Moment& now);
// After a click on "This:" or "Next:".
void Week_Option_Clicked(DatePageState& state, WeekOption option, const Moment& now);

// Moves the exact date into its field. False: there is none to move.
bool ExactDate_To_Field(DatePageState& state, MakeEveryYear make, const Moment& now);
// The first tick among the boxes of the exact date.
std::optional<int> Exact_Tick(const DatePageState& state);
// "Today", "Tomorrow" and the weekdays mean the day on which they were ticked.
// The Day of a box of the exact date other than "On:"; -1 when it had passed.
Day Exact_Day(const DatePageState& state, int box, const Moment& now);
// The same for a box of the start date.
Day Start_Day(const DatePageState& state, int box, const Moment& now);
// Where the calendar opens for a field's text; day 0: in the present month, with no day chosen.
CalendarDate Calendar_Start(const DatePageState& state, DateField field, const Moment& now);

// What a mark can stand around, by the mark's index.
enum class ErrorMark {
    Weeks = 0,
    DayOfMonth = 1, // has a place and is never shown
    Days = 2,
    ExactField = 3,
    ExactWeekdays = 4,
    StartField = 5,
    StartWeekdays = 6,
    HourRow = 7,
};

struct DateFault {
    QString Message;
    ErrorMark Mark = ErrorMark::Weeks;
};

inline constexpr Day StartDate_Failed = std::numeric_limits<Day>::min();

// What the record gave the page's fields. A field that still stands so is not checked: a limit
// refuses what was typed, never what was stored. Empty texts, of no record, never match.
struct StoredDate {
    QString WeeksText, DayOfMonthText, DaysText;
    std::array<QString, 2> DateTexts; // by DateField
    std::int16_t ReWeeks = 0;
    std::int16_t ReDays = 0;
    std::int32_t DayOfMonth = 0;
    std::uint8_t SRDay = 0;
    std::uint8_t SRMonth = 0;
    std::int16_t SRYear = 0;
    Day SRLongday = 0;
    Day ActivationDay = 0;
};
// The fields that show a value of the record.
StoredDate Stored_Date(const DatePageState& state, const ReminderClass& reminder);

// Day of the start date, 0 = none; StartDate_Failed fills the fault.
Day Get_Start_Date(const DatePageState& state, const StoredDate& stored, const Moment& now,
                   DateFault& fault);
// Nothing: saved. After a fault the record is left cleared until a later save succeeds.
std::optional<DateFault> Save_DateSetup(const DatePageState& state, const StoredDate& stored,
                                        ReminderClass& reminder, const Moment& now);

// The samples that a page without a reminder shows.
DatePageState Cleared_DatePage(const Moment& now);
DatePageState Load_DateSetup(const ReminderClass& reminder, const Moment& now);
// What the user has to be told of the record; mostly empty.
QString DateSetup_Warning(const ReminderClass& reminder);
