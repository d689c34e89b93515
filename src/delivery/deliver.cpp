#include "delivery/deliver.h"

#include "core/remind_again.h"
#include "core/reminder_store.h"
#include "delivery/message_queue.h"
#include "delivery/near_placement.h"
#include "delivery/show_windows.h"
#include "platform/desktop.h"

namespace {

void Play_Sound(const ReminderClass& reminder) {
    Global_PlayerClass = std::make_unique<MCIClass>();
    if (!reminder.rs_PlaySound)
        return;
    if (reminder.rs_SoundPath.isEmpty())
        platform::Desktop::Get().Beep();
    else if (Global_PlayerClass->OpenAudioFile(reminder.rs_SoundPath.trimmed()) == 0)
        Global_PlayerClass->Play(0);
}

} // namespace

std::unique_ptr<MCIClass> Global_PlayerClass;

void Init_MessageWinRoutines() {
    Init_ToolbarMessages();
    Init_RA_Reminders();
    Init_ReminderWindows();
}

void Deliver_Reminder(std::int32_t index) {
    if (index < 0 || static_cast<std::size_t>(index) >= Global_Reminders.size())
        return;
    const ReminderSlot& slot = Global_Reminders[static_cast<std::size_t>(index)];
    if (!slot.Used || slot.Reminder == nullptr)
        return;
    Settle_IdPair(index);
    const ReminderClass& reminder = slot.Reminder.Peek();
    Play_Sound(reminder);
    switch (reminder.rs_Reminder_Type) {
    case ReminderType::InsideToolbar:
        Show_ToolbarMessage(index);
        break;
    case ReminderType::NextToToolbar:
        Show_NextToToolbar(index);
        break;
    case ReminderType::Centered:
        Show_Centered(index, reminder.rs_Minimize_Apps ? OtherApplications::Minimize
                                                       : OtherApplications::Leave);
        break;
    }
}
