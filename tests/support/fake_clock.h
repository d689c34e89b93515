// A clock that stands still until a test moves it. What was to be called later is called as it
// moves on, each at its own time.
#pragma once

#include "platform/clock.h"
#include "support/provided.h"

#include <QDateTime>
#include <QPointer>

#include <algorithm>
#include <utility>
#include <vector>

class FakeClock : public Provided<platform::Clock> {
public:
    void Set(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
        now = QDateTime(QDate(year, month, day), QTime(hour, minute, second), Qt::UTC);
        Tell_OfStep();
    }
    // Moves both clocks on.
    void Advance(qint64 milliseconds) {
        const qint64 end = passed + milliseconds;
        const auto sooner = [](const Later& a, const Later& b) { return a.due < b.due; };
        for (;;) {
            const auto next = std::min_element(later.begin(), later.end(), sooner);
            if (next == later.end() || next->due > end) {
                break;
            }
            const Later call = *next;
            later.erase(next);
            Pass_To(call.due);
            if (call.context) {
                call.work();
            }
        }
        Pass_To(end);
    }
    // Moves both on as a machine that hangs does: whoever was to be called is late.
    void Pass(qint64 milliseconds) { Pass_To(passed + milliseconds); }
    // Moves the wall clock alone, as a person or a zone change does.
    void Jump(qint64 seconds) {
        now = now.addSecs(seconds);
        Tell_OfStep();
    }
    void Set_Milliseconds(std::int32_t value) { ticks = static_cast<std::uint32_t>(value); }

    platform::LocalTime Now() override {
        const QDate date = now.date();
        const QTime time = now.time();
        return {date.year(),   date.month(),  date.day(), time.hour(),
                time.minute(), time.second(), time.msec()};
    }
    std::int32_t Milliseconds() override { return static_cast<std::int32_t>(ticks); }
    void Call_Later(int milliseconds, QObject* context, std::function<void()> work) override {
        later.push_back({passed + std::max(milliseconds, 0), context, std::move(work), false});
    }
    void Call_NextMinute(QObject* context, std::function<void()> work) override {
        const QTime time = now.time();
        const int left = 60'000 - time.second() * 1000 - time.msec();
        later.push_back({passed + left, context, std::move(work), true});
    }
    // Calls that wait.
    std::size_t Waiting() const {
        return static_cast<std::size_t>(std::count_if(
            later.begin(), later.end(), [](const Later& call) { return !call.context.isNull(); }));
    }

private:
    struct Later {
        qint64 due = 0;
        QPointer<QObject> context;
        std::function<void()> work;
        bool endsWithStep = false;
    };

    void Tell_OfStep() {
        const auto first = std::stable_partition(
            later.begin(), later.end(), [](const Later& call) { return !call.endsWithStep; });
        const std::vector<Later> told(first, later.end());
        later.erase(first, later.end());
        for (const Later& call : told) {
            if (call.context) {
                call.work();
            }
        }
    }

    // Work that is called may have moved the clock further already.
    void Pass_To(qint64 time) {
        const qint64 step = std::max(time - passed, qint64{0});
        passed += step;
        now = now.addMSecs(step);
        ticks += static_cast<std::uint32_t>(step);
    }

    QDateTime now{QDate(2026, 3, 2), QTime(9, 0), Qt::UTC};
    std::uint32_t ticks = 1000;
    qint64 passed = 0; // since the test began
    std::vector<Later> later;
};
