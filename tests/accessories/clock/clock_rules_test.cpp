#include "accessories/clock/clock_rules.h"

#include <gtest/gtest.h>

#include <ostream>

using namespace Qt::StringLiterals;

static void PrintTo(const ClockTime& time, std::ostream* out) {
    *out << time.Hour << ":" << time.Minute;
}

namespace {

TEST(ClockRules, A_step_moves_one_hour_or_minute_and_only_minutes_wrap) {
    struct Case {
        const char* name;
        ClockTime before;
        StepButton button;
        ClockTime after;
        bool wrapped;
    };
    const Case cases[] = {
        {"an hour later", {12, 30}, StepButton::HourUp, {13, 30}, false},
        {"an hour earlier", {12, 30}, StepButton::HourDown, {11, 30}, false},
        {"the hours stop at 23", {23, 30}, StepButton::HourUp, {23, 30}, false},
        {"the hours stop at 0", {0, 30}, StepButton::HourDown, {0, 30}, false},
        {"a minute later", {12, 58}, StepButton::MinuteUp, {12, 59}, false},
        {"a minute earlier", {12, 1}, StepButton::MinuteDown, {12, 0}, false},
        {"59 goes on to 1 of the next hour", {12, 59}, StepButton::MinuteUp, {13, 1}, true},
        {"0 goes back to 59 of the hour before", {12, 0}, StepButton::MinuteDown, {11, 59}, true},
        {"the last minute of the day", {23, 59}, StepButton::MinuteUp, {23, 1}, true},
        {"the first minute of the day", {0, 0}, StepButton::MinuteDown, {0, 59}, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const Stepped stepped = Step_Time(c.before, c.button);
        EXPECT_EQ(stepped.Time, c.after);
        EXPECT_EQ(stepped.MinuteWrapped, c.wrapped);
    }
}

TEST(ClockRules, A_held_button_waits_once_and_then_quickens_to_twenty_steps_a_second) {
    int interval = FirstRepeatInterval;
    std::vector<int> intervals;
    for (int tick = 0; tick < 18; ++tick) {
        interval = Next_RepeatInterval(interval);
        intervals.push_back(interval);
    }
    EXPECT_EQ(intervals, (std::vector<int>{200, 190, 180, 170, 160, 150, 140, 130, 120, 110, 100,
                                           90, 80, 70, 60, 50, 50, 50}));
}

TEST(ClockRules, A_time_is_read_only_if_it_is_one) {
    EXPECT_EQ(Read_Time(u" 7:05 "_s), 425);
    EXPECT_EQ(Read_Time(u"23:59"_s), 1439);
    for (const QString& text :
         {u"24:00"_s, u"12:60"_s, u"-1:00"_s, u"12"_s, u"12:"_s, u"a:b"_s, u"1:2:3"_s, QString()})
        EXPECT_EQ(Read_Time(text), std::nullopt) << text.toStdString();
}

} // namespace
