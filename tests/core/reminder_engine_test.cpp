#include "core_test.h"

#include <algorithm>
#include <functional>
#include <map>
#include <stdexcept>

namespace {

constexpr int Noon = 720;

// A kind of schedule, and the days that it asks for, found by looking at each date alone.
struct DateRule {
    const char* name;
    std::function<void(ReminderClass&)> set;
    std::function<bool(QDate)> matches;
    bool isInEveryYear = true;
};

const QDate firstDay(2019, 11, 20); // a Wednesday; the ten years from here hold three leap years

// Weeks since the first Monday of the calendar.
int Week_Of(QDate date) {
    return static_cast<int>(QDate(2000, 1, 3).daysTo(date)) / 7;
}

void Set_Weekdays(ReminderClass& reminder, std::array<std::uint8_t, 8> days, std::int16_t weeks) {
    reminder.rs_DateType_Used = DateType::Weekdays;
    reminder.Set_Rs_Rdays(days);
    reminder.rs_ReWeeks = weeks;
}

void Set_YearlyDate(ReminderClass& reminder, std::uint8_t day, std::uint8_t month) {
    reminder.rs_DateType_Used = DateType::ExactDate;
    reminder.rs_SRDay = day;
    reminder.rs_SRMonth = month;
}

void Set_DayOfMonth(ReminderClass& reminder, std::int32_t day) {
    reminder.rs_DateType_Used = DateType::DayOfMonth;
    reminder.rs_REDayOfMonth = day;
}

const DateRule rules[] = {
    {"every day", [](ReminderClass& r) { r.rs_REveryDay = true; }, [](QDate) { return true; }},
    {"neither every day nor anything else", [](ReminderClass&) {}, [](QDate) { return false; }},
    {"Mondays and Sundays",
     [](ReminderClass& r) {
         Set_Weekdays(r, {1, 0, 0, 0, 0, 0, 1}, 0);
     },
     [](QDate d) { return d.dayOfWeek() == 1 || d.dayOfWeek() == 7; }},
    {"Thursdays of every third week",
     [](ReminderClass& r) {
         Set_Weekdays(r, {0, 0, 0, 1}, 3);
         r.rs_wDaysArray_LWeek = DayToWeek(Counted_Day(firstDay));
     },
     [](QDate d) { return d.dayOfWeek() == 4 && (Week_Of(d) - Week_Of(firstDay)) % 3 == 0; }},
    {"every fifth day",
     [](ReminderClass& r) {
         r.rs_DateType_Used = DateType::EveryXDays;
         r.rs_ReDays = 5;
         r.rs_FirstRunDate = Counted_Day(firstDay.addDays(-3));
     },
     [](QDate d) { return firstDay.addDays(-3).daysTo(d) % 5 == 0; }},
    {"24 December of every year", [](ReminderClass& r) { Set_YearlyDate(r, 24, 12); },
     [](QDate d) { return d.month() == 12 && d.day() == 24; }},
    {"29 February of every year", [](ReminderClass& r) { Set_YearlyDate(r, 29, 2); },
     [](QDate d) { return d.month() == 2 && d.day() == 29; }, false},
    {"1 March 2025",
     [](ReminderClass& r) {
         Set_YearlyDate(r, 1, 3);
         r.rs_SRYear = 2025;
         r.rs_SRLongday = Counted_Day(QDate(2025, 3, 1));
     },
     [](QDate d) { return d == QDate(2025, 3, 1); }},
    {"the 31st or the last of the month", [](ReminderClass& r) { Set_DayOfMonth(r, 31); },
     [](QDate d) { return d.day() == d.daysInMonth(); }},
    {"the 30th or the last of February", [](ReminderClass& r) { Set_DayOfMonth(r, 30); },
     [](QDate d) { return d.day() == std::min(30, d.daysInMonth()); }},
};

ReminderClass New_Reminder(const DateRule& rule) {
    ReminderClass reminder;
    reminder.rs_Enabled = true;
    reminder.AddNewHourSetup({-1, Noon, 0, 0});
    rule.set(reminder);
    return reminder;
}

} // namespace

using ReminderEngine = CoreTest;

