#include "delivery/message_menu.h"

#include "core/remind_again.h"
#include "delivery/important_rwin.h"
#include "delivery/message_queue.h"
#include "platform/dialogs.h"

using namespace Qt::StringLiterals;

namespace {

// False: the reminder is gone. Its file is written with the next save of the store.
bool Carry_Out(const ReminderRef& shown, ReminderAnswer answer, std::int32_t option) {
    ReminderClass* reminder = shown.Get();
    switch (answer) {
    case ReminderAnswer::Ok:
        return true;
    case ReminderAnswer::RemindAgain:
        if (reminder == nullptr)
            return false;
        // The queue outlives the run, and finds a reminder by its pair.
        Settle_IdPair(shown.Slot());
        return Choose_RA(option, reminder->rs_ID, reminder->rs_ID2);
    case ReminderAnswer::DisableForToday:
        if (reminder != nullptr)
            reminder->rs_DisabledForToday = Get_TodayDay();
        break;
    case ReminderAnswer::Disable:
        if (reminder != nullptr)
            reminder->rs_Enabled = false;
        break;
    }
    return reminder != nullptr;
}

void Tell_Gone() {
    platform::Dialogs::Get().Message(u"Can't find selected reminder"_s,
                                     platform::BoxStyle::Exclamation);
}

} // namespace

void Answer_Message(std::int32_t messageIndex, ReminderAnswer answer, std::int32_t option) {
    if (messageIndex < 0 || static_cast<std::size_t>(messageIndex) >= Global_ToolbarMessages.size())
        return;
    const ToolbarMessage& message = Global_ToolbarMessages[static_cast<std::size_t>(messageIndex)];
    if (Carry_Out(message.Reminder, answer, option))
        Dismiss_Message(messageIndex);
    else
        Tell_Gone();
}

void Answer_Window(frmImportantRWin& caller, ReminderAnswer answer, std::int32_t option) {
    if (Carry_Out(caller.Shown_Reminder(), answer, option))
        caller.wbButton3_Click();
    else
        Tell_Gone();
}
