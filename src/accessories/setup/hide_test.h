// Lets a user see how the toolbar hides and comes back.
#pragma once

#include "controls/toolbar.h"

#include <functional>

// Hides the toolbar for about two and a half seconds, or until somebody brings it back, handling
// events in between. wanted: whether the test still is; asked after everything that can happen.
void Run_HideTest(Toolbar& toolbar, HideMode mode, const std::function<bool()>& wanted);