TEST_F(ReminderEngine, Each_Kind_Fires_Once_On_Each_Of_Its_Days_Of_Ten_Years) {
    const std::pair<int, bool> checks[] = {{0, false},    {Noon - 1, false}, {Noon, true},
                                           {Noon, false}, {Noon + 5, false}, {Noon + 6, false}};
    for (const DateRule& rule : rules) {
        for (const int startDate : {-1, 0, 400}) {
            ReminderClass reminder = New_Reminder(rule);
            const QDate start = firstDay.addDays(startDate);
            if (startDate >= 0)
                reminder.rs_ActivationDay = Counted_Day(start);
            for (QDate day = firstDay; day < firstDay.addYears(10); day = day.addDays(1)) {
                // The start date itself does not count.
                const bool fires = rule.matches(day) && (startDate < 0 || day > start);
                for (const auto& [minute, isFirst] : checks)
                    ASSERT_EQ(reminder.Engine_CheckRunReminder(Moment_At(day, minute)),
                              fires && isFirst)
                        << rule.name << day.toString(Qt::ISODate).toStdString() << minute;
            }
        }
    }
}

TEST_F(ReminderEngine, The_Run_Dates_Are_The_Nearest_Days_Of_The_Kind) {
    for (const DateRule& rule : rules) {
        std::vector<Day> days{-1};
        for (QDate day(2016, 1, 1); day < QDate(2032, 1, 1); day = day.addDays(1)) {
            if (rule.matches(day))
                days.push_back(Counted_Day(day));
        }
        ReminderClass reminder = New_Reminder(rule);
        for (QDate day = firstDay.addDays(30); day < firstDay.addYears(10); day = day.addDays(1)) {
            const Moment now = Moment_At(day, 0);
            const auto next = std::lower_bound(days.begin(), days.end(), now.Today);
            Day after = next == days.end() ? -1 : *next;
            Day before = *(next - 1);
            if (!rule.isInEveryYear) {
                // Looked for in this year and the next; as a past date it counts only in its year.
                after = after <= Counted_Day(QDate(day.year() + 1, 12, 31)) ? after : -1;
                before = before >= Counted_Day(QDate(day.year(), 1, 1)) ? before : -1;
            }
            ASSERT_EQ(reminder.GetNext_RunDate(now), after)
                << rule.name << day.toString(Qt::ISODate).toStdString();
            ASSERT_EQ(reminder.GetPrevious_RunDate(now), before)
                << rule.name << day.toString(Qt::ISODate).toStdString();
        }
    }
}

TEST_F(ReminderEngine, Each_Form_Of_Hours_Fires_In_Its_Minutes) {
    struct {
        const char* name;
        std::vector<HourSetup> setups;
        int from, to, step; // minutes of the checks
        std::vector<int> fires;
    } cases[] = {
        {"at", {{-1, 600, 0, 0}}, 0, 1439, 1, {600}},
        {"at, asleep until its last minute", {{-1, 600, 0, 0}}, 605, 700, 1, {605}},
        {"at, asleep for too long", {{-1, 600, 0, 0}}, 606, 1439, 1, {}},
        {"at midnight", {{-1, 0, 0, 0}}, 0, 10, 1, {0}},
        {"switched off", {{0, 600, 0, 0}, {1, 601, 0, 0}}, 0, 1439, 1, {}},
        {"two six minutes apart", {{-1, 600, 0, 0}, {-1, 606, 0, 0}}, 0, 1439, 1, {600, 606}},
        {"every 90 minutes", {{-1, 480, 750, 90}}, 0, 1439, 1, {480, 570, 660, 750}},
        {"every 90, asked late", {{-1, 480, 780, 90}}, 500, 1439, 1, {500, 590, 680, 770}},
        {"every 60 minutes, asked each 25", {{-1, 0, 200, 60}}, 0, 300, 25, {0, 75, 150}},
        {"an interval that ends at 0", {{-1, 480, 0, 90}}, 0, 1439, 1, {}},
        {"an interval one longer than its start", {{-1, 4, 20, 5}}, 0, 100, 1, {4, 9, 14, 19}},
        {"at start-up", {{-1, -1, 0, 0}}, 33, 1439, 1, {33}},
        {"from start-up every 30 minutes", {{-1, -1, 130, 30}}, 50, 1439, 1, {50, 80, 110}},
        {"from start-up, but started too late", {{-1, -1, 130, 30}}, 131, 1439, 1, {}},
        {"nonsense", {{-1, 600, 900, -5}, {-1, -1, 900, -5}, {-1, 32767, 0, 0}}, 0, 1439, 1, {}},
    };
    for (const auto& form : cases) {
        ReminderClass reminder;
        reminder.rs_Enabled = reminder.rs_REveryDay = true;
        for (const HourSetup& setup : form.setups)
            reminder.AddNewHourSetup(setup);
        for (int day = 0; day < 2; ++day) {
            std::vector<int> fires;
            for (int minute = form.from; minute <= form.to; minute += form.step) {
                if (reminder.Engine_CheckRunReminder(Moment_At(firstDay.addDays(day), minute)))
                    fires.push_back(minute);
            }
            EXPECT_EQ(fires, form.fires) << form.name;
        }
    }
}

