// The queue of what comes again.
#include "core/remind_again.h"

#include "core/reminder_store.h"
#include "fuzz.h"

void Try(Ground& ground) {
    Init_Reminders();
    Init_RA_Reminders();
    if (Load_RA_Reminders(ground.file) != TableLoad::Loaded) {
        return;
    }
    Check_RA_Reminders([](const ReminderRef&) {});
    const std::size_t size = ground.Bytes().size();
    Must(Save_RA_Reminders(ground.file) && ground.Bytes().size() >= size);
    const auto queue = Global_RA_Reminders;
    const std::int32_t last = Global_RA_Last;
    Must(Load_RA_Reminders(ground.file) == TableLoad::Loaded && Global_RA_Last == last);
    for (std::size_t at = 0; static_cast<std::int32_t>(at) <= last; ++at) {
        Must(Global_RA_Reminders[at].Day == queue[at].Day &&
             Global_RA_Reminders[at].ID2 == queue[at].ID2);
    }
}
