#include "app/reminder_watch.h"

#include "core/remind_again.h"
#include "core/reminder_ref.h"
#include "platform/clock.h"

#include <utility>

ReminderWatch::ReminderWatch(Timers& given, Ports wanted)
    : timers(given), ports(std::move(wanted)),
      tick([this] { timers.Enable(TimerName::R_CheckDate_Timer); }) {
    timers.On_Tick(TimerName::R_CheckDate_Timer, [this] { Check_Reminders(); });
    timers.On_Tick(TimerName::Check_Ra_Reminders_Timer, [this] { Check_Queue(); });
}

void ReminderWatch::Start() {
    last = Read_Moment();
    Wait_ForMinute();
}

// A check that a box holds back now follows by the timer.
void ReminderWatch::Wait_ForMinute() {
    platform::Clock::Get().Call_NextMinute(&minutes, [this] {
        Wait_ForMinute();
        timers.Enable(TimerName::R_CheckDate_Timer);
        timers.Tick(TimerName::R_CheckDate_Timer);
        if (RA_Is_Due(Read_Moment())) {
            timers.Enable(TimerName::Check_Ra_Reminders_Timer);
            timers.Tick(TimerName::Check_Ra_Reminders_Timer);
        }
    });
}

void ReminderWatch::Check_Reminders() {
    const Moment now = Read_Moment();
    bool changes = !last || last->Today != now.Today; // the day moves marks of schedules
    if (last) {
        ports.Look_Back(*last, now);
    }
    last = now;
    tick.Check([&](const ReminderRef& due) {
        changes = true;
        ports.Deliver(due);
    });
    if (changes) {
        ports.Note_Change();
    }
    Rest();
}

void ReminderWatch::Check_Queue() {
    const std::int32_t before = Global_RA_Last;
    Check_RA_Reminders(ports.Deliver);
    if (Global_RA_Last != before) {
        ports.Note_Change();
    }
    Rest();
}

void ReminderWatch::Rest() {
    const Moment now = Read_Moment();
    timers.Enable(TimerName::R_CheckDate_Timer, tick.Quiet_Until() <= now.Count());
    timers.Enable(TimerName::Check_Ra_Reminders_Timer, RA_Is_Due(now));
}
