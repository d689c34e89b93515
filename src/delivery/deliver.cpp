#include "delivery/deliver.h"

#include "delivery/centered_windows.h"
#include "delivery/message_queue.h"
#include "delivery/near_windows.h"
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
    Init_NearWindows();
    Init_CenterWindows();
}

void Deliver_Reminder(const ReminderRef& due) {
    const ReminderClass* reminder = due.Peek();
    if (reminder == nullptr)
        return;
    Play_Sound(*reminder);
    switch (reminder->rs_Reminder_Type) {
    case ReminderType::InsideToolbar:
        Show_ToolbarMessage(due);
        break;
    case ReminderType::NextToToolbar:
        Show_NextToToolbar(due);
        break;
    case ReminderType::Centered:
        Show_Centered(due);
        break;
    }
}
