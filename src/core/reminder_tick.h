// The check of the reminders, again and again: who fires now, and until when nobody can.
#pragma once

#include "core/time_routines.h"

#include <cstdint>
#include <functional>

class ReminderRef;

class ReminderTick {
public:
    // onChange hears of the first change after a check that made its answer void; the change itself
    // may only be beginning then. While it lives, the latest tick is the one that is told.
    explicit ReminderTick(std::function<void()> onChange = {});
    ~ReminderTick();
    ReminderTick(const ReminderTick&) = delete;
    ReminderTick& operator=(const ReminderTick&) = delete;

    // Asks each used reminder that is not pending, in slot order, whether it fires now, and
    // delivers it at once, before the next is asked. deliver may add, delete and edit reminders;
    // slots that it adds are asked at the next check.
    void Check(const std::function<void(const ReminderRef& due)>& deliver);
    // No check before this minute would deliver anything, unless something changes or the clock
    // goes back. 0: the next one may.
    MinuteCount Quiet_Until() const { return changed ? 0 : quietUntil; }

    // A reminder is reached for to be changed, or what else may fire has changed.
    static void Note_Change() {
        if (current != nullptr && !current->changed)
            current->Begin_Change();
    }

private:
    void Begin_Change();
    void Follow_Clock(MinuteCount now);

    inline static ReminderTick* current = nullptr;
    ReminderTick* before;
    std::function<void()> onChange;
    MinuteCount last = 0;
    MinuteCount quietUntil = 0;
    std::uint32_t checks = 0;
    bool changed = true;
};