// Asked once a second, as the program asks.
TEST_F(ReminderEngine, Times_Less_Than_Six_Minutes_Apart_Fire_Once_More_Each) {
    struct {
        const char* name;
        std::vector<std::int16_t> minutes;
        int from; // the first check, in seconds of the hour from 10:00 on
        std::vector<int> fires;
        std::vector<std::pair<int, int>> jumps{}; // at this second the clock goes to that one
    } cases[] = {
        {"two", {600, 603}, -60, {0, 180, 181}},
        {"the later one first", {603, 600}, -60, {0, 180, 181}},
        {"three", {602, 604, 600}, -60, {0, 120, 121, 240, 241}},
        {"the same minute twice", {600, 600, 603, 600}, -60, {0, 180, 181}},
        {"six minutes apart", {600, 606}, -60, {0, 360}},
        {"both within one check", {600, 603}, 200, {200, 201}},
        {"asleep while the first would repeat", {600, 605}, -60, {0, 300}, {{300, 359}}},
        {"a clock that goes back", {600, 603}, -60, {0, 180, 181}, {{190, -10}}},
        {"back before the repeat", {600, 603}, -60, {0, 180}, {{180, -10}}},
    };
    for (const auto& times : cases) {
        ReminderClass reminder;
        reminder.rs_Enabled = reminder.rs_REveryDay = true;
        for (const std::int16_t minute : times.minutes)
            reminder.AddNewHourSetup({-1, minute, 0, 0});
        for (int day = 0; day < 2; ++day) {
            auto jumps = times.jumps;
            std::vector<int> fires;
            for (int second = times.from; second < 900; ++second) {
                const int minute = (36000 + second) / 60;
                if (reminder.Engine_CheckRunReminder(Moment_At(firstDay.addDays(day), minute)))
                    fires.push_back(second);
                if (!jumps.empty() && second == jumps.front().first) {
                    second = jumps.front().second;
                    jumps.clear();
                }
            }
            EXPECT_EQ(fires, times.fires) << times.name;
        }
    }
}

TEST_F(ReminderEngine, A_Clock_That_Jumps_Fires_Nothing_Twice_That_Its_Guard_Still_Knows) {
    ReminderClass reminder;
    reminder.rs_Enabled = reminder.rs_REveryDay = true;
    reminder.AddNewHourSetup({-1, 600, 0, 0});
    reminder.AddNewHourSetup({-1, -1, 0, 0});
    reminder.AddNewHourSetup({-1, 900, 1200, 60});
    struct {
        int day, minute;
        bool fires;
    } steps[] = {{0, 590, true},     {0, 600, true},  {0, 660, false}, {0, 601, false},
                 {0, 900, true},     {0, 840, false}, {0, 959, false}, {0, 960, true},
                 {1, 600, true},     {1, 601, false}, {0, 602, true},  {0, 603, false},
                 {31, 10, true},     {0, 700, true},  {0, 701, false}, {-18000, 5, true},
                 {-18000, 6, false}, {0, 600, true},  {0, 605, false}};
    int at = 0;
    for (const auto& step : steps)
        EXPECT_EQ(reminder.Engine_CheckRunReminder(
                      Moment_At(QDate(2026, 5, 1).addDays(step.day), step.minute)),
                  step.fires)
            << "step " << at++;
}

