#include "core/time_routines.h"

#include <algorithm>
#include <chrono>
#include <limits>
#include <stdexcept>

std::array<std::int32_t, 13> Global_DaysInMonth{0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

namespace {

constexpr std::int32_t FirstYear = 2000;
constexpr std::int32_t LastYear = 3000;
constexpr Serial SerialOf1970 = 25569;
constexpr std::int32_t BaseOf2000 = 36525; // Serial of 1 January 2000 minus its Day
constexpr std::int64_t DaysOfFourYears = 1461;

Serial Serial_Of(std::int32_t year, std::int32_t month, std::int32_t day) {
    using namespace std::chrono;
    const year_month_day date{std::chrono::year{year},
                              std::chrono::month{static_cast<unsigned>(month)},
                              std::chrono::day{static_cast<unsigned>(day)}};
    return static_cast<Serial>(sys_days{date}.time_since_epoch().count()) + SerialOf1970;
}

Day Today_Of(const platform::LocalTime& time, Serial serial) {
    if (time.year < FirstYear)
        return serial - BaseOf2000;
    if (time.year <= LastYear)
        return DateToDay(time.day, time.month, time.year);
    return DateToDay(31, 12, LastYear) + serial - Serial_Of(LastYear, 12, 31);
}

std::int32_t To_Long(std::int64_t value) {
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(
        value, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()));
}

} // namespace

std::int32_t Global_DayBase = BaseOf2000;

Moment Moment_Of(const platform::LocalTime& time) {
    Moment now;
    now.TodaySerial = Serial_Of(time.year, time.month, time.day);
    now.Today = Today_Of(time, now.TodaySerial);
    now.Minute = HourToMinutes(time.hour, time.minute);
    now.Year = time.year;
    now.Month = time.month;
    now.DayOfMonth = time.day;
    // Serial 2 is Monday 1 January 1900.
    now.Weekday = ((now.TodaySerial - 2) % 7 + 7) % 7;
    now.Week = DayToWeek(now.Today);
    now.DaysInThisMonth = DaysInMonth(time.month, time.year);
    now.TimeFraction = static_cast<float>(now.Minute * 60 + time.second) / 86400.0F;
    return now;
}

Moment Read_Moment() {
    return Moment_Of(platform::Clock::Get().Now());
}

void Init_TimeRoutines() {
    Global_DaysInMonth = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const Moment now = Read_Moment();
    Global_DayBase = now.TodaySerial - now.Today;
}

Serial Get_TodaySerial() {
    return Read_Moment().TodaySerial;
}

Day Get_TodayDay() {
    return Read_Moment().Today;
}

std::int32_t Get_CurrentMinute() {
    return Read_Moment().Minute;
}

float Get_TimeFraction() {
    return Read_Moment().TimeFraction;
}

std::int32_t HourToMinutes(std::int32_t hour, std::int32_t minute) {
    return To_Long(std::int64_t{hour} * 60 + minute);
}

Serial DayToSerial(Day day) {
    return To_Long(std::int64_t{day} + Global_DayBase);
}

Day SerialToDay(Serial serial) {
    return To_Long(std::int64_t{serial} - Global_DayBase);
}

std::int32_t DayToWeek(Day day) {
    return static_cast<std::int32_t>((std::int64_t{day} + 4) / 7);
}

Day WeekToDay(std::int32_t week) {
    return To_Long(std::int64_t{week} * 7 - 4);
}

std::int32_t DaysInMonth(std::int32_t month, std::int32_t year) {
    if (month < 1 || month > 12)
        throw std::out_of_range("month");
    if (month == 2 && year % 4 == 0)
        return 29;
    return Global_DaysInMonth[static_cast<std::size_t>(month)];
}

Day DateToDay(std::int32_t day, std::int32_t month, std::int32_t year) {
    if (month < 1 || month > 12 || year < FirstYear || year > LastYear)
        return NoDay;
    if (day < 0 || day > DaysInMonth(month, year))
        return NoDay;
    // The leap days of the years before this one: 2000 itself is one of them.
    std::int32_t result = (year - FirstYear) * 365 + (year - FirstYear + 3) / 4;
    for (std::int32_t before = 1; before < month; ++before)
        result += DaysInMonth(before, year);
    return result + day;
}

CalendarDate DayToDate(Day day) {
    const std::int64_t index = std::int64_t{day} - 1;
    std::int64_t cycle = index / DaysOfFourYears;
    std::int64_t rest = index % DaysOfFourYears;
    if (rest < 0) {
        rest += DaysOfFourYears;
        --cycle;
    }
    const std::int64_t yearOfCycle = rest < 366 ? 0 : (rest - 1) / 365;
    rest -= yearOfCycle == 0 ? 0 : yearOfCycle * 365 + 1;

    CalendarDate date;
    date.year = static_cast<std::int32_t>(FirstYear + cycle * 4 + yearOfCycle);
    while (rest >= DaysInMonth(date.month, date.year))
        rest -= DaysInMonth(date.month++, date.year);
    date.day = static_cast<std::int32_t>(rest) + 1;
    return date;
}

Day NextWeekdayDay(const Moment& now, Day from, WhichWeek week, std::int32_t weekday) {
    const std::int32_t present = ((now.Weekday + from - now.Today) % 7 + 7) % 7;
    if (week == WhichWeek::This && present > weekday)
        return NoDay;
    return from + weekday - present + (week == WhichWeek::Next ? 7 : 0);
}
