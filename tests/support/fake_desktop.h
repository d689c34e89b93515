// A screen and a cursor that the test moves.
#pragma once

#include "platform/desktop.h"
#include "support/provided.h"

class FakeDesktop : public Provided<platform::Desktop> {
public:
    platform::Size screen{1280, 1024};
    int twipsPerPixel = 15;
    std::optional<platform::Point> cursor = platform::Point{640, 512};
    QString foregroundTitle;
    int beeps = 0;
    int minimised = 0; // how often all windows were minimised

    platform::Size Screen_Size() override { return screen; }
    int TwipsPerPixelX() override { return twipsPerPixel; }
    int TwipsPerPixelY() override { return twipsPerPixel; }
    std::optional<platform::Point> Cursor_Position() override { return cursor; }
    void Beep() override { ++beeps; }
    QString Foreground_Title() override { return foregroundTitle; }
    void Minimize_All() override { ++minimised; }
};
