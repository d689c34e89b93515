// The private calendar of the reminders: Days, weeks and minutes, and the moment that a decision
// is made at.
//
// Day: 32-bit day number, 1 = Saturday 1 January 2000; -1 is "none". Serial: days since 1899-12-30.
// Minute: minutes since midnight, 0..1439. Weeks begin on Monday. Every year divisible by 4 is a
// leap year here, 2100 and the like included: that is meant.
#pragma once

#include "platform/clock.h"

#include <array>
#include <cstdint>

using Day = std::int32_t;
using Serial = std::int32_t;

// The minutes of all days up to a moment, counted on; wraps for clocks that nobody has.
using MinuteCount = std::uint32_t;

constexpr Day NoDay = -1;
constexpr std::int32_t MinutesOfDay = 1440;

// Everything that a rule asks of the clock, from one reading of it, so that no rule sees two sides
// of midnight.
struct Moment {
    // With a clock outside the years 2000..3000 the count of days just goes on: 0 and below, or
    // past the last Day of the year 3000.
    Day Today = 0;
    Serial TodaySerial = 0;
    std::int32_t Minute = 0;
    std::int32_t Year = 2000;
    std::int32_t Month = 1;      // 1..12
    std::int32_t DayOfMonth = 1; // 1..31
    std::int32_t Weekday = 0;    // 0 = Monday .. 6 = Sunday
    std::int32_t Week = 0;       // DayToWeek(Today)
    std::int32_t DaysInThisMonth = 31;
    float TimeFraction = 0; // time of day as a fraction of a day

    MinuteCount Start_OfDay() const {
        return static_cast<MinuteCount>(TodaySerial) * static_cast<MinuteCount>(MinutesOfDay);
    }
    MinuteCount Count() const { return Start_OfDay() + static_cast<MinuteCount>(Minute); }
};

// Reads the platform clock once.
Moment Read_Moment();
// The same for a given wall-clock time.
Moment Moment_Of(const platform::LocalTime& time);

extern std::array<std::int32_t, 13> Global_DaysInMonth; // index 1..12, February 28
// Serial minus Day, of the day on which Init_TimeRoutines ran; 36525 when the clock stood before
// 2000 then.
extern std::int32_t Global_DayBase;

// Fills the tables and sets Global_DayBase from the platform clock.
void Init_TimeRoutines();

Serial Get_TodaySerial();
Day Get_TodayDay();
std::int32_t Get_CurrentMinute();
float Get_TimeFraction();

std::int32_t HourToMinutes(std::int32_t hour, std::int32_t minute);
Serial DayToSerial(Day day);
Day SerialToDay(Serial serial);
// (Day + 4) \ 7: Day 3, Monday 3 January 2000, is the first of week 1.
std::int32_t DayToWeek(Day day);
// The Monday of the week.
Day WeekToDay(std::int32_t week);
// month 1..12; throws std::out_of_range otherwise.
std::int32_t DaysInMonth(std::int32_t month, std::int32_t year);
// -1 for a date outside the calendar (years 2000..3000). Day 0 of a month is the last of the one
// before.
Day DateToDay(std::int32_t day, std::int32_t month, std::int32_t year);

struct CalendarDate {
    std::int32_t day = 1;
    std::int32_t month = 1;
    std::int32_t year = 2000;
    bool operator==(const CalendarDate&) const = default;
};
// The way back from DateToDay, in the same calendar; any Day has a date.
CalendarDate DayToDate(Day day);

enum class WhichWeek { This, Next };
// weekday 0 = Monday .. 6 = Sunday, of the week of a day or the one after; -1 when it lies before
// that day.
Day NextWeekdayDay(const Moment& now, Day from, WhichWeek week, std::int32_t weekday);
