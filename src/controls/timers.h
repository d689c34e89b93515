// The timers of the toolbar: one table of names, intervals and first states. Whoever does a
// timer's work registers it; everybody may start and stop a timer by its name.
#pragma once

#include <array>
#include <functional>
#include <memory>

class QTimer;

enum class TimerName {
    R_CheckDate_Timer,
    Check_Ra_Reminders_Timer,
    S_Reminder_Timer,
    RunWizard_Timer,
    UnloadFormsTimer,
    TestDate_Timer,
    AutoHideTimer,
    TK_AppMessage_Timer,
    Win98HideForms,
    TransHandlerTimer,
    ResizeForm_Timer,
};
inline constexpr int TimerCount = 11;

// While a message or question box of the program is on view a tick passes without work; the work
// follows at the next tick. What such a box finds half-way on the screen goes on.
enum class UnderBox { Rests, Ticks };

struct TimerRow {
    const char* Name;
    int Interval; // ms
    bool Enabled; // from the end of the load on
    UnderBox Box = UnderBox::Rests;
};
// In the order of TimerName.
extern const std::array<TimerRow, TimerCount> Global_TimerTable;

class Timers {
public:
    Timers();
    ~Timers();
    Timers(const Timers&) = delete;
    Timers& operator=(const Timers&) = delete;

    void On_Tick(TimerName timer, std::function<void()> work);
    // Starts those that are enabled in the table.
    void Start_FirstTimers();
    void Enable(TimerName timer, bool enabled = true);
    bool Is_Enabled(TimerName timer) const;
    // Stops all of them for good, at the end of the program.
    void Stop_All();
    // Does the work of one tick now, as the timer would.
    void Tick(TimerName timer);

private:
    struct Running;
    std::array<std::unique_ptr<Running>, TimerCount> running;
    bool ended = false;
};

// Handed out by the application; lives from the load to the end.
extern Timers* Global_Timers;
