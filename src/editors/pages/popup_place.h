// Where the calendar and the clock stand beside the pages. All pixels on the screen.
#pragma once

#include "platform/desktop.h"

// The nearest place at which the whole window is on the screen.
platform::Point Keep_OnScreen(const platform::Point& place, const platform::Size& window,
                              const platform::Size& screen);
// The calendar of a "Set" button; buttonTop is the button's place on its page.
platform::Point Calendar_Place(const platform::Point& ownerWindow, int buttonTop,
                               const platform::Size& calendar, const platform::Size& screen);
// Right of the page, at the height of the field.
platform::Point Clock_Place(int pageRight, int fieldTop, const platform::Size& clock,
                            const platform::Size& screen);
