// Where the forms of the links menu go. Screen pixels.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

// The root menu at the toolbar: under it, over it if there is no room, at the top of the screen if
// there is none either. strip: the toolbar.
QPoint Place_RootMenu(const QRect& strip, QSize menu, const QRect& screen);

// A child beside its parent, at the row that opens it (top: on the screen). It turns to the left at
// the right edge of the screen and grows upward at the bottom.
QPoint Place_ChildMenu(const QRect& parent, int rowTop, QSize child, const QRect& screen);
