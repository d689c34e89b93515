#include "core/date_text.h"
#include "core_test.h"

#include <limits>

using namespace Qt::StringLiterals;

class DateText : public CoreTest {
protected:
    ~DateText() override { Global_DateFormat = u"mm/dd/yyyy"_s; }
};

TEST_F(DateText, A_Date_Is_Printed_In_The_Users_Pattern) {
    struct {
        QString pattern;
        std::int32_t day, month, year;
        bool noYear;
        QString text;
    } cases[] = {{u"mm/dd/yyyy"_s, 2, 1, 2005, false, u"01/02/2005"_s},
                 {u"DD.MM.YY"_s, 31, 12, 2026, false, u"31.12.26"_s},
                 {u"yyyy-mm-dd"_s, 9, 9, 2009, false, u"2009-09-09"_s},
                 {u"dd/mm/yyyy"_s, 0, 0, 0, true, u"00/00/----"_s},
                 {u"yy dd mm"_s, 5, 6, 0, true, u"-- 05 06"_s}};
    for (const auto& date : cases) {
        Global_DateFormat = date.pattern;
        EXPECT_EQ(FormatUserDate(date.day, date.month, date.year, date.noYear), date.text);
    }
    Global_DateFormat = u"dd/mm/yyyy"_s;
    EXPECT_EQ(DayToDateString(DateToDay(29, 2, 2100)), u"29/02/2100"_s);
    EXPECT_EQ(DayToDateString(1), u"01/01/2000"_s);
}

TEST_F(DateText, A_Date_Is_Read_In_The_Users_Pattern) {
    struct {
        QString pattern, text;
        bool allowNoYear;
        int result;
        std::int32_t day, month, year;
    } cases[] = {{u"mm/dd/yyyy"_s, u"1-2-2005"_s, false, 0, 2, 1, 2005},
                 {u"mm/dd/yyyy"_s, u" 1.2.05 "_s, false, 0, 2, 1, 2005},
                 {u"mm/dd/yyyy"_s, u"1//2/05/77"_s, false, 0, 2, 1, 2005},
                 {u"yy/mm/dd"_s, u"05/01/02"_s, false, 0, 2, 1, 2005},
                 {u"DD/MM/YYYY"_s, u"31/12/1999"_s, false, 0, 31, 12, 3999},
                 {u"dd/mm/yyyy"_s, u"31/12"_s, true, 0, 31, 12, 0},
                 {u"yyyy/mm/dd"_s, u"12/31"_s, true, 0, 31, 12, 0},
                 {u"dd/mm/yyyy"_s, u"31/12"_s, false, -1, 0, 0, 0},
                 {u"dd/mm/yyyy"_s, u"31"_s, true, -1, 0, 0, 0},
                 {u"dd/mm/yyyy"_s, u""_s, true, -1, 0, 0, 0},
                 {u"dd/mm/yyyy"_s, u"99999999999/1/1"_s, true, 0,
                  std::numeric_limits<std::int32_t>::max(), 1, 2001}};
    for (const auto& date : cases) {
        std::int32_t day = 0;
        std::int32_t month = 0;
        std::int32_t year = 0;
        const int result =
            ParseUserDate(date.text, day, month, year, date.pattern, date.allowNoYear);
        EXPECT_EQ(result, date.result) << date.text.toStdString();
        if (result == 0) {
            EXPECT_EQ((CalendarDate{day, month, year}),
                      (CalendarDate{date.day, date.month, date.year}))
                << date.text.toStdString();
        }
    }
    EXPECT_EQ(ParseUserDateToDay(u"02/29/2004"_s, QString()), DateToDay(29, 2, 2004));
    EXPECT_EQ(ParseUserDateToDay(u"02/29/2005"_s, QString()), -1);
    EXPECT_EQ(ParseUserDateToDay(u"02/29"_s, QString()), -1);
}

