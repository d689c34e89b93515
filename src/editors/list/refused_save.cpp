#include "editors/list/refused_save.h"

namespace {

void Copy_Date(const ReminderClass& from, ReminderClass& to) {
    to.rs_DateType_Used = from.rs_DateType_Used;
    to.rs_REveryDay = from.rs_REveryDay;
    to.rs_wDays = from.rs_wDays;
    to.rs_ReWeeks = from.rs_ReWeeks;
    to.rs_ReMonths = from.rs_ReMonths;
    to.rs_ReDays = from.rs_ReDays;
    to.rs_FirstRunDate = from.rs_FirstRunDate;
    to.rs_SRDay = from.rs_SRDay;
    to.rs_SRMonth = from.rs_SRMonth;
    to.rs_SRYear = from.rs_SRYear;
    to.rs_SRLongday = from.rs_SRLongday;
    to.rs_REDayOfMonth = from.rs_REDayOfMonth;
    to.rs_ActivationDay = from.rs_ActivationDay;
    to.rs_wDaysArray_LMonth = from.rs_wDaysArray_LMonth;
    to.rs_wDaysArray_LWeek = from.rs_wDaysArray_LWeek;
}

void Copy_Hours(const ReminderClass& from, ReminderClass& to) {
    to.ClearAllHourSetup();
    for (std::int32_t index = 0; index <= from.HourSetupList_Size(); ++index)
        to.AddNewHourSetup(from.GetHourSetup(index));
}

} // namespace

void RefusedSave::Save_Begins(const ReminderRef& target) {
    if (isRefused && target == reminder)
        return;
    const ReminderClass* record = target.Peek();
    reminder = target;
    before.reset();
    if (record != nullptr)
        before = *record;
    isRefused = false;
    hoursTouched = false;
}

void RefusedSave::Save_Refused(EditPage page) {
    isRefused = true;
    hoursTouched = hoursTouched || page == EditPage::HoursSetup;
}

void RefusedSave::Save_Done() {
    *this = {};
}

void RefusedSave::Condition_Added(const HourSetup& condition) {
    if (before)
        before->AddNewHourSetup(condition);
}

void RefusedSave::Restore(const ReminderRef& target) {
    ReminderClass* record = target.Get();
    if (!isRefused || !before || record == nullptr || !(target == reminder))
        return;
    Copy_Date(*before, *record);
    if (hoursTouched)
        Copy_Hours(*before, *record);
}
