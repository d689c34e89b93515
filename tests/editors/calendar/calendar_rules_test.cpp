#include "core/time_routines.h"
#include "editors/calendar/calendar_rules.h"
#include "support/fake_clock.h"

#include <gtest/gtest.h>

#include <chrono>

using namespace Qt::StringLiterals;

TEST(CalendarRules, EachMonthUntilTheEndOfTheCenturyStandsAsTheCalendarSays) {
    FakeClock clock;
    Init_TimeRoutines();
    for (int year = 2000; year <= 2099; ++year)
        for (unsigned month = 1; month <= 12; ++month) {
            const std::chrono::year_month first{std::chrono::year(year), std::chrono::month(month)};
            const std::chrono::weekday weekday{std::chrono::sys_days(first / 1)};
            const auto last = std::chrono::year_month_day_last(first / std::chrono::last).day();
            EXPECT_EQ(First_DayCell(int(month), year), int(weekday.iso_encoding()) - 1)
                << year << '/' << month;
            EXPECT_EQ(Days_OfMonth(int(month), year), int(unsigned(last))) << year << '/' << month;
        }
    // A leap year of this calendar alone.
    EXPECT_EQ(Days_OfMonth(2, 2100), 29);
}

TEST(CalendarRules, TheYearBoxOffersFiveYearsAheadAndIsReadByItsLeadingDigits) {
    EXPECT_EQ(Offered_Years(2003),
              QStringList({u"2000"_s, u"2001"_s, u"2002"_s, u"2003"_s, u"2004"_s, u"2005"_s,
                           u"2006"_s, u"2007"_s, u"2008"_s}));
    EXPECT_TRUE(Offered_Years(1990).isEmpty());
    const std::pair<const char*, int> typed[] = {{" 2008 ", 2008}, {"2008x", 2008},
                                                 {"", 0},          {"x2008", 0},
                                                 {"-2008", 0},     {"20080000000000", 200800}};
    for (const auto& [text, year] : typed)
        EXPECT_EQ(Typed_Year(QString::fromLatin1(text)), year) << text;
    for (const int year : {1999, 3001, 0})
        EXPECT_FALSE(Is_CalendarMonth(1, year));
    EXPECT_TRUE(Is_CalendarMonth(12, 3000));
    EXPECT_FALSE(Is_CalendarMonth(13, 2050));
}

TEST(CalendarRules, AWindowStandsAtTheRightOfAnotherOrAtItsLeft) {
    const QSize window(200, 220);
    const QRect screen(1024, 0, 800, 600);
    EXPECT_EQ(Place_Beside({1124, 50, 300, 300}, window, screen), QPoint(1428, 50));
    EXPECT_EQ(Place_Beside({1424, 50, 300, 300}, window, screen), QPoint(1220, 50));
}
