#include "core/time_routines.h"
#include "core_test.h"

#include <stdexcept>

using TimeRoutines = CoreTest;

// A calendar that goes from one day to the next and knows leap years as this program does.
TEST_F(TimeRoutines, Every_Day_Of_A_Thousand_Years_Has_The_Next_Number) {
    const int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    Day expected = 0;
    for (int year = 2000; year <= 3000; ++year) {
        for (int month = 1; month <= 12; ++month) {
            const int length = month == 2 && year % 4 == 0 ? 29 : lengths[month - 1];
            ASSERT_EQ(DateToDay(0, month, year), expected);
            ASSERT_EQ(DateToDay(length + 1, month, year), -1);
            for (int day = 1; day <= length; ++day) {
                ASSERT_EQ(DateToDay(day, month, year), ++expected) << day << month << year;
                ASSERT_EQ(DayToDate(expected), (CalendarDate{day, month, year}));
            }
        }
    }
    EXPECT_EQ(DateToDay(31, 12, 1999), -1);
    EXPECT_EQ(DateToDay(1, 1, 3001), -1);
    EXPECT_EQ(DateToDay(1, 13, 2005), -1);
    EXPECT_EQ(DateToDay(-1, 3, 2005), -1);
}

TEST_F(TimeRoutines, The_Calendar_Is_The_Real_One_Until_The_Leap_Day_That_Only_It_Has) {
    for (QDate date(2000, 1, 1); date <= QDate(2100, 1, 31); date = date.addDays(1)) {
        const Moment now = Moment_At(date, 754);
        ASSERT_EQ(now.Today, Counted_Day(date));
        ASSERT_EQ(now.TodaySerial, QDate(1899, 12, 30).daysTo(date));
        ASSERT_EQ(now.Weekday, date.dayOfWeek() - 1);
        ASSERT_EQ(WeekToDay(now.Week) + now.Weekday, now.Today);
        ASSERT_EQ(now.DaysInThisMonth, date.daysInMonth());
    }
    EXPECT_EQ(DateToDay(1, 3, 2100) - DateToDay(28, 2, 2100), 2);
    EXPECT_THROW(DaysInMonth(13, 2000), std::out_of_range);
    EXPECT_THROW(DaysInMonth(0, 2000), std::out_of_range);
}

TEST_F(TimeRoutines, A_Day_Goes_On_To_The_Next_Also_Outside_The_Calendar) {
    struct {
        QDate first;
        Day today;
    } cases[] = {{{1970, 1, 1}, -10956}, {{1999, 12, 30}, -1}, {{3000, 3, 1}, 365311}};
    for (const auto& known : cases) {
        EXPECT_EQ(Moment_At(known.first, 0).Today, known.today);
        for (int days = 0; days < 800; ++days)
            ASSERT_EQ(Moment_At(known.first.addDays(days), 0).Today, known.today + days);
    }
}

TEST_F(TimeRoutines, The_Base_Of_The_Days_Is_Taken_Once) {
    struct {
        int year, month, day;
        std::int32_t base;
    } cases[] = {{1970, 1, 1, 36525}, {1999, 12, 31, 36525}, {2000, 1, 1, 36525},
                 {2026, 3, 2, 36525}, {2100, 3, 1, 36524},   {2300, 3, 1, 36522}};
    for (const auto& now : cases) {
        clock.Set(now.year, now.month, now.day);
        Init_TimeRoutines();
        EXPECT_EQ(Global_DayBase, now.base) << now.year;
        EXPECT_EQ(DayToSerial(Get_TodayDay()), Get_TodaySerial());
        EXPECT_EQ(SerialToDay(Get_TodaySerial()), Get_TodayDay());
    }
}

TEST_F(TimeRoutines, The_Time_Of_Day_Drops_The_Seconds_Only_From_The_Minute) {
    clock.Set(2026, 3, 2, 18, 30, 45);
    EXPECT_EQ(Get_CurrentMinute(), 1110);
    EXPECT_FLOAT_EQ(Get_TimeFraction(), 66645.0F / 86400.0F);
    EXPECT_EQ(HourToMinutes(23, 59), 1439);
}

TEST_F(TimeRoutines, A_Weekday_Of_This_Week_Is_Gone_When_It_Has_Passed) {
    clock.Set(2026, 3, 5); // a Thursday
    const Moment now = Read_Moment();
    using enum WhichWeek;
    EXPECT_EQ(NextWeekdayDay(now, now.Today, This, 2), -1);
    EXPECT_EQ(NextWeekdayDay(now, now.Today, This, 3), now.Today);
    EXPECT_EQ(NextWeekdayDay(now, now.Today - 1, This, 2), now.Today - 1);
    EXPECT_EQ(NextWeekdayDay(now, now.Today, This, 6), now.Today + 3);
    EXPECT_EQ(NextWeekdayDay(now, now.Today, Next, 0), now.Today + 4);
    EXPECT_EQ(NextWeekdayDay(now, now.Today - 4, Next, 6), now.Today + 3);
}
