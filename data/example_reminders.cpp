#include "example_reminders.h"

#include "core/reminder_store.h"

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr std::int16_t On = -1;
constexpr std::int16_t AtStartUp = -1;
constexpr std::int16_t LastMinute = 1439;

// A Serial in the field for the last run says that the reminder has run: no Day of the calendar
// lies above it, so no start lists an example as missed.
constexpr Serial RanLongAgo = 36526;

ReminderClass Example(std::int32_t id, const QString& title, const QString& text) {
    ReminderClass reminder;
    reminder.rs_ID = id;
    reminder.rs_ID2 = 20000101 + id;
    reminder.rs_Title = title;
    reminder.rs_Text = text;
    reminder.rs_DayCreated = 1;
    reminder.rs_LastExecutedDate = RanLongAgo;
    return reminder;
}

// Its exact date, for want of one, becomes the day of the first start. As an interval until
// midnight it never counts as missed.
ReminderClass Greeting() {
    ReminderClass reminder = Example(
        0, u"Welcome to Tockly"_s,
        u"Welcome to Tockly! Your reminders pass by on this line. Drag it to move the toolbar, "
        u"pull "
        "the right end to make it longer. Right-click this text and choose \"Ok, I got it\" to end "
        "it."_s);
    reminder.rs_Enabled = true;
    reminder.rs_Reminder_Type = ReminderType::InsideToolbar;
    reminder.rs_DateType_Used = DateType::ExactDate;
    reminder.rs_Icon = u"Planner"_s;
    reminder.AddNewHourSetup({On, AtStartUp, LastMinute, LastMinute});
    return reminder;
}

ReminderClass Take_A_Break() {
    ReminderClass reminder =
        Example(1, u"Take a break"_s,
                u"Stand up, stretch, look out of the window.\r\nThis example comes every hour from "
                "10:00 until 17:00, Monday to Friday, inside the toolbar. Enable it to use it."_s);
    reminder.rs_Reminder_Type = ReminderType::InsideToolbar;
    reminder.rs_DateType_Used = DateType::Weekdays;
    reminder.rs_wDays = {1, 1, 1, 1, 1, 0, 0, 0};
    reminder.AddNewHourSetup({On, 600, 1020, 60});
    reminder.rs_Category = u"Work"_s;
    reminder.rs_Icon = u"Write"_s;
    return reminder;
}

ReminderClass Birthday() {
    ReminderClass reminder =
        Example(2, u"A birthday"_s,
                u"Somebody's birthday is today: call, and bring a present.\r\nThis example comes "
                "every year on the same date, at 9:00 and again at 18:00, with a beep, in a window "
                "next to the toolbar. Change the date and enable it."_s);
    reminder.rs_Reminder_Type = ReminderType::NextToToolbar;
    reminder.rs_DateType_Used = DateType::ExactDate;
    reminder.rs_SRDay = 14;
    reminder.rs_SRMonth = 3;
    reminder.rs_SRLongday = DateToDay(14, 3, 2008); // year 0 makes it every year
    reminder.rs_PlaySound = true;
    reminder.AddNewHourSetup({On, 540, 0, 0});
    reminder.AddNewHourSetup({On, 1080, 0, 0});
    reminder.rs_Category = u"Birthdays"_s;
    reminder.rs_Icon = u"Gift"_s;
    return reminder;
}

ReminderClass Pay_The_Bills() {
    ReminderClass reminder = Example(
        3, u"Pay the bills"_s,
        u"The month ends: pay the bills and put the receipts away.\r\nThis example comes on "
        "the 31st, or on the last day of a shorter month, at 18:00, in the middle of the "
        "screen. Enable it to use it."_s);
    reminder.rs_Reminder_Type = ReminderType::Centered;
    reminder.rs_DateType_Used = DateType::DayOfMonth;
    reminder.rs_REDayOfMonth = 31;
    reminder.rs_PlaySound = true;
    reminder.AddNewHourSetup({On, 1080, 0, 0});
    reminder.rs_Category = u"Misc"_s;
    reminder.rs_Icon = u"Credit card"_s;
    return reminder;
}

ReminderClass Water_The_Plants() {
    ReminderClass reminder =
        Example(4, u"Water the plants"_s,
                u"The plants want water.\r\nThis example comes every three days at 8:30, counted "
                "from the day on which it is first enabled, in a window next to the toolbar."_s);
    reminder.rs_Reminder_Type = ReminderType::NextToToolbar;
    reminder.rs_DateType_Used = DateType::EveryXDays;
    reminder.rs_ReDays = 3;
    reminder.AddNewHourSetup({On, 510, 0, 0});
    reminder.rs_Category = u"Family"_s;
    reminder.rs_Icon = u"Flower pot"_s;
    return reminder;
}

} // namespace

void Fill_ExampleReminders() {
    const auto make = {Greeting, Take_A_Break, Birthday, Pay_The_Bills, Water_The_Plants};
    std::size_t index = 0;
    for (const auto& example : make) {
        ReminderSlot& slot = Global_Reminders.at(index++);
        slot.Reminder = std::make_unique<ReminderClass>(example());
        slot.Used = true;
    }
}
