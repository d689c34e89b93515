// Ticks and asks what the file held, and saves it again.
#include "core/date_text.h"
#include "core/reminder_store.h"
#include "fuzz.h"

void Try(Ground& ground) {
    Init_Reminders();
    if (Load_Reminders(ground.file) != TableLoad::Loaded) {
        return;
    }
    ReminderTick tick;
    for (int round = 0; round < 48; ++round) {
        tick.Check([](const ReminderRef&) {});
        ground.clock.Advance(1801000);
    }
    for (const ReminderSlot& slot : Global_Reminders) {
        if (slot.Used) {
            slot.Reminder->Check_ReminderWasMissedToday();
            DayToDateString(slot.Reminder->GetNext_RunDate());
            DayToDateString(slot.Reminder->GetPrevious_RunDate());
        }
    }
    std::int32_t id2 = 0;
    Get_NewReminderID(id2);
    Must(Save_Reminders(ground.file) && Load_Reminders(ground.file) == TableLoad::Loaded);
    const std::string saved = ground.Bytes();
    Must(Save_Reminders(ground.file) && ground.Bytes() == saved);
}
