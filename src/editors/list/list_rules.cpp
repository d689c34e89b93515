#include "editors/list/list_rules.h"

#include "controls/text_fields.h"
#include "core/date_text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

const QString FilterAll = u"-- (All)"_s;
const QString FilterNone = u"-- (No category)"_s;

namespace {

constexpr qsizetype QuotedText = 60;

const ReminderClass& Reminder_At(std::int32_t slot) {
    return Global_Reminders[static_cast<std::size_t>(slot)].Reminder.Peek();
}

bool Same_Text(const QString& left, const QString& right) {
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

} // namespace

std::vector<std::int32_t> Visible_Slots(const QString& filter) {
    const bool all = Same_Text(filter, FilterAll);
    const QString category = Same_Text(filter, FilterNone) ? QString() : filter;
    std::vector<std::int32_t> slots;
    slots.reserve(all ? Global_Reminders.size() : 0);
    const auto count = static_cast<std::int32_t>(Global_Reminders.size());
    for (std::int32_t index = 0; index < count; ++index) {
        const ReminderSlot& slot = Global_Reminders[static_cast<std::size_t>(index)];
        if (slot.Used && !slot.Pending &&
            (all || Same_Text(slot.Reminder.Peek().rs_Category, category)))
            slots.push_back(index);
    }
    return slots;
}

QString NextRun_Caption(Day nextRun) {
    if (nextRun == NoDay)
        return u"( )"_s;
    return u'(' + DayToFriendlyString(nextRun) + u')';
}

Day NextRun_ForDisplay(const ReminderClass& reminder, const Moment& now) {
    ReminderClass copy = reminder;
    return copy.GetNext_RunDate(now);
}

QString Delete_Question(const ReminderClass& reminder, const Moment& now) {
    QString text = reminder.rs_Text.simplified();
    if (text.size() > QuotedText)
        text = text.left(QuotedText) + u"..."_s;
    const Day nextRun = NextRun_ForDisplay(reminder, now);
    return u"Delete: %1 ?\r\n\r\n\"%2\"\r\nNext run: %3"_s.arg(
        reminder.rs_Title, text, nextRun == NoDay ? u"--"_s : DayToFriendlyString(nextRun));
}

QString Category_OfNew(const QString& filter) {
    return Same_Text(filter, FilterNone) || Same_Text(filter, FilterAll) ? QString() : filter;
}

QString Category_OfPasted(const QString& filter) {
    // "-- all" is not what the box holds: a paste under "-- (All)" takes that text for its
    // category. That is meant.
    return Same_Text(filter, FilterNone) || Same_Text(filter, u"-- all"_s) ? QString() : filter;
}

bool Is_SampleText(const QString& text) {
    return text.isEmpty() || text == "..."_L1 || Same_Text(text, u"insert text here"_s);
}

void Select_SampleText(QPlainTextEdit& box) {
    if (Is_SampleText(Plain_Text(box)))
        box.selectAll();
}

ReminderRef Add_New_Reminder(const QString& category) {
    auto reminder = std::make_unique<ReminderClass>();
    reminder->SetDefaultValues();
    reminder->rs_ID = Get_NewReminderID(reminder->rs_ID2);
    reminder->rs_Category = category;
    return Add_Reminder(std::move(reminder));
}

std::vector<std::int32_t> Slots_OfCategory(const QString& name) {
    std::vector<std::int32_t> slots;
    const auto count = static_cast<std::int32_t>(Global_Reminders.size());
    for (std::int32_t index = 0; index < count; ++index)
        if (Global_Reminders[static_cast<std::size_t>(index)].Used &&
            Same_Text(Reminder_At(index).rs_Category.trimmed(), name.trimmed()))
            slots.push_back(index);
    return slots;
}
