#include "core/date_text.h"
#include "editors/pages/date_rules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>

using namespace Qt::StringLiterals;

namespace {

// Monday 2 March 2026, and the Wednesday after it.
const Moment Monday = Moment_Of({2026, 3, 2, 9, 0, 0, 0});
const Moment Wednesday = Moment_Of({2026, 3, 4, 9, 0, 0, 0});
constexpr Day FifthOfApril = 26 * 365 + 7 + 31 + 28 + 31 + 5;

class DateRules : public testing::Test {
protected:
    DateRules() { Global_DateFormat = u"dd.mm.yyyy"_s; }
    ~DateRules() override { Global_DateFormat = u"mm/dd/yyyy"_s; }

    static DatePageState Ticked(std::initializer_list<int> boxes) {
        DatePageState state = Cleared_DatePage(Monday);
        for (const int box : boxes)
            state.Tick(box) = true;
        return state;
    }
    static std::string Shown(const DatePageState& state) {
        std::string ticks;
        for (const bool tick : state.Ticks)
            ticks += tick ? 'x' : '.';
        return ticks;
    }
    // The way back from Date_Part.
    static void Fill(ReminderClass& r, const std::string& text) {
        std::istringstream stream(text);
        std::string daily, days;
        int kind = 0, day = 0, month = 0;
        stream >> kind >> daily >> days >> r.rs_ReWeeks >> r.rs_ReMonths >> r.rs_ReDays >> day >>
            month >> r.rs_SRYear >> r.rs_SRLongday >> r.rs_REDayOfMonth >> r.rs_ActivationDay;
        r.rs_DateType_Used = static_cast<DateType>(kind);
        r.rs_REveryDay = daily == "daily";
        r.rs_SRDay = static_cast<std::uint8_t>(day);
        r.rs_SRMonth = static_cast<std::uint8_t>(month);
        std::transform(days.begin(), days.end(), r.rs_wDays.begin(),
                       [](char c) { return c == 'x'; });
    }
    static std::string Date_Part(const ReminderClass& r) {
        std::string text = std::to_string(static_cast<int>(r.rs_DateType_Used));
        text += r.rs_REveryDay ? " daily " : " - ";
        for (const std::uint8_t day : r.Get_Rs_Rdays())
            text += day != 0 ? 'x' : '.';
        for (const int number : {int{r.rs_ReWeeks}, int{r.rs_ReMonths}, int{r.rs_ReDays},
                                 int{r.rs_SRDay}, int{r.rs_SRMonth}, int{r.rs_SRYear},
                                 r.rs_SRLongday, r.rs_REDayOfMonth, r.rs_ActivationDay})
            text += ' ' + std::to_string(number);
        return text;
    }
};

// The boxes in groups, and one sign for each group ticked before: 1 it stays, 0 it goes; 3 and 2
// the same with "Always active" ticked; r the new tick goes; f "Every year" moves the date to
// "On:".
TEST_F(DateRules, Every_box_ticked_after_every_other) {
    //                            0  1-7   8  9-10   11-12 13 14-20   21 22 23-31
    const std::string groupOf = "EWWWWWWWKMMXXODDDDDDDYASSSSSSSSS";
    const std::string groups = "EWKMXODYAS";
    const std::string after[] = {"E000000011", "0110000011", "0110000011", "0000000011",
                                 "2222222332", "2222222332", "2222222332", "rrrrfff1rr",
                                 "1111111110", "1111rrr100"};
    ASSERT_EQ(groupOf.size(), 32U);
    for (int first = 0; first < 32; ++first) {
        for (int second = 0; second < 32; ++second) {
            if (first == second)
                continue;
            DatePageState state = Ticked({first, second});
            const TickOutcome outcome = Date_Option_Checked(state, second, Monday);
            const auto group = groups.find(groupOf[static_cast<std::size_t>(second)]);
            const char rule = after[group][groups.find(groupOf[static_cast<std::size_t>(first)])];
            std::string expected(32, '.');
            expected[static_cast<std::size_t>(second)] = rule == 'r' ? '.' : 'x';
            if (rule == '1' || rule == '3' || rule == 'r')
                expected[static_cast<std::size_t>(first)] = 'x';
            if (rule == '2' || rule == '3')
                expected[22] = 'x';
            if (rule == 'f')
                expected[13] = 'x';
            EXPECT_EQ(Shown(state), expected) << second << " after " << first;
            EXPECT_EQ(outcome == TickOutcome::StartDateRefused, rule == 'r' && second > 22);
        }
    }
}

TEST_F(DateRules, The_exact_date_moves_into_its_field) {
    struct Case {
        const char* name;
        int box;
        bool next;
        QString text, everyYear, unticked;
    };
    const QString none = u"untouched"_s;
    const Case cases[] = {
        {"today", 11, false, none, u"04.03.----"_s, none},
        {"tomorrow", 12, false, none, u"05.03.----"_s, none},
        {"a date with its year", 13, false, u"5.4.30"_s, u"05.04.----"_s, u"05.04.2026"_s},
        {"a date without a year", 13, false, u"5.4.----"_s, u"05.04.----"_s, u"05.04.2026"_s},
        {"no date", 13, false, u"31.4.2026"_s, u"31.4.2026"_s, u"31.4.2026"_s},
        {"Monday of this week has passed", 14, false, none, none, none},
        {"Monday of the next week", 14, true, none, u"09.03.----"_s, none},
        {"Sunday of this week", 20, false, none, u"08.03.----"_s, none}};
    for (const Case& row : cases) {
        DatePageState state = Ticked({row.box, 21});
        state.Dates[ExactField] = row.text;
        state.WeekOptions[ExactNext] = row.next;
        DatePageState other = state;
        Date_Option_Checked(state, 21, Wednesday);
        EXPECT_EQ(state.Dates[ExactField], row.everyYear) << row.name;
        EXPECT_EQ(state.Tick(21), row.everyYear != row.text) << row.name;
        Date_Option_Unchecked(other, 21, Wednesday);
        EXPECT_EQ(other.Dates[ExactField], row.unticked) << row.name;
    }
}

TEST_F(DateRules, This_week_blocks_the_days_that_have_passed) {
    DatePageState state = Ticked({14, 16, 25, 31});
    Week_Option_Clicked(state, ExactThis, Wednesday);
    EXPECT_EQ(Shown(state), "................x........x.....x");
    Week_Option_Clicked(state, StartThis, Wednesday);
    EXPECT_EQ(Shown(state), "................x..............x");
    std::string blocked;
    for (const bool box : state.Blocked)
        blocked += box ? 'x' : '.';
    EXPECT_EQ(blocked, "..............xx.........xx.....");
    Week_Option_Clicked(state, ExactNext, Wednesday);
    EXPECT_TRUE(!state.Blocked[14] && state.Blocked[25]);
    EXPECT_EQ(state.WeekOptions, (std::array<bool, 4>{false, true, true, false}));
    DatePageState fresh = Ticked({20});
    Date_Option_Checked(fresh, 20, Wednesday);
    EXPECT_EQ(fresh.WeekOptions, (std::array<bool, 4>{true, false, false, false}));
}

TEST_F(DateRules, Record_to_page_to_record_loses_what_the_rules_say_and_nothing_else) {
    const std::string same;
    const std::string everyDay = "0 daily ........ 0 0 0 0 0 0 0 0 0";
    struct Case {
        // kind, daily, weekdays, weeks, months, days, exact date and its Day, monthday, start
        std::string record, ticks, saved;
    };
    const Case cases[] = {
        {everyDay, "x.....................x.........", same},
        // Sunday is lost; alone it becomes every day.
        {"1 - x....xx. 2 0 0 0 0 0 0 0 0", ".x....xxx.............x.........",
         "1 - x....x.. 2 0 0 0 0 0 0 0 0"},
        {"1 - ......x. 3 0 0 0 0 0 0 0 0", ".......xx.............x.........", everyDay},
        {"2 - ........ 0 0 3 0 0 0 0 0 9598", "..........x.............x.......", same},
        {"4 - ........ 0 0 0 0 0 0 0 31 0", ".........x............x.........", same},
        {"3 - ........ 0 0 0 5 4 2026 9592 0 0", ".............x........x.........", same},
        // Every year, chosen last year.
        {"3 - ........ 0 0 0 5 4 0 9227 0 0", ".............x.......xx.........",
         "3 - ........ 0 0 0 5 4 0 9592 0 0"},
        // What no field takes when it is typed.
        {"1 - x....... 365 0 0 0 0 0 0 0 0", ".x......x.............x.........", same},
        {"2 - ........ 0 0 365 0 0 0 0 0 0", "..........x...........x.........", same},
        {"4 - ........ 0 0 0 0 0 0 0 45 0", ".........x............x.........", same},
        {"3 - ........ 0 0 0 29 2 0 -1 0 0", ".............x.......xx.........", same},
        {"0 - ........ 0 3 0 0 0 0 0 0 0", "......................x.........", everyDay}};
    for (const Case& row : cases) {
        ReminderClass reminder;
        Fill(reminder, row.record);
        reminder.rs_FirstRunDate = 77;
        const DatePageState page = Load_DateSetup(reminder, Monday);
        EXPECT_EQ(Shown(page), row.ticks) << row.record;
        EXPECT_EQ(DateSetup_Warning(reminder).isEmpty(), reminder.rs_ReMonths == 0);
        EXPECT_FALSE(Save_DateSetup(page, Stored_Date(page, reminder), reminder, Monday))
            << row.record;
        EXPECT_EQ(Date_Part(reminder), row.saved == same ? row.record : row.saved);
        EXPECT_EQ(reminder.rs_FirstRunDate, 77) << row.record; // the start date is the same
    }
}

TEST_F(DateRules, What_is_refused_and_in_which_words) {
    struct Case {
        std::initializer_list<int> boxes;
        QString text; // of every field
        int mark;     // -1: taken
    };
    const Case cases[] = {{{1, 8}, u" 99 "_s, -1},
                          {{1, 8}, u"100"_s, 0},
                          {{8}, u"100"_s, -1},   // no weekday: nobody reads it
                          {{9, 10}, u"x3"_s, 2}, // the days are looked at first
                          {{9}, u"x31th"_s, -1},
                          {{9}, u"0"_s, 2},
                          {{9}, u"99999999999"_s, 2},
                          {{13}, u"31.4.2026"_s, 3},
                          {{13}, u"29.2."_s, 3}, // not this year
                          {{13}, u"5.4."_s, -1},
                          {{15}, {}, 4},
                          {{0, 24}, u"5.4."_s, 5},
                          {{0, 22, 24}, u"5.4."_s, -1}, // always active
                          {{0, 26}, {}, 6}};
    const QString words[] = {u"Invalid Every X weeks value"_s,
                             {},
                             u"Invalid Every X days value"_s,
                             u"Invalid (Days setup) Exact date: \r\n"_s,
                             u"Selected (Days setup->Exact date) day is invalid"_s,
                             u"Invalid (Days setup) start date: \r\n"_s,
                             u"Selected (days setup) start day is invalid"_s};
    for (const Case& row : cases) {
        DatePageState page = Ticked(row.boxes);
        page.Weeks = page.DayOfMonth = page.Days = page.Dates[0] = page.Dates[1] = row.text;
        ReminderClass reminder;
        reminder.rs_ActivationDay = 900;
        const auto fault = Save_DateSetup(page, {}, reminder, Wednesday);
        ASSERT_EQ(fault ? static_cast<int>(fault->Mark) : -1, row.mark) << row.text.toStdString();
        if (!fault)
            continue;
        const bool namesText = row.mark == 3 || row.mark == 5;
        EXPECT_EQ(fault->Message, words[row.mark] + (namesText ? row.text : QString()));
        EXPECT_EQ(reminder.rs_ActivationDay, 0) << "a refused save leaves a cleared record";
    }
}

TEST_F(DateRules, A_box_means_the_day_on_which_it_was_ticked) {
    const auto Tuesday = Moment_Of({2026, 3, 3, 0, 0, 1, 0});
    for (const auto& [box, day] : {std::pair(11, 0), {12, 1}, {15, 1}, {23, 1}, {26, 1}, {31, 6}}) {
        for (const Moment& saved : {Monday, Tuesday, Wednesday}) {
            DatePageState page = Ticked({box});
            Date_Option_Checked(page, box, Monday);
            ReminderClass reminder;
            EXPECT_FALSE(Save_DateSetup(page, {}, reminder, saved)) << box;
            EXPECT_EQ(box < 22 ? reminder.rs_SRLongday : reminder.rs_ActivationDay,
                      Monday.Today + day)
                << box;
        }
    }
}

TEST_F(DateRules, A_new_start_date_begins_the_cycles_again) {
    struct Case {
        const char* name;
        std::initializer_list<int> boxes;
        Day before;
        int lastWeek;
        std::string after; // start, anchor, week and month of the last match
    };
    // 1366 is the week of 2 March 2026, 1423 that of 5 April 2027.
    const Case cases[] = {{"none, as before", {0, 22}, 0, 5, "0 77 5 88"},
                          {"every x weeks, not yet begun", {1, 8, 22}, 0, 0, "0 77 1366 88"},
                          {"weekdays without weeks", {1, 22}, 0, 0, "0 77 0 88"},
                          {"the same", {0, 24}, FifthOfApril + 365, 5, "9957 77 5 88"},
                          {"taken away", {0, 22}, FifthOfApril, 5, "0 9558 1366 315"},
                          {"a new one", {0, 24}, 0, 5, "9957 9957 1423 328"},
                          {"tomorrow", {0, 23}, 0, 5, "9559 9559 1366 315"},
                          {"the last tick counts", {0, 23, 31}, 0, 5, "9564 9564 1366 315"},
                          {"nothing ticked", {0}, 0, 5, "0 77 5 88"}};
    for (const Case& row : cases) {
        DatePageState page = Ticked(row.boxes);
        page.Dates[StartField] = u"05.04.27"_s;
        ReminderClass reminder;
        reminder.rs_ActivationDay = row.before;
        reminder.rs_FirstRunDate = 77;
        reminder.rs_wDaysArray_LWeek = row.lastWeek;
        reminder.rs_wDaysArray_LMonth = 88;
        EXPECT_FALSE(Save_DateSetup(page, {}, reminder, Monday)) << row.name;
        std::string after = std::to_string(reminder.rs_ActivationDay);
        for (const int number : {reminder.rs_FirstRunDate, reminder.rs_wDaysArray_LWeek,
                                 reminder.rs_wDaysArray_LMonth})
            after += ' ' + std::to_string(number);
        EXPECT_EQ(after, row.after) << row.name;
    }
}

} // namespace