TEST_F(ReminderEngine, With_The_Clock_Before_2000_The_Days_Go_On) {
    for (const DateRule& rule : rules) {
        ReminderClass reminder = New_Reminder(rule);
        reminder.rs_wDaysArray_LWeek = 0;
        reminder.rs_FirstRunDate = 0;
        int fired = 0;
        QDate last;
        for (QDate day(1969, 12, 29); day < QDate(1971, 1, 4); day = day.addDays(1)) {
            if (!reminder.Engine_CheckRunReminder(Moment_At(day, Noon)))
                continue;
            ++fired;
            last = day;
        }
        // 371 days; a date of a year is in no calendar then.
        const std::map<std::string, int> expected = {{"every day", 371},
                                                     {"Mondays and Sundays", 106},
                                                     {"Thursdays of every third week", 18},
                                                     {"every fifth day", 75},
                                                     {"the 31st or the last of the month", 13},
                                                     {"the 30th or the last of February", 13}};
        const auto known = expected.find(rule.name);
        EXPECT_EQ(fired, known == expected.end() ? 0 : known->second) << rule.name;
    }
    // A Day of 0 or -1 is a day like any other then, and not "none".
    ReminderClass daily = New_Reminder(rules[0]);
    ReminderClass yearly = New_Reminder(rules[6]);
    EXPECT_TRUE(daily.Engine_CheckDate(Moment_At(QDate(1999, 12, 31), Noon)));
    EXPECT_TRUE(daily.Engine_CheckDate(Moment_At(QDate(1999, 12, 30), Noon)));
    EXPECT_FALSE(yearly.Engine_CheckDate(Moment_At(QDate(1999, 12, 30), Noon)));
}

TEST_F(ReminderEngine, A_Disabled_Day_Ends_With_Its_Day) {
    ReminderClass reminder = New_Reminder(rules[0]);
    reminder.rs_DisabledForToday = Counted_Day(firstDay);
    EXPECT_FALSE(reminder.Engine_CheckRunReminder(Moment_At(firstDay, Noon)));
    reminder.rs_Enabled = false;
    EXPECT_FALSE(reminder.Engine_CheckDate(Moment_At(firstDay.addDays(1), Noon)));
    EXPECT_EQ(reminder.rs_DisabledForToday, Counted_Day(firstDay)) << "not asked that far";
    reminder.rs_Enabled = true;
    EXPECT_TRUE(reminder.Engine_CheckRunReminder(Moment_At(firstDay.addDays(1), Noon)));
    EXPECT_EQ(reminder.rs_DisabledForToday, 0);
}

TEST_F(ReminderEngine, Today_Is_Missed_When_Its_Time_Has_Passed_Without_A_Fire) {
    struct {
        const char* name;
        HourSetup setup;
        int minute;
        bool isMissed;
    } cases[] = {{"five minutes late", {-1, 1200, 0, 0}, 1205, false},
                 {"six minutes late", {-1, 1200, 0, 0}, 1206, true},
                 {"switched off", {0, 1200, 0, 0}, 1206, false},
                 {"an interval at its end", {-1, 480, 780, 90}, 780, false},
                 {"an interval after its end", {-1, 480, 780, 90}, 781, true},
                 {"start-up at 00:04", {-1, -1, 0, 0}, 4, false},
                 {"start-up at 00:05", {-1, -1, 0, 0}, 5, true}};
    for (const auto& known : cases) {
        ReminderClass reminder;
        reminder.AddNewHourSetup(known.setup);
        const Moment now = Moment_At(firstDay, known.minute);
        EXPECT_EQ(reminder.Check_ReminderWasMissedToday(now), known.isMissed) << known.name;
        EXPECT_FALSE(reminder.Check_ReminderWasMissedToday(now)) << known.name;
        EXPECT_EQ(reminder.rs_LastExecutedDate, known.isMissed ? now.TodaySerial : -1);
    }
}

