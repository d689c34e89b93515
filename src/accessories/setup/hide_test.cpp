#include "accessories/setup/hide_test.h"

#include "controls/program_end.h"
#include "platform/clock.h"

#include <QCoreApplication>

namespace {

constexpr int TestTime = 2500; // ms
constexpr int WaitStep = 10;   // ms

} // namespace

void Run_HideTest(Toolbar& toolbar, HideMode mode, const std::function<bool()>& wanted) {
    platform::Clock& clock = platform::Clock::Get();
    toolbar.AutoHide_HideProc(mode, false);
    const std::int32_t start = clock.Milliseconds();
    while (!Program_Is_Ending() && wanted() && !toolbar.Toolbar_Visible() &&
           clock.Milliseconds_Since(start) < TestTime) {
        QCoreApplication::processEvents();
        clock.Wait(WaitStep);
    }
    if (!Program_Is_Ending())
        toolbar.AutoHide_ShowProc(false);
}