TEST_F(DateText, A_Day_And_Month_Are_Read_Part_By_Part) {
    struct {
        QString text, format;
        int result;
        std::int32_t day, month;
    } cases[] = {{u"3/12"_s, u"mm/dd"_s, 0, 12, 3},  {u"3/12"_s, u"dd/mm"_s, 0, 3, 12},
                 {u"x3/12"_s, u"dd/mm"_s, 0, 3, 12}, {u"3"_s, u"dd/mm"_s, -1, 0, 0},
                 {u"/12"_s, u"dd/mm"_s, -1, 0, 0},   {u"123/1"_s, u"dd/mm"_s, -1, 0, 0}};
    for (const auto& date : cases) {
        std::int32_t day = 9;
        std::int32_t month = 9;
        std::int32_t year = 9;
        EXPECT_EQ(ParseDayMonth(day, month, year, date.text, date.format), date.result);
        if (date.result == 0) {
            EXPECT_EQ((CalendarDate{day, month, year}), (CalendarDate{date.day, date.month, 0}));
        }
    }
    EXPECT_EQ(RemoveYearFromFormat(u"yyyy/mm/dd"_s), u"/mm/dd"_s);
    EXPECT_EQ(RemoveYearFromFormat(u"mm/dd/yy"_s), u"mm/dd"_s);
    EXPECT_EQ(RemoveYearFromFormat(u"mm/yyyy/dd"_s), u"mm/dd"_s);
}

TEST_F(DateText, A_Pattern_Needs_Day_Month_And_Year) {
    EXPECT_TRUE(IsValidDateFormat(u"DD.MM.YY"_s));
    EXPECT_FALSE(IsValidDateFormat(u"d/m/yyyy"_s));
    EXPECT_FALSE(IsValidDateFormat(u"dd/mm"_s));
    EXPECT_EQ(Default_DateFormat(u"DD.MM.yyyy"_s), u"dd.mm.yyyy"_s);
    EXPECT_EQ(Default_DateFormat(u"M/d/yyyy"_s), u"mm/dd/yyyy"_s);
}

TEST_F(DateText, Times_Are_Read_And_Printed) {
    struct {
        QString text;
        std::int32_t colon, hourMinute;
    } cases[] = {{u"13:05"_s, 785, -1},       {u" 0:0 "_s, 0, -1},
                 {u"24:00"_s, -1, -1},        {u"12:60"_s, -1, -1},
                 {u":30"_s, -1, -1},          {u"12:"_s, -1, -1},
                 {u"1 2:30"_s, -1, -1},       {u"12:30:00"_s, -1, -1},
                 {u"1h30m"_s, -1, 90},        {u" 2 H "_s, -1, 120},
                 {u"45m"_s, -1, 45},          {u"90"_s, -1, -1},
                 {u"1h30"_s, -1, 60},         {u"24h"_s, -1, -1},
                 {u"60m"_s, -1, -1},          {u"h"_s, -1, -1},
                 {QString(), -1, -1},         {u"30m1h"_s, -1, 90},
                 {u"99999999999h"_s, -1, -1}, {u"\u0663:05"_s, -1, -1}};
    for (const auto& time : cases) {
        EXPECT_EQ(ParseTime_Colon(time.text), time.colon) << time.text.toStdString();
        EXPECT_EQ(ParseTime_HM(time.text), time.hourMinute) << time.text.toStdString();
    }
    for (std::int32_t minute = 0; minute < 1440; ++minute) {
        ASSERT_EQ(ParseTime_Colon(MinutesToTime(minute)), minute);
        ASSERT_EQ(ParseTime_HM(MinutesToHM(minute)), minute);
    }
    EXPECT_EQ(MinutesToTime(65), u"01:05"_s);
    EXPECT_EQ(MinutesToHM(90), u"1h30m"_s);
    EXPECT_EQ(MinutesToHM(60), u"1h"_s);
    EXPECT_EQ(MinutesToHM(0), u"0m"_s);
}

TEST_F(DateText, Small_Texts_Read_As_The_Program_Prints_Them) {
    EXPECT_EQ(OrdinalText(2) + OrdinalText(3) + OrdinalText(21), u"2nd3rd21th"_s);
    EXPECT_EQ(DigitsOnly(u"2nd of 3\u0663"_s), u"23"_s);
    EXPECT_EQ(Global_MonthNames[9], u"September"_s);
    const Day today = Get_TodayDay();
    EXPECT_EQ(DayToFriendlyString(today), u"Today"_s);
    EXPECT_EQ(DayToFriendlyString(today + 1), u"Tomorrow"_s);
    // The names are those of the system, the order is not.
    EXPECT_TRUE(DayToFriendlyString(1).endsWith(u" 1 2000"_s));
    EXPECT_EQ(DayToFriendlyString(1).count(u','), 1);
}
