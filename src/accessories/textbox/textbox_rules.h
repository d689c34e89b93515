// Where the text box may stand, and when it needs a scroll bar.
#pragma once

#include <QRect>

#include <vector>

inline constexpr QSize TextboxClientSize{250, 97}; // pixels, inside its frame

// Pixels. A box whose title bar can be reached on one of the screens stays where it is; any other
// comes back onto the home screen as a whole, or with its upper left corner when it is larger.
QPoint Reachable_Place(const QPoint& place, const QSize& box, const std::vector<QRect>& screens,
                       const QRect& home);
// Below this size the box keeps its old layout and clips.
constexpr bool Lays_Out(int width, int height) {
    return width > 70 && height > 70;
}
