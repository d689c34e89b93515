#include "core_test.h"

#include <malloc.h>

class Tick : public CoreTest {
protected:
    ReminderTick tick;
};

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

TEST_F(Tick, AYearOfTicksFiresWhatIsDueAndNothingElse) {
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
            tick.Check([&fired](std::int32_t index) { fired.push_back(index); });
            clock.Advance(30000);
            tick.Check([&fired](std::int32_t index) { fired.push_back(index); });
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

TEST_F(Tick, ADeliveryMayChangeTheTableUnderTheLoop) {
    for (std::int32_t id = 0; id < 5; ++id) {
        ReminderClass& reminder = Add_Reminder(id);
        Set_Kind(reminder, 0);
        reminder.AddNewHourSetup({-1, -1, 0, 0});
    }
    Global_Reminders[3].Pending = true;
    std::vector<std::int32_t> ids;
    tick.Check([&ids](std::int32_t index) {
        ids.push_back(Global_Reminders[static_cast<std::size_t>(index)].Reminder->rs_ID);
        Global_Reminders.resize(Global_Reminders.size() + 5000);
        Global_Reminders.back() = {true, false, std::make_unique<ReminderClass>()};
        *Global_Reminders.back().Reminder = *Global_Reminders[0].Reminder;
        if (ids.back() == 1)
            Delete_ReminderSlot(1); // what stood behind it moves into its place, and waits
    });
    EXPECT_EQ(ids, (std::vector<std::int32_t>{0, 1, 4}));
    ids.clear();
    tick.Check([&ids](std::int32_t index) {
        ids.push_back(Global_Reminders[static_cast<std::size_t>(index)].Reminder->rs_ID);
    });
    EXPECT_EQ(ids.front(), 2);
}

TEST_F(Tick, AMidnightInADeliveryIsSeenByTheNextReminder) {
    for (std::int32_t id = 0; id < 2; ++id) {
        ReminderClass& reminder = Add_Reminder(id);
        Set_Kind(reminder, 0);
        reminder.AddNewHourSetup({-1, -1, 0, 0});
    }
    clock.Set(2026, 3, 2, 23, 59, 59);
    int fired = 0;
    tick.Check([&](std::int32_t) {
        ++fired;
        clock.Advance(2000);
    });
    EXPECT_EQ(fired, 2);
    EXPECT_EQ(Global_Reminders[1].Reminder->rs_LastExecutedDate,
              Global_Reminders[0].Reminder->rs_LastExecutedDate + 1);
}
