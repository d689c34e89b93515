#include "core/reminder_ref.h"
#include "core_test.h"

class Tick : public CoreTest {
protected:
    ReminderTick tick;
};

namespace {

// Every day, when the program starts.
void Set_StartUp(ReminderClass& reminder) {
    reminder.rs_Enabled = true;
    reminder.rs_REveryDay = true;
    reminder.AddNewHourSetup({-1, -1, 0, 0});
}

} // namespace

TEST_F(Tick, A_Delivery_May_Change_The_Table_Under_The_Loop) {
    for (std::int32_t id = 0; id < 5; ++id) {
        ReminderClass& reminder = Add_Reminder(id);
        Set_StartUp(reminder);
    }
    Global_Reminders[3].Pending = true;
    std::vector<std::int32_t> ids;
    tick.Check([&ids](const ReminderRef& due) {
        ids.push_back(due.Get()->rs_ID);
        Global_Reminders.resize(Global_Reminders.size() + 5000);
        Global_Reminders.back() = {true, false, std::make_unique<ReminderClass>()};
        *Global_Reminders.back().Reminder = *Global_Reminders[0].Reminder;
        if (ids.back() == 1)
            Delete_ReminderSlot(1); // what stood behind it moves into its place, and waits
    });
    EXPECT_EQ(ids, (std::vector<std::int32_t>{0, 1, 4}));
    ids.clear();
    tick.Check([&ids](const ReminderRef& due) { ids.push_back(due.Get()->rs_ID); });
    EXPECT_EQ(ids.front(), 2);
}

TEST_F(Tick, A_Midnight_In_A_Delivery_Is_Seen_By_The_Next_Reminder) {
    for (std::int32_t id = 0; id < 2; ++id) {
        ReminderClass& reminder = Add_Reminder(id);
        Set_StartUp(reminder);
    }
    clock.Set(2026, 3, 2, 23, 59, 59);
    int fired = 0;
    tick.Check([&](const ReminderRef&) {
        ++fired;
        clock.Advance(2000);
    });
    EXPECT_EQ(fired, 2);
    EXPECT_EQ(Global_Reminders[1].Reminder->rs_LastExecutedDate,
              Global_Reminders[0].Reminder->rs_LastExecutedDate + 1);
}
