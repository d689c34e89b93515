#include "platform/clock.h"

#include "platform/providers.h"

#include <QTimer>

#include <ctime>
#include <utility>

namespace platform {

namespace {

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
};

} // namespace

std::unique_ptr<Clock> Make_Clock() {
    return std::make_unique<LinuxClock>();
}

} // namespace platform
