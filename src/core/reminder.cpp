#include "core/reminder.h"

#include <algorithm>
#include <stdexcept>

using namespace Qt::StringLiterals;

std::uint64_t ObjectIdentity::Next() {
    static std::uint64_t last = 0;
    return ++last;
}

void ReminderClass::SetDefaultValues() {
    rs_Enabled = true;
    rs_REveryDay = true;
    rs_ActivationDay = 0;
    AddNewHourSetup({-1, 20 * 60, 0, 0});
    rs_Title = u"Reminder"_s;
    rs_Text = u"Insert text here"_s;
    rs_PlaySound = true;
    rs_SoundPath.clear();
    rs_Reminder_Type = ReminderType::NextToToolbar;
    rs_DayCreated = Get_TodayDay();
    SetFuncion(
        0, {false, FunctionType::OpenPage, 0, u"https://mail.example.com/"_s, u"Check E-mail"_s});
}

void ReminderClass::Set_ExactDate(const CalendarDate& date, Day day) {
    rs_DateType_Used = DateType::ExactDate;
    rs_SRDay = static_cast<std::uint8_t>(date.day);
    rs_SRMonth = static_cast<std::uint8_t>(date.month);
    rs_SRYear = static_cast<std::int16_t>(date.year);
    rs_SRLongday = day;
}

void ReminderClass::SetFuncion(int index, const FunctionEntry& entry) {
    if (index < 0 || index >= FunctionCount)
        throw std::out_of_range("function");
    const auto at = static_cast<std::size_t>(index);
    if (at >= Functions.size())
        Functions.resize(at + 1);
    Functions[at] = entry;
}

const FunctionEntry& ReminderClass::GetFuncion(int index) const {
    static const FunctionEntry none;
    if (index < 0 || index >= FunctionCount)
        throw std::out_of_range("function");
    const auto at = static_cast<std::size_t>(index);
    return at < Functions.size() ? Functions[at] : none;
}

ReminderClass::HourSlot& ReminderClass::Hour_Slot(std::int32_t index) {
    return index == 0 ? FirstHour : MoreHours[static_cast<std::size_t>(index - 1)];
}

const ReminderClass::HourSlot& ReminderClass::Hour_Slot(std::int32_t index) const {
    return index == 0 ? FirstHour : MoreHours[static_cast<std::size_t>(index - 1)];
}

void ReminderClass::Check_HourIndex(std::int32_t index) const {
    if (index < 0 || index >= HourCount)
        throw std::out_of_range("hour setup");
}

void ReminderClass::AddNewHourSetup(const HourSetup& setup) {
    if (HourCount > static_cast<std::int32_t>(MoreHours.size()))
        MoreHours.emplace_back();
    Hour_Slot(HourCount++).Setup = setup;
}

const HourSetup& ReminderClass::GetHourSetup(std::int32_t index) const {
    Check_HourIndex(index);
    return Hour_Slot(index).Setup;
}

void ReminderClass::SetHourSetup(std::int32_t index, const HourSetup& setup) {
    Check_HourIndex(index);
    Hour_Slot(index).Setup = setup;
}

void ReminderClass::DeleteHourSetup(std::int32_t index) {
    if (index < 0 || index >= HourCount)
        return;
    for (std::int32_t at = index; at + 1 < HourCount; ++at)
        Hour_Slot(at).Setup = Hour_Slot(at + 1).Setup;
    --HourCount;
}

void ReminderClass::ClearAllHourSetup() {
    HourCount = 0;
}
