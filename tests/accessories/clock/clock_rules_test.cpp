#include "accessories/clock/clock_face.h"
#include "accessories/clock/clock_rules.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(ClockRules, A_step_moves_one_hour_or_minute_and_only_minutes_wrap) {
    const struct {
        const char* name;
        ClockTime before;
        StepButton button;
        ClockTime after;
        bool wrapped;
    } cases[] = {
        {"an hour later", {12, 30}, StepButton::HourUp, {13, 30}, false},
        {"the hours stop at 23", {23, 30}, StepButton::HourUp, {23, 30}, false},
        {"the hours stop at 0", {0, 30}, StepButton::HourDown, {0, 30}, false},
        {"a minute later", {12, 58}, StepButton::MinuteUp, {12, 59}, false},
        {"a minute earlier", {12, 1}, StepButton::MinuteDown, {12, 0}, false},
        {"59 goes on to 1 of the next hour", {12, 59}, StepButton::MinuteUp, {13, 1}, true},
        {"0 goes back to 59 of the hour before", {12, 0}, StepButton::MinuteDown, {11, 59}, true},
        {"the last minute of the day", {23, 59}, StepButton::MinuteUp, {23, 1}, true},
        {"the first minute of the day", {0, 0}, StepButton::MinuteDown, {0, 59}, true},
    };
    for (const auto& c : cases) {
        const Stepped stepped = Step_Time(c.before, c.button);
        EXPECT_TRUE(stepped.Time == c.after && stepped.MinuteWrapped == c.wrapped) << c.name;
    }
}

TEST(ClockRules, A_held_button_waits_once_and_then_quickens_to_twenty_steps_a_second) {
    EXPECT_EQ(Next_RepeatInterval(FirstRepeatInterval), 200);
    for (int interval = 200; interval > 50; interval -= 10)
        EXPECT_EQ(Next_RepeatInterval(interval), interval - 10);
    EXPECT_EQ(Next_RepeatInterval(50), 50);
}

// The tip, and the base across the middle; on the dial as on paper.
TEST(ClockRules, A_hand_points_from_the_middle_where_its_angle_says) {
    const std::pair<double, QPointF> cases[] = {
        {0, {0, -1}}, {90, {1, 0}}, {180, {0, 1}}, {202.5, {-0.3827, 0.9239}}, {270, {-1, 0}}};
    for (const auto& [degrees, toward] : cases) {
        const QPointF across(-toward.y(), toward.x());
        const QPointF wanted[] = {across * 7, across * -7, toward * 38};
        const auto corners = Hand_Corners(MinuteHand, degrees);
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_LT((corners[i] - FaceCenter - wanted[i]).manhattanLength(), 0.02) << degrees;
    }
}

} // namespace
