#include "core_test.h"

#include <malloc.h>
#include <random>

using ReminderTick = CoreTest;

namespace {

const QDate newYear(2027, 6, 1); // a year with a 29 February

// When a reminder of this kind of day and this kind of hour is due, from nothing but the date and
// the time of the first tick of the day.
bool Is_OnDay(int kind, QDate day) {
    switch (kind) {
    case 0:
        return true;
    case 1:
        return day.dayOfWeek() <= 5;
    case 2:
        return newYear.daysTo(day) % 4 == 0;
    case 3:
        return day.month() == 2 && day.day() == 29;
    default:
        return day.day() == day.daysInMonth();
    }
}

void Set_Kind(ReminderClass& reminder, int kind) {
    reminder.rs_Enabled = true;
    reminder.rs_DateType_Used = static_cast<DateType>(kind);
    reminder.rs_REveryDay = kind == 0;
    reminder.Set_Rs_Rdays({1, 1, 1, 1, 1, 0, 0, 0});
    reminder.rs_ReDays = 4;
    reminder.rs_SRDay = 29;
    reminder.rs_SRMonth = 2;
    reminder.rs_REDayOfMonth = 31;
}

const HourSetup hours[] = {
    {-1, 615, 0, 0}, {-1, 300, 1000, 240}, {-1, -1, 0, 0}, {-1, -1, 800, 400}};

bool Is_InMinute(int form, int minute) {
    switch (form) {
    case 0:
        return minute == 615;
    case 1:
        return minute == 300 || minute == 540 || minute == 780;
    case 2:
        return minute == 0;
    default:
        return minute == 0 || minute == 400 || minute == 800;
    }
}

} // namespace

TEST_F(ReminderTick, AYearOfTicksFiresWhatIsDueAndNothingElse) {
    constexpr int copies = 10; // of each kind and form
    clock.Set(2027, 6, 1);
    for (int index = 0; index < 5 * 4 * copies; ++index) {
        ReminderClass& reminder = Add_Reminder(index);
        Set_Kind(reminder, index % 5);
        reminder.AddNewHourSetup(hours[index / 5 % 4]);
    }
    const std::size_t slots = Global_Reminders.size();
    const std::size_t memory = mallinfo2().uordblks;
    std::vector<int> fired;
    fired.reserve(1000);
    for (QDate day = newYear; day < newYear.addYears(1); day = day.addDays(1)) {
        for (int minute = 0; minute < 1440; ++minute) {
            fired.clear();
            // Two ticks in each minute: the second one finds nothing left to do.
            Check_AllReminders([&fired](std::int32_t index) { fired.push_back(index); });
            clock.Advance(30000);
            Check_AllReminders([&fired](std::int32_t index) { fired.push_back(index); });
            clock.Advance(30000);
            std::size_t at = 0;
            for (int index = 0; index < 5 * 4 * copies; ++index) {
                if (!Is_InMinute(index / 5 % 4, minute) || !Is_OnDay(index % 5, day))
                    continue;
                ASSERT_LT(at, fired.size()) << index << day.toString().toStdString() << minute;
                ASSERT_EQ(fired[at++], index) << day.toString().toStdString() << minute;
            }
            ASSERT_EQ(at, fired.size()) << day.toString().toStdString() << minute;
        }
    }
    EXPECT_EQ(Global_Reminders.size(), slots);
    EXPECT_LE(mallinfo2().uordblks, memory + 8192);
}

