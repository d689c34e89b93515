#include "editors/pages/popup_place.h"

#include <algorithm>

namespace {

constexpr int CalendarRight = 480; // of the window's left edge
constexpr int CalendarAbove = 100; // the button
constexpr int ClockGap = 4;

} // namespace

platform::Point Keep_OnScreen(const platform::Point& place, const platform::Size& window,
                              const platform::Size& screen) {
    return {std::max(0, std::min(place.x, screen.width - window.width)),
            std::max(0, std::min(place.y, screen.height - window.height))};
}

platform::Point Calendar_Place(const platform::Point& ownerWindow, int buttonTop,
                               const platform::Size& calendar, const platform::Size& screen) {
    return Keep_OnScreen({ownerWindow.x + CalendarRight, ownerWindow.y + buttonTop - CalendarAbove},
                         calendar, screen);
}

platform::Point Clock_Place(int pageRight, int fieldTop, const platform::Size& clock,
                            const platform::Size& screen) {
    return Keep_OnScreen({pageRight + ClockGap, fieldTop}, clock, screen);
}
