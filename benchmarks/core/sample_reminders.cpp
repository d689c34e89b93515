#include "sample_reminders.h"

#include "core/reminder_store.h"

#include <random>

using namespace Qt::StringLiterals;

namespace {

using Dice = std::mt19937;

int Roll(Dice& dice, int sides) {
    return static_cast<int>(dice() % static_cast<unsigned>(sides));
}

std::int16_t Roll_Short(Dice& dice, int sides) {
    return static_cast<std::int16_t>(Roll(dice, sides));
}

HourSetup Roll_HourSetup(Dice& dice) {
    const std::int16_t start = Roll_Short(dice, 1440);
    const auto every = static_cast<std::int16_t>(30 + Roll(dice, 200));
    const auto end = static_cast<std::int16_t>(start + Roll(dice, 1440 - start));
    switch (Roll(dice, 6)) {
    case 0:
        return {-1, start, end, every};
    case 1:
        return {-1, -1, 0, 0};
    case 2:
        return {-1, -1, end, every};
    case 3:
        return {0, start, 0, 0};
    default:
        return {-1, start, 0, 0};
    }
}

void Set_Schedule(ReminderClass& reminder, Dice& dice) {
    reminder.rs_Enabled = Roll(dice, 10) != 0;
    reminder.rs_DateType_Used = static_cast<DateType>(Roll(dice, 5));
    reminder.rs_REveryDay = reminder.rs_DateType_Used == DateType::EveryDay;
    for (std::size_t weekday = 0; weekday < 7; ++weekday)
        reminder.rs_wDays[weekday] = static_cast<std::uint8_t>(Roll(dice, 2));
    reminder.rs_ReWeeks = Roll_Short(dice, 4);
    reminder.rs_ReDays = static_cast<std::int16_t>(2 + Roll(dice, 30));
    reminder.rs_REDayOfMonth = 1 + Roll(dice, 31);
    reminder.rs_SRDay = static_cast<std::uint8_t>(1 + Roll(dice, 28));
    reminder.rs_SRMonth = static_cast<std::uint8_t>(1 + Roll(dice, 12));
    reminder.rs_SRYear = Roll(dice, 2) == 0 ? std::int16_t{0} : std::int16_t{2026};
    reminder.rs_SRLongday = DateToDay(reminder.rs_SRDay, reminder.rs_SRMonth, 2026);
    if (Roll(dice, 5) == 0)
        reminder.rs_ActivationDay = DateToDay(1, 1 + Roll(dice, 12), 2026);
    const int hours = Roll(dice, 5) == 0 ? 2 + Roll(dice, 3) : 1;
    for (int index = 0; index < hours; ++index)
        reminder.AddNewHourSetup(Roll_HourSetup(dice));
}

void Set_Texts(ReminderClass& reminder, Dice& dice) {
    static const QString categories[] = {u"Work"_s, u"Family"_s, u"Birthdays"_s, u"Misc"_s};
    static const QString icons[] = {u"Write"_s, u"Home"_s, u"Gift"_s, u"Planner"_s};
    const QString number = QString::number(reminder.rs_ID);
    reminder.rs_Title = u"Reminder "_s + number;
    reminder.rs_Text = u"Call back about number %1.\r\nAsk for the papers."_s.arg(number);
    reminder.rs_PlaySound = Roll(dice, 2) == 0;
    if (Roll(dice, 8) == 0)
        reminder.rs_SoundPath = u"/home/user/sounds/alarm%1.mp3"_s.arg(Roll(dice, 9));
    if (Roll(dice, 2) == 0) {
        const int kind = Roll(dice, 4);
        reminder.rs_Category = categories[kind];
        reminder.rs_Icon = icons[kind];
    }
    if (Roll(dice, 2) == 0)
        reminder.SetFuncion(0, {false, FunctionType::OpenPage, 0, u"https://mail.example.com/"_s,
                                u"Check E-mail"_s});
}

} // namespace

void Make_SampleReminders(std::size_t count) {
    Dice dice(2026);
    Global_Reminders.clear();
    Global_Reminders.resize(count);
    for (std::size_t index = 0; index < count; ++index) {
        auto reminder = std::make_unique<ReminderClass>();
        reminder->rs_ID = static_cast<std::int32_t>(index);
        reminder->rs_ID2 = static_cast<std::int32_t>(dice() % 1000000);
        reminder->rs_DayCreated = 9000;
        Set_Schedule(*reminder, dice);
        Set_Texts(*reminder, dice);
        Global_Reminders[index] = {true, false, std::move(reminder)};
    }
}