// The tick leaves out whom it need not ask. A twin of each reminder that is asked every time, by
// itself, says whether it was right to.
TEST_F(ReminderTick, WhatTheTickLeavesOutWouldNotHaveFired) {
    std::mt19937 dice(7);
    const auto roll = [&dice](int sides) { return static_cast<int>(dice() % unsigned(sides)); };
    std::vector<ReminderClass> twins(60);
    const auto edit = [&](ReminderClass& reminder, std::uint32_t seed) {
        std::mt19937 own(seed);
        Set_Kind(reminder, static_cast<int>(own() % 5));
        reminder.rs_Enabled = own() % 8 != 0;
        reminder.rs_ReWeeks = static_cast<std::int16_t>(own() % 3);
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
    };
    for (ReminderClass& twin : twins) {
        const auto seed = static_cast<std::uint32_t>(dice());
        edit(Add_Reminder(), seed);
        edit(twin, seed);
    }
    int total = 0;
    for (int tick = 0; tick < 100000; ++tick) {
        clock.Jump(roll(2) == 0 ? 1 : roll(50));
        if (roll(2000) == 0)
            clock.Jump((roll(3) - 1) * (roll(2) == 0 ? 3600 : 86400));
        if (roll(20) == 0) {
            const std::size_t changed = static_cast<std::size_t>(roll(60));
            const auto seed = static_cast<std::uint32_t>(dice());
            edit(*Global_Reminders[changed].Reminder, seed);
            edit(twins[changed], seed);
        }
        std::vector<std::int32_t> fired;
        Check_AllReminders([&fired](std::int32_t index) { fired.push_back(index); });
        std::vector<std::int32_t> expected;
        for (std::size_t index = 0; index < twins.size(); ++index) {
            if (twins[index].Engine_CheckRunReminder())
                expected.push_back(static_cast<std::int32_t>(index));
        }
        ASSERT_EQ(fired, expected) << "tick " << tick;
        total += static_cast<int>(fired.size());
    }
    EXPECT_GT(total, 1000);
}

TEST_F(ReminderTick, ADeliveryMayChangeTheTableUnderTheLoop) {
    for (std::int32_t id = 0; id < 5; ++id) {
        ReminderClass& reminder = Add_Reminder(id);
        Set_Kind(reminder, 0);
        reminder.AddNewHourSetup({-1, -1, 0, 0});
    }
    Global_Reminders[3].Pending = true;
    std::vector<std::int32_t> ids;
    Check_AllReminders([&ids](std::int32_t index) {
        ids.push_back(Global_Reminders[static_cast<std::size_t>(index)].Reminder->rs_ID);
        Global_Reminders.resize(Global_Reminders.size() + 5000);
        Global_Reminders.back() = {true, false, std::make_unique<ReminderClass>()};
        *Global_Reminders.back().Reminder = *Global_Reminders[0].Reminder;
        if (ids.back() == 1)
            Delete_ReminderSlot(1); // what stood behind it moves into its place, and waits
    });
    EXPECT_EQ(ids, (std::vector<std::int32_t>{0, 1, 4}));
    ids.clear();
    Check_AllReminders([&ids](std::int32_t index) {
        ids.push_back(Global_Reminders[static_cast<std::size_t>(index)].Reminder->rs_ID);
    });
    EXPECT_EQ(ids.front(), 2);
}

TEST_F(ReminderTick, AMidnightInADeliveryIsSeenByTheNextReminder) {
    for (std::int32_t id = 0; id < 2; ++id) {
        ReminderClass& reminder = Add_Reminder(id);
        Set_Kind(reminder, 0);
        reminder.AddNewHourSetup({-1, -1, 0, 0});
    }
    clock.Set(2026, 3, 2, 23, 59, 59);
    int fired = 0;
    Check_AllReminders([&](std::int32_t) {
        ++fired;
        clock.Advance(2000);
    });
    EXPECT_EQ(fired, 2);
    EXPECT_EQ(Global_Reminders[1].Reminder->rs_LastExecutedDate,
              Global_Reminders[0].Reminder->rs_LastExecutedDate + 1);
}

TEST_F(ReminderTick, WhoKeptAReferenceAndChangedItIsAskedWithinAMinute) {
    ReminderClass& reminder = Add_Reminder();
    Set_Kind(reminder, 0);
    reminder.AddNewHourSetup({-1, -1, 0, 0});
    reminder.rs_Enabled = false;
    int fired = 0;
    const auto tick = [&] {
        clock.Advance(1000);
        Check_AllReminders([&fired](std::int32_t) { ++fired; });
    };
    tick();
    reminder.rs_Enabled = true;
    for (int second = 0; second < 60; ++second)
        tick();
    EXPECT_EQ(fired, 1);
}
