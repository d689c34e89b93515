// Which of the screens is meant: the one that holds the toolbar, or a window, or a point. Pixels.
#pragma once

#include <QRect>

#include <vector>

// The screen that holds the place, else the first one.
QRect Screen_Holding(const std::vector<QRect>& screens, const QPoint& place);
// Whether all of the area is on screens, on one of them or across their common edges.
bool Is_OnScreens(const std::vector<QRect>& screens, const QRect& area);
// The area, moved as little as it takes to lie inside; one that is too large is flush at the left
// or the top.
QRect Moved_Into(const QRect& screen, QRect area);
// Where a window of this size stands in the middle.
QPoint Centered_In(const QRect& screen, const QSize& window);

// The same for a window beside a field that is to stay in sight: where the area would cover it, it
// stands below, above, right or left of the field, wherever there is room first.
QRect Moved_Clear(const QRect& screen, const QRect& area, const QRect& field);

// The screen that holds the middle of the toolbar, else the primary one.
QRect The_Screen();
// The one that holds the place, else the primary one: for what stands beside something there.
QRect Screen_At(const QPoint& place);
