// Lines and frames one logical pixel wide that stay sharp at every scale, because they are filled
// rectangles. Coordinates are pixels of the widget.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRect>

// A frame along the inside of the rectangle.
void Draw_Frame(QPainter& painter, const QRect& rect, const QColor& color);
// Across or down; the end point itself is left out.
void Draw_Line(QPainter& painter, const QPoint& from, const QPoint& to, const QColor& color);
