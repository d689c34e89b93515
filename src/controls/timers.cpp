#include "controls/timers.h"

#include "platform/dialogs.h"

#include <QTimer>

#include <cstddef>
#include <utility>

const std::array<TimerRow, TimerCount> Global_TimerTable = {{
    {"R_CheckDate_Timer", 1000, true},
    {"Check_Ra_Reminders_Timer", 5000, true},
    {"S_Reminder_Timer", 100, false},
    {"RunWizard_Timer", 1000, false},
    {"UnloadFormsTimer", 100, false},
    {"TestDate_Timer", 1000, false},
    {"AutoHideTimer", 1000, true},
    {"TK_AppMessage_Timer", 500, false},
    {"Win98HideForms", 600, false},
    {"TransHandlerTimer", 5, false, UnderBox::Ticks},
    {"ResizeForm_Timer", 10, false},
}};

Timers* Global_Timers = nullptr;

namespace {

// From here on a timer may come a little late, so that several of them share one wake-up.
constexpr int CoarseFrom = 500; // ms

std::size_t Index_Of(TimerName timer) {
    return static_cast<std::size_t>(timer);
}

bool Held_ByBox(TimerName timer) {
    return Global_TimerTable[Index_Of(timer)].Box == UnderBox::Rests &&
           platform::Dialogs::Get().Holds_Timers();
}

} // namespace

struct Timers::Running {
    QTimer Clock;
    std::function<void()> Work;
    bool Enabled = false;

    // A timer without work stays enabled by name, but wakes nobody.
    void Match() {
        const bool wanted = Enabled && Work;
        if (wanted && !Clock.isActive()) {
            Clock.start();
        } else if (!wanted) {
            Clock.stop();
        }
    }
};

Timers::Timers() {
    for (std::size_t i = 0; i < running.size(); ++i) {
        running[i] = std::make_unique<Running>();
        QTimer& clock = running[i]->Clock;
        const int interval = Global_TimerTable[i].Interval;
        clock.setInterval(interval);
        clock.setTimerType(interval >= CoarseFrom ? Qt::CoarseTimer : Qt::PreciseTimer);
        QObject::connect(&clock, &QTimer::timeout, &clock,
                         [this, i] { Tick(static_cast<TimerName>(i)); });
    }
}

Timers::~Timers() {
    if (Global_Timers == this) {
        Global_Timers = nullptr;
    }
}

void Timers::On_Tick(TimerName timer, std::function<void()> work) {
    Running& one = *running[Index_Of(timer)];
    one.Work = std::move(work);
    one.Match();
}

void Timers::Start_FirstTimers() {
    for (std::size_t i = 0; i < running.size(); ++i) {
        if (Global_TimerTable[i].Enabled) {
            Enable(static_cast<TimerName>(i));
        }
    }
}

void Timers::Enable(TimerName timer, bool enabled) {
    Running& one = *running[Index_Of(timer)];
    one.Enabled = enabled && !ended;
    one.Match();
}

bool Timers::Is_Enabled(TimerName timer) const {
    return running[Index_Of(timer)]->Enabled;
}

void Timers::Stop_All() {
    ended = true;
    for (auto& one : running) {
        one->Enabled = false;
        one->Match();
    }
}

void Timers::Tick(TimerName timer) {
    if (ended || Held_ByBox(timer)) {
        return;
    }
    // The work may register other work for its own timer.
    const auto work = running[Index_Of(timer)]->Work;
    if (work) {
        work();
    }
}
