// The checks that come only when something can fire, against the check of every second.
#include "app/reminder_watch.h"
#include "core/remind_again.h"
#include "core/reminder_ref.h"
#include "core/reminder_store.h"
#include "editors/wizard/quick_add_rules.h"
#include "support/fake_clock.h"
#include "support/scripted_dialogs.h"

#include <gtest/gtest.h>

#include <random>

namespace {

constexpr std::size_t Reminders = 60;

class ReminderWatchTest : public testing::Test {
protected:
    ReminderWatchTest() {
        Init_TimeRoutines();
        Init_Reminders();
        Init_RA_Reminders();
        Global_Reminders.resize(Reminders);
    }

    int Roll(int sides) { return static_cast<int>(dice() % unsigned(sides)); }

    static void Edit(ReminderClass& reminder, std::uint32_t seed) {
        std::mt19937 own(seed);
        reminder.rs_Enabled = own() % 8 != 0;
        reminder.rs_DateType_Used = static_cast<DateType>(own() % 5);
        reminder.rs_REveryDay = own() % 4 != 0;
        reminder.Set_Rs_Rdays({1, 1, 1, 1, 1, 0, 0, 0});
        reminder.rs_ReWeeks = static_cast<std::int16_t>(own() % 3);
        reminder.rs_ReDays = static_cast<std::int16_t>(own() % 4);
        reminder.rs_SRDay = 2;
        reminder.rs_SRMonth = 3;
        reminder.rs_REDayOfMonth = 31;
        reminder.rs_ActivationDay = own() % 4 == 0 ? Get_TodayDay() - 1 : 0;
        reminder.rs_DisabledForToday = own() % 8 == 0 ? Get_TodayDay() : 0;
        reminder.ClearAllHourSetup();
        for (auto left = own() % 4; left > 0; --left) {
            // Half of them soon, and so less than six minutes apart.
            const auto soon = static_cast<std::int16_t>(Get_CurrentMinute() + own() % 12);
            const auto any = static_cast<std::int16_t>(static_cast<int>(own() % 1441) - 1);
            const std::int16_t start = own() % 2 == 0 ? soon : any;
            const auto every = static_cast<std::int16_t>(own() % 2 == 0 ? 0 : own() % 90);
            reminder.AddNewHourSetup({-1, start, static_cast<std::int16_t>(own() % 1500), every});
        }
    }

    // A second of the event loop's. The check of a full minute counts as that of its second.
    void Let_SecondPass() {
        const bool ticking = timers.Is_Enabled(TimerName::R_CheckDate_Timer);
        clock.Advance(1000);
        if (ticking && clock.Now().second != 0) {
            ++ticks;
            timers.Tick(TimerName::R_CheckDate_Timer);
        }
        if (++seconds % 5 == 0 && timers.Is_Enabled(TimerName::Check_Ra_Reminders_Timer)) {
            timers.Tick(TimerName::Check_Ra_Reminders_Timer);
        }
    }

    std::mt19937 dice{7};
    FakeClock clock;
    ScriptedDialogs dialogs;
    Timers timers;
    std::vector<std::int32_t> fired;
    int changes = 0;
    int ticks = 0;
    int seconds = 0;
    ReminderWatch watch{timers,
                        {[this](const ReminderRef& due) { fired.push_back(due.Slot()); },
                         [](const Moment&, const Moment&) {}, [this] { ++changes; }}};
};

// A twin of each reminder is asked every second, by itself.
TEST_F(ReminderWatchTest, What_Fires_Is_What_The_Check_Of_Every_Second_Finds) {
    std::vector<ReminderClass> twins(Reminders);
    const auto edit = [&](std::size_t at, bool anew) {
        const auto seed = static_cast<std::uint32_t>(dice());
        if (anew) {
            Global_Reminders[at] = {true, false, std::make_unique<ReminderClass>()};
            twins[at] = ReminderClass();
        }
        Edit(*Global_Reminders[at].Reminder, seed);
        Edit(twins[at], seed);
    };
    for (std::size_t at = 0; at < Reminders; ++at) {
        edit(at, true);
    }
    watch.Start();
    timers.Start_FirstTimers();
    int total = 0;
    int edits = 0;
    constexpr int length = 300'000;
    for (int second = 0; second < length; ++second) {
        std::vector<std::int32_t> expected;
        const auto ask_twins = [&] {
            for (std::size_t at = 0; at < Reminders; ++at) {
                if (twins[at].Engine_CheckRunReminder()) {
                    expected.push_back(static_cast<std::int32_t>(at));
                }
            }
        };
        if (Roll(3000) == 0) {
            // By seconds, minutes, hours and days, both ways.
            clock.Jump((Roll(2) == 0 ? 1 : -1) * (Roll(2) == 0 ? Roll(400) : Roll(200'000)));
            ask_twins();
        }
        if (Roll(200) == 0) {
            ++edits;
            edit(static_cast<std::size_t>(Roll(Reminders)), Roll(8) == 0);
        }
        Let_SecondPass();
        ask_twins();
        ASSERT_EQ(fired, expected) << "second " << second;
        total += static_cast<int>(fired.size());
        fired.clear();
    }
    EXPECT_GT(total, 1000);
    // An edit and a fire cost a check or two; the rest are the minutes.
    EXPECT_LT(ticks, 3 * (total + edits));
}

TEST_F(ReminderWatchTest, A_Minute_In_Which_Nothing_Is_Due_Has_One_Check) {
    watch.Start();
    timers.Start_FirstTimers();
    Let_SecondPass();
    Let_SecondPass();
    ticks = 0;
    for (int second = 0; second < 3600; ++second) {
        Let_SecondPass();
        EXPECT_FALSE(timers.Is_Enabled(TimerName::Check_Ra_Reminders_Timer));
    }
    EXPECT_EQ(ticks, 0);
    EXPECT_EQ(clock.Waiting(), 1U);
    // One that a window is building is none before it is accepted.
    const ReminderRef built = Make_PendingReminder(Read_Moment());
    built.Get()->rs_REveryDay = true;
    built.Get()->AddNewHourSetup({-1, -1, 0, 0});
    for (int second = 0; second < 100; ++second) {
        Let_SecondPass();
    }
    EXPECT_FALSE(timers.Is_Enabled(TimerName::R_CheckDate_Timer));
    Accept_Pending(built);
    EXPECT_EQ(fired.size(), 0U);
    Let_SecondPass();
    EXPECT_EQ(fired, std::vector{built.Slot()});
}

// Sent away for a time that is over already, and for some minutes.
TEST_F(ReminderWatchTest, The_Queue_Is_Looked_At_When_One_Of_It_Is_Due) {
    Global_Reminders[2] = {true, false, std::make_unique<ReminderClass>()};
    Global_Reminders[2].Reminder->rs_ID = 5;
    watch.Start();
    timers.Start_FirstTimers();
    const auto minutes_until_it_comes = [this](std::int32_t minutes) {
        Add_RA_Reminder(5, 0, Get_TodayDay(), Get_CurrentMinute() + minutes);
        int passed = 0;
        for (; fired.empty() && passed < 3600; ++passed) {
            Let_SecondPass();
        }
        fired.clear();
        return passed;
    };
    for (int second = 0; second < 7; ++second) {
        Let_SecondPass();
    }
    EXPECT_EQ(minutes_until_it_comes(10), 593);
    EXPECT_LE(minutes_until_it_comes(-1), 10);
    EXPECT_EQ(Global_RA_Last, -1);
    EXPECT_FALSE(timers.Is_Enabled(TimerName::Check_Ra_Reminders_Timer));
}

} // namespace
