// The screen, the cursor, and the other applications on it. All pixels are logical ones; "the
// screen" is the primary screen.
#pragma once

#include "platform/service.h"

#include <QString>

#include <optional>

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
    virtual Size Screen_Size() = 0;
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
