// A screen and a cursor that the test moves.
#pragma once

#include "platform/desktop.h"
#include "support/provided.h"

class FakeDesktop : public Provided<platform::Desktop> {
public:
    platform::Size screen{1280, 1024}; // the primary one
    QPoint origin;                     // of the primary one
    std::optional<platform::Point> cursor = platform::Point{640, 512};
    QString foregroundTitle;
    int beeps = 0;
    int minimised = 0; // how often all windows were minimised

    std::vector<QRect> Screens() override { return {{origin, QSize(screen.width, screen.height)}}; }
    void On_ScreensChange(std::function<void()>) override {}
    int TwipsPerPixelX() override { return 15; }
    int TwipsPerPixelY() override { return 15; }
    std::optional<platform::Point> Cursor_Position() override { return cursor; }
    void Beep() override { ++beeps; }
    QString Foreground_Title() override { return foregroundTitle; }
    void Minimize_All() override { ++minimised; }
};
