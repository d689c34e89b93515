#include "delivery/message_menu.h"

#include "core/remind_again.h"
#include "core/reminder_store.h"
#include "delivery/important_rwin.h"
#include "delivery/message_queue.h"
#include "platform/dialogs.h"

using namespace Qt::StringLiterals;

namespace {

ReminderClass* Find_Reminder(std::int32_t id, std::int32_t id2) {
    const std::int32_t index = Find_ReminderIndex(id, id2);
    return index == -1 ? nullptr : Global_Reminders[static_cast<std::size_t>(index)].Reminder.get();
}

void Tell_Gone() {
    platform::Dialogs::Get().Message(u"Can't find selected reminder"_s,
                                     platform::BoxStyle::Exclamation);
}

// action gets the reminder's two numbers; false when it is gone.
template <class Action>
void Apply_ToMessage(std::int32_t messageIndex, const Action& action) {
    if (messageIndex < 0 || static_cast<std::size_t>(messageIndex) >= Global_ToolbarMessages.size())
        return;
    const ToolbarMessage& message = Global_ToolbarMessages[static_cast<std::size_t>(messageIndex)];
    if (action(message.ReminderID, message.ReminderCategoryID))
        Dismiss_Message(messageIndex);
    else
        Tell_Gone();
}

template <class Action>
void Apply_ToWindow(frmImportantRWin& caller, const Action& action) {
    if (action(caller.ThisReminderID, caller.ThisCategoryID))
        caller.wbButton3_Click();
    else
        Tell_Gone();
}

auto Remind_Again(std::int32_t option) {
    return [option](std::int32_t id, std::int32_t id2) {
        const std::int32_t index = Find_ReminderIndex(id, id2);
        if (index == -1)
            return false;
        Settle_IdPair(index);
        return Choose_RA(option, id, id2);
    };
}

} // namespace

bool Disable_ReminderForToday(std::int32_t id, std::int32_t id2) {
    ReminderClass* reminder = Find_Reminder(id, id2);
    if (reminder == nullptr)
        return false;
    reminder->rs_DisabledForToday = Get_TodayDay();
    return true;
}

bool Disable_Reminder(std::int32_t id, std::int32_t id2) {
    ReminderClass* reminder = Find_Reminder(id, id2);
    if (reminder == nullptr)
        return false;
    reminder->rs_Enabled = false;
    return true;
}

void Message_Ok(std::int32_t messageIndex) {
    Dismiss_Message(messageIndex);
}

void Message_RemindAgain(std::int32_t messageIndex, std::int32_t option) {
    Apply_ToMessage(messageIndex, Remind_Again(option));
}

void Message_DisableForToday(std::int32_t messageIndex) {
    Apply_ToMessage(messageIndex, Disable_ReminderForToday);
}

void Message_Disable(std::int32_t messageIndex) {
    Apply_ToMessage(messageIndex, Disable_Reminder);
}

void Window_RemindAgain(frmImportantRWin& caller, std::int32_t option) {
    Apply_ToWindow(caller, Remind_Again(option));
}

void Window_DisableForToday(frmImportantRWin& caller) {
    Apply_ToWindow(caller, Disable_ReminderForToday);
}

void Window_Disable(frmImportantRWin& caller) {
    Apply_ToWindow(caller, Disable_Reminder);
}
