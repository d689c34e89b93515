// The screens, the cursor, and the other applications on them. All pixels are logical ones.
#pragma once

#include "platform/service.h"

#include <QRect>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace platform {

struct Point {
    int x = 0;
    int y = 0;
    bool operator==(const Point&) const = default;
};

struct Size {
    int width = 0;
    int height = 0;
    bool operator==(const Size&) const = default;
};

class Desktop : public Service<Desktop> {
public:
    // The screens, each with its place on the common plane; the primary one first. Never empty.
    virtual std::vector<QRect> Screens() = 0;
    // Called after a screen has come, gone, or changed its size or place. One handler at a time.
    virtual void On_ScreensChange(std::function<void()> handler) = 0;
    // Twips in one logical pixel (15).
    virtual int TwipsPerPixelX() = 0;
    virtual int TwipsPerPixelY() = 0;
    // Nothing when the system does not tell.
    virtual std::optional<Point> Cursor_Position() = 0;
    // A short tone of the program's own through the sound output, the bell if there is none.
    virtual void Beep() = 0;
    // Title of the window that has the focus; empty when there is none.
    virtual QString Foreground_Title() = 0;
    // Iconifies each window of another application in turn.
    virtual void Minimize_All() = 0;
};

} // namespace platform
