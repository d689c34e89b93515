// Where the text box may stand, and when it needs a scroll bar.
#pragma once

#include "platform/desktop.h"

inline constexpr platform::Size TextboxClientSize{250, 97}; // pixels, inside its frame

// Pixels. A box whose title bar can be reached stays where it is; any other comes back onto the
// screen as a whole, or with its upper left corner when it is larger.
platform::Point Reachable_Place(platform::Point place, platform::Size box, platform::Size screen);
// Below this size the box keeps its old layout and clips.
constexpr bool Lays_Out(int width, int height) {
    return width > 70 && height > 70;
}
