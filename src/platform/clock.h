// The local date and time, a millisecond clock to measure with, and calls when time has passed.
#pragma once

#include "platform/service.h"

#include <cstdint>
#include <functional>

class QObject;

namespace platform {

// One reading of the wall clock in the zone that is in force now. month 1..12, day 1..31.
struct LocalTime {
    int year = 2000;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;
    int millisecond = 0;
};

class Clock : public Service<Clock> {
public:
    // Follows the system's clock and zone as they change.
    virtual LocalTime Now() = 0;
    // Never goes back, wraps after 2^32 ms. Differences: Milliseconds_Since.
    virtual std::int32_t Milliseconds() = 0;
    // Calls work once, from the event loop, when so many ms of this clock have passed; never when
    // the context is gone by then.
    virtual void Call_Later(int milliseconds, QObject* context, std::function<void()> work) = 0;
    // Calls work once, from the event loop, when the wall clock has come to its next minute, or at
    // once when it is set or the machine wakes before; never when the context is gone by then.
    virtual void Call_NextMinute(QObject* context, std::function<void()> work) = 0;

    // Plain subtraction on the wrapping counter, ms.
    std::int32_t Milliseconds_Since(std::int32_t start) {
        return static_cast<std::int32_t>(static_cast<std::uint32_t>(Milliseconds()) -
                                         static_cast<std::uint32_t>(start));
    }
};

} // namespace platform
