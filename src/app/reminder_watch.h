// When the reminders and the queue of those sent away are checked: each second, or five, while the
// next check may find something, and otherwise at the start of each minute; at once when the clock
// was set or the machine has slept.
#pragma once

#include "controls/timers.h"
#include "core/reminder_tick.h"

#include <QObject>

#include <cstdint>
#include <functional>
#include <optional>

class ReminderWatch {
public:
    struct Ports {
        std::function<void(const ReminderRef& due)> Deliver;
        // Hours may have gone by between two checks.
        std::function<void(const Moment& before, const Moment& now)> Look_Back;
        // Something of the tables is other than before.
        std::function<void()> Note_Change;
    };
    ReminderWatch(Timers& timers, Ports ports);

    // From the end of the load on.
    void Start();

private:
    void Wait_ForMinute();
    void Check_Reminders();
    void Check_Queue();
    void Rest();

    Timers& timers;
    Ports ports;
    ReminderTick tick;
    std::optional<Moment> last;
    QObject minutes; // the wait for the next one
};
