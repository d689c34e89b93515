// Writes a "reminders.dat" with one reminder that beeps at every start: make_beep FILE.
#include "core/reminder_store.h"
#include "platform/system.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    platform::Provide_Base_Services();
    Init_Reminders();
    auto& slot = Global_Reminders.front();
    slot.Used = true;
    slot.Reminder = std::make_unique<ReminderClass>();
    slot.Reminder->rs_ID2 = 1;
    slot.Reminder->rs_Enabled = true;
    slot.Reminder->rs_REveryDay = true;
    slot.Reminder->rs_PlaySound = true;
    slot.Reminder->rs_Text = u"Beep"_s;
    slot.Reminder->AddNewHourSetup({-1, -1, 1439, 1439});
    return argc == 2 && Save_Reminders(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
}
