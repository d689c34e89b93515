#include "editors/wizard/quick_add_rules.h"

#include "core/categories.h"
#include "core/date_text.h"
#include "core/reminder_store.h"

using namespace Qt::StringLiterals;

namespace {

// NoDay for a date that is none, one without a year included.
Day Chosen_Day(const QuickAddState& state, const Moment& now) {
    switch (state.When) {
    case DayChoice::Today:
        return now.Today;
    case DayChoice::Tomorrow:
        return now.Today + 1;
    case DayChoice::Date:
        break;
    }
    return ParseUserDateToDay(state.Date, {});
}

// The first setup stays, and that is meant: after a test a changed time stands beside the tested
// one.
void Keep_FirstHourSetup(ReminderClass& reminder) {
    for (std::int32_t left = reminder.HourSetupList_Size(); left > 0; --left)
        reminder.DeleteHourSetup(1);
}

QString Apply_Hours(const QuickAddState& state, ReminderClass& reminder, BadValues bad) {
    Keep_FirstHourSetup(reminder);
    if (state.AtStartUp)
        reminder.AddNewHourSetup({-1, -1, 0, 0});
    for (std::size_t i = 0; i < state.Times.size(); ++i) {
        if (!state.At[i])
            continue;
        const std::int32_t minute = ParseTime_Colon(state.Times[i]);
        if (minute != -1)
            reminder.AddNewHourSetup({-1, static_cast<std::int16_t>(minute), 0, 0});
        else if (bad == BadValues::Report)
            return "Invalid time: "_L1 + state.Times[i];
    }
    return {};
}

} // namespace

const QString QuickTitle = u"New Reminder"_s;
const QString QuickText = u"...\r\n"_s;

QuickAddState New_QuickAddState(const Moment& now) {
    QuickAddState state;
    state.Title = QuickTitle;
    state.Text = QuickText;
    state.Date = DayToDateString(now.Today);
    state.Times = {u"18:00"_s, u"20:00"_s, u"22:00"_s};
    return state;
}

ReminderRef Make_PendingReminder(const Moment& now) {
    auto reminder = std::make_unique<ReminderClass>();
    reminder->rs_DayCreated = now.Today;
    reminder->rs_ID = Get_NewReminderID(reminder->rs_ID2);
    reminder->rs_Enabled = true;
    reminder->rs_Reminder_Type = ReminderType::InsideToolbar;
    reminder->rs_Title = QuickTitle;
    reminder->rs_Text = u"..."_s;
    reminder->rs_PlaySound = true;
    return Add_Reminder(std::move(reminder), NewReminder::Pending);
}

void Accept_Pending(const ReminderRef& pending) {
    const std::int32_t index = pending.Slot();
    if (index == -1)
        return;
    ReminderSlot& slot = Global_Reminders[static_cast<std::size_t>(index)];
    slot.Pending = false;
    slot.Reminder.End_Quiet();
}

void Drop_Pending(const ReminderRef& pending) {
    if (const std::int32_t index = pending.Slot(); index != -1)
        Global_Reminders[static_cast<std::size_t>(index)] = {};
}

QString Apply_ToReminder(const QuickAddState& state, ReminderClass& reminder, BadValues bad,
                         const Moment& now) {
    if (const Day day = Chosen_Day(state, now); day != NoDay)
        reminder.Set_ExactDate(DayToDate(day), day);
    else if (bad == BadValues::Report)
        return "Invalid date: \r\n"_L1 + state.Date;
    reminder.rs_Title = state.Title;
    reminder.rs_Text = state.Text;
    reminder.rs_Reminder_Type = state.DisplayMode;
    if (QString error = Apply_Hours(state, reminder, bad); !error.isEmpty())
        return error;
    reminder.rs_Category = Category_FromText(state.Category);
    reminder.rs_Icon = Icon_OfCategory(reminder.rs_Category);
    Sync_CategoriesFromReminders();
    return {};
}

bool Text_FollowsTitle(const QuickAddState& state) {
    return state.Title != QuickTitle && state.Text == QuickText;
}
