// Writes a "reminders.dat" of reminders that come at every start, all at once:
// make_reminders FILE COUNT toolbar|long|windows. "long" has as much text as one field takes. The
// first one beeps.
#include "core/reminder_store.h"
#include "platform/system.h"

#include <QCoreApplication>

#include <cstdlib>
#include <string_view>

using namespace Qt::StringLiterals;

constexpr qsizetype LongText = 65535; // characters

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    if (argc != 4) {
        return 2;
    }
    platform::Provide_Base_Services();
    Init_Reminders();
    const int count = std::atoi(argv[2]);
    for (std::int32_t id = 0; id < count; ++id) {
        auto reminder = std::make_unique<ReminderClass>();
        reminder->rs_ID = id;
        reminder->rs_ID2 = 1;
        reminder->rs_Enabled = true;
        reminder->rs_REveryDay = true;
        reminder->rs_PlaySound = id == 0;
        reminder->rs_Reminder_Type = argv[3] == std::string_view("windows")
                                         ? ReminderType::NextToToolbar
                                         : ReminderType::InsideToolbar;
        reminder->rs_Text = u"Call the dentist"_s;
        if (argv[3] == std::string_view("long")) {
            reminder->rs_Text = u"Call the dentist. "_s.repeated(LongText).left(LongText);
        }
        reminder->AddNewHourSetup({-1, -1, 1439, 1439});
        auto& slot = Global_Reminders[static_cast<std::size_t>(Take_FreeReminderSlot())];
        slot.Used = true;
        slot.Reminder = std::move(reminder);
    }
    return Save_Reminders(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
}
