#include "platform/clock.h"

#include "platform/linux/descriptor.h"
#include "platform/providers.h"

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <cstdint>
#include <ctime>
#include <sys/timerfd.h>
#include <utility>

namespace platform {

namespace {

constexpr std::int64_t Minute = 60; // seconds

std::int64_t Wall_Seconds() {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return now.tv_sec;
}

// A timer on the wall clock. It ends with the sleep of the machine, which the clocks that run while
// it is awake do not count, and with a step of the clock.
Descriptor Start_MinuteTimer() {
    Descriptor timer(timerfd_create(CLOCK_REALTIME, TFD_CLOEXEC | TFD_NONBLOCK));
    itimerspec wish{};
    // Again when the clock was set back between the two calls.
    do {
        wish.it_value.tv_sec = (Wall_Seconds() / Minute + 1) * Minute;
        if (timerfd_settime(timer.Number(), TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &wish,
                            nullptr) != 0)
            return Descriptor();
    } while (wish.it_value.tv_sec > Wall_Seconds() + Minute);
    return timer;
}

// Waits for the next minute as a child of whoever asked for it.
class MinuteWait : public QObject {
public:
    MinuteWait(QObject* context, Descriptor started, std::function<void()> work)
        : QObject(context), timer(std::move(started)),
          notifier(timer.Number(), QSocketNotifier::Read) {
        connect(&notifier, &QSocketNotifier::activated, this, [this, work = std::move(work)] {
            notifier.setEnabled(false);
            deleteLater();
            const auto now = work; // may release the context
            now();
        });
    }

private:
    Descriptor timer;
    QSocketNotifier notifier;
};

class LinuxClock : public Clock {
public:
    LocalTime Now() override {
        timespec now{};
        clock_gettime(CLOCK_REALTIME, &now);
        tm local{};
        tzset(); // localtime_r alone need not notice a change of the zone
        localtime_r(&now.tv_sec, &local);
        return {local.tm_year + 1900,
                local.tm_mon + 1,
                local.tm_mday,
                local.tm_hour,
                local.tm_min,
                local.tm_sec < 60 ? local.tm_sec : 59, // a leap second
                static_cast<int>(now.tv_nsec / 1'000'000)};
    }

    std::int32_t Milliseconds() override {
        timespec now{};
        clock_gettime(CLOCK_MONOTONIC, &now);
        const auto passed = static_cast<std::uint64_t>(now.tv_sec) * 1000U +
                            static_cast<std::uint64_t>(now.tv_nsec) / 1'000'000U;
        return static_cast<std::int32_t>(static_cast<std::uint32_t>(passed));
    }

    void Call_Later(int milliseconds, QObject* context, std::function<void()> work) override {
        QTimer::singleShot(milliseconds, Qt::PreciseTimer, context, std::move(work));
    }

    void Call_NextMinute(QObject* context, std::function<void()> work) override {
        if (Descriptor timer = Start_MinuteTimer(); timer.Is_Open()) {
            new MinuteWait(context, std::move(timer), std::move(work));
            return;
        }
        const auto left = static_cast<int>(Minute - Wall_Seconds() % Minute);
        Call_Later(left * 1000, context, std::move(work));
    }
};

} // namespace

std::unique_ptr<Clock> Make_Clock() {
    return std::make_unique<LinuxClock>();
}

} // namespace platform
