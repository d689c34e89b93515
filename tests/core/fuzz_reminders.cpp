// Loads any bytes as the reminders' file, ticks and asks what they held, and saves it again.
#include "core_test.h"

using namespace Qt::StringLiterals;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static FakeClock clock;
    static MemoryFiles files;
    const QString file = u"reminders.dat"_s;
    files.content = {{file, std::string(reinterpret_cast<const char*>(data), size)}};
    clock.Set(2026, 3, 2, 9, 0);
    Init_TimeRoutines();
    Init_Reminders();
    if (Load_Reminders(file) != 0)
        return 0;
    for (int tick = 0; tick < 48; ++tick) {
        Check_AllReminders([](std::int32_t) {});
        clock.Advance(1801000);
    }
    for (const ReminderSlot& slot : Global_Reminders) {
        if (!slot.Used)
            continue;
        slot.Reminder->Check_ReminderWasMissedToday();
        DayToDateString(slot.Reminder->GetNext_RunDate());
        DayToDateString(slot.Reminder->GetPrevious_RunDate());
    }
    std::int32_t id2 = 0;
    Get_NewReminderID(id2);
    if (!Save_Reminders(file) || Load_Reminders(file) != 0)
        __builtin_trap();
    return 0;
}
