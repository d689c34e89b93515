// Lets a user see how the toolbar hides and comes back.
#pragma once

#include "controls/step_timer.h"
#include "controls/toolbar.h"

#include <cstdint>
#include <functional>

class HideTest {
public:
    // Hides the toolbar for about two and a half seconds, or until somebody brings it back. ended:
    // called then; not before the toolbar is on its way back.
    void Start(Toolbar& hidden, HideMode mode, std::function<void()> ended);
    // Leaves the toolbar as it is, and calls nobody.
    void Cancel();
    bool Is_Running() const { return toolbar != nullptr; }

private:
    void Step();

    Toolbar* toolbar = nullptr; // while it runs
    std::function<void()> onEnd;
    std::int32_t start = 0; // millisecond clock
    StepTimer timer;
};
