#include "accessories/setup/hide_test.h"

#include "platform/clock.h"

#include <utility>

namespace {

constexpr int TestTime = 2500; // ms
constexpr int WaitStep = 10;   // ms

} // namespace

void HideTest::Start(Toolbar& hidden, HideMode mode, std::function<void()> ended) {
    toolbar = &hidden;
    onEnd = std::move(ended);
    start = platform::Clock::Get().Milliseconds();
    toolbar->AutoHide_HideProc(mode, false);
    Step();
}

void HideTest::Step() {
    if (!toolbar->Toolbar_Visible() &&
        platform::Clock::Get().Milliseconds_Since(start) < TestTime) {
        timer.Start(WaitStep, [this] { Step(); });
        return;
    }
    std::exchange(toolbar, nullptr)->AutoHide_ShowProc(false);
    onEnd();
}

void HideTest::Cancel() {
    timer.Stop();
    toolbar = nullptr;
}