TEST_F(ReminderEngine, The_Odd_Rules_Of_The_Run_Dates_Stand) {
    const Moment now = Moment_At(firstDay, Noon);
    ReminderClass cycle = New_Reminder(rules[4]);
    cycle.rs_ReDays = 3;
    cycle.rs_FirstRunDate = now.Today - 4;
    EXPECT_EQ(cycle.GetNext_RunDate(now), now.Today + 2);
    EXPECT_EQ(cycle.GetPrevious_RunDate(now), now.Today - 1);
    // Without an anchor the base is the start date, but the last step counts from Day 0.
    cycle.rs_FirstRunDate = 0;
    cycle.rs_ActivationDay = now.Today - 4;
    EXPECT_EQ(cycle.GetNext_RunDate(now), (now.Today / 3 + 1) * 3);
    cycle.rs_FirstRunDate = 77;
    cycle.rs_ActivationDay = now.Today + 1;
    EXPECT_EQ(cycle.GetPrevious_RunDate(now), -1);
    EXPECT_EQ(cycle.rs_FirstRunDate, 0) << "a start date in the future starts the cycle again";
    EXPECT_EQ(cycle.GetNext_RunDate(now), now.Today + 1) << "though it does not fire then";
    cycle.rs_ReDays = 0;
    EXPECT_EQ(cycle.GetPrevious_RunDate(Moment_At(firstDay.addDays(9), 0)), -1);

    ReminderClass past = New_Reminder(rules[7]);
    past.rs_SRLongday = -30;
    EXPECT_EQ(past.GetPrevious_RunDate(now), -1) << "below the activation day, though that is 0";

    ReminderClass weekly = New_Reminder(rules[3]);
    EXPECT_NE(weekly.GetPrevious_RunDate(Moment_At(firstDay.addDays(9), 0)), -1);
    weekly.rs_LastExecutedDate = now.TodaySerial; // a Serial is above every Day
    EXPECT_EQ(weekly.GetPrevious_RunDate(Moment_At(firstDay.addDays(9), 0)), -1);
    weekly.rs_wDaysArray_LWeek = 0;
    EXPECT_EQ(weekly.GetNext_RunDate(now), -1) << "no cycle of weeks before the first match";
    EXPECT_TRUE(weekly.Engine_CheckDate(Moment_At(firstDay.addDays(1), 0)));
    EXPECT_EQ(weekly.rs_wDaysArray_LWeek, Week_Of(firstDay) + 1);
    EXPECT_EQ(weekly.rs_wDaysArray_LMonth, 19 * 12 + 11);
}

TEST_F(ReminderEngine, The_Hour_List_Keeps_The_Marks_Of_Its_Day) {
    ReminderClass reminder;
    reminder.rs_Enabled = reminder.rs_REveryDay = true;
    for (int round = 0; round < 3; ++round) {
        reminder.ClearAllHourSetup();
        EXPECT_EQ(reminder.HourSetupList_Size(), -1);
        for (std::int16_t index = 0; index < 45; ++index) // all but the last are switched off
            reminder.AddNewHourSetup(
                {index == 44 ? std::int16_t{-1} : std::int16_t{}, -1, index, 0});
        // The same list built again has been fired today.
        EXPECT_EQ(reminder.Engine_CheckRunReminder(Moment_At(firstDay, Noon)), round == 0);
    }
    reminder.DeleteHourSetup(45);
    reminder.DeleteHourSetup(1);
    EXPECT_EQ(reminder.HourSetupList_Size(), 43);
    EXPECT_EQ(reminder.GetHourSetup(0).EndMinute, 0);
    EXPECT_EQ(reminder.GetHourSetup(1).EndMinute, 2);
    EXPECT_EQ(reminder.GetHourSetup(43).EndMinute, 44);
    reminder.SetHourSetup(43, {-1, 1, 2, 3});
    EXPECT_EQ(reminder.GetHourSetup(43), (HourSetup{-1, 1, 2, 3}));
    EXPECT_THROW(reminder.GetHourSetup(44), std::out_of_range);
    EXPECT_THROW(reminder.SetHourSetup(-1, {}), std::out_of_range);
    EXPECT_THROW(reminder.SetFuncion(4, {}), std::out_of_range);
    EXPECT_THROW(reminder.GetFuncion(-1), std::out_of_range);
}
