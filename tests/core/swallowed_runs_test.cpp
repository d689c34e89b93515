#include "core/swallowed_runs.h"
#include "core_test.h"

using namespace Qt::StringLiterals;

namespace {

const QDate monday(2026, 3, 2);

class SwallowedRuns : public CoreTest {
protected:
    // Fires at these minutes of every day.
    static ReminderClass& Add_Daily(std::initializer_list<std::int16_t> minutes) {
        ReminderClass& reminder = Add_Reminder();
        reminder.rs_Enabled = reminder.rs_REveryDay = true;
        for (const std::int16_t minute : minutes)
            reminder.AddNewHourSetup({-1, minute, 0, 0});
        return reminder;
    }
    // "day:minute" of the runs of the first reminder, days counted from Monday.
    static std::string Listed(const Moment& before, const Moment& now) {
        std::string text;
        for (const SwallowedRun& run : Take_SwallowedRuns(before, now))
            text += std::to_string(run.Day - Counted_Day(monday)) + ":" +
                    std::to_string(run.Minute) + (run.Slot == 0 ? " " : "! ");
        return text;
    }
    static Moment At(int day, int minute) { return Moment_At(monday.addDays(day), minute); }
};

} // namespace

TEST_F(SwallowedRuns, Are_The_Times_Between_Two_Checks_That_Cannot_Fire_Any_More) {
    Add_Daily({840, 600, 600});
    const struct {
        Moment before, now;
        const char* listed;
    } cases[] = {
        {At(0, 540), At(0, 900), "0:840 0:600 "},
        {At(0, 540), At(0, 845), "0:600 "}, // the other one fires now
        {At(0, 540), At(0, 846), "0:840 0:600 "},
        {At(0, 600), At(0, 839), ""}, // fired at the check before
        {At(0, 598), At(0, 603), ""}, // no gap
        {At(0, 900), At(0, 540), ""}, // set back
        {At(3, 540), At(0, 900), ""},
        {At(0, 700), At(2, 601), "1:840 1:600 0:840 "},
        {At(-100, 0), At(0, 606), "0:600 "}, // and those of the 60 days before
    };
    for (const auto& one : cases) {
        const std::string listed = Listed(one.before, one.now);
        EXPECT_EQ(listed.substr(0, std::string_view(one.listed).size()), one.listed);
        if (one.before.Today != At(-100, 0).Today) {
            EXPECT_EQ(listed, one.listed);
        }
    }
    EXPECT_EQ(Take_SwallowedRuns(At(-100, 0), At(0, 606)).size(), 121U);
}

TEST_F(SwallowedRuns, Need_A_Day_On_Which_The_Reminder_Was_Due_And_A_Setup_That_Fires_Once) {
    ReminderClass& reminder = Add_Daily({600});
    reminder.rs_DateType_Used = DateType::Weekdays;
    reminder.Set_Rs_Rdays({1, 0, 0, 1}); // Monday and Thursday
    reminder.AddNewHourSetup({-1, -1, 0, 0});
    reminder.AddNewHourSetup({-1, 610, 700, 10});
    reminder.AddNewHourSetup({0, 620, 0, 0});
    EXPECT_EQ(Listed(At(0, 0), At(8, 0)), "7:600 3:600 0:600 ");
    reminder.rs_ReWeeks = 2; // the first day that passed anchors the cycle
    reminder.rs_wDaysArray_LWeek = 0;
    EXPECT_EQ(Listed(At(0, 0), At(8, 0)), "3:600 0:600 ");
    reminder.rs_ActivationDay = Counted_Day(monday);
    EXPECT_EQ(Listed(At(0, 0), At(8, 0)), "3:600 ") << "the start date itself does not fire";
    reminder.rs_DisabledForToday = Counted_Day(monday.addDays(3));
    EXPECT_EQ(Listed(At(3, 0), At(8, 0)), "");
    Add_Daily({600});
    EXPECT_EQ(Listed(At(8, 0), At(8, 700)), "8:600! ");
    Global_Reminders[1].Pending = true;
    EXPECT_EQ(Listed(At(8, 0), At(8, 700)), "");
}
