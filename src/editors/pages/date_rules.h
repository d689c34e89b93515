// The boxes of the date page: which tick clears which, and how an exact date becomes text.
#pragma once

#include "core/time_routines.h"

#include <QString>

#include <array>
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
    QString Text1;                               // every x weeks
    QString Text2;                               // day of the month
    QString Text3;                               // every x days
    std::array<QString, 2> Text4;                // by DateField
    std::array<bool, 4> Option1{};               // by WeekOption
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
bool ExactDate_To_Text4(DatePageState& state, MakeEveryYear make, const Moment& now);
// The first tick among the boxes of the exact date.
std::optional<int> Exact_Tick(const DatePageState& state);
// "Today", "Tomorrow" and the weekdays mean the day on which they were ticked.
// The Day of a box of the exact date other than "On:"; -1 when it had passed.
Day Exact_Day(const DatePageState& state, int box, const Moment& now);
// The same for a box of the start date.
Day Start_Day(const DatePageState& state, int box, const Moment& now);
// Where the calendar opens for a field's text; day 0: in the present month, with no day chosen.
CalendarDate Calendar_Start(const DatePageState& state, DateField field, const Moment& now);
