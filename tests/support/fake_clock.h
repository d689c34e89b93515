// A clock that stands still until a test moves it, or somebody waits.
#pragma once

#include "platform/clock.h"

#include <QDateTime>

class FakeClock : public platform::Clock {
public:
    FakeClock() : before(platform::Clock::Provide(this)) {}
    ~FakeClock() override { platform::Clock::Provide(before); }

    void Set(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
        now = QDateTime(QDate(year, month, day), QTime(hour, minute, second), Qt::UTC);
    }
    // Moves both clocks on.
    void Advance(qint64 milliseconds) {
        now = now.addMSecs(milliseconds);
        ticks += static_cast<std::uint32_t>(milliseconds);
    }
    // Moves the wall clock alone, as a person or a zone change does.
    void Jump(qint64 seconds) { now = now.addSecs(seconds); }
    void Set_Milliseconds(std::int32_t value) { ticks = static_cast<std::uint32_t>(value); }

    platform::LocalTime Now() override {
        const QDate date = now.date();
        const QTime time = now.time();
        return {date.year(),   date.month(),  date.day(), time.hour(),
                time.minute(), time.second(), time.msec()};
    }
    std::int32_t Milliseconds() override { return static_cast<std::int32_t>(ticks); }
    void Wait(int milliseconds) override { Advance(milliseconds); }

private:
    platform::Clock* before;
    QDateTime now{QDate(2026, 3, 2), QTime(9, 0), Qt::UTC};
    std::uint32_t ticks = 1000;
};
