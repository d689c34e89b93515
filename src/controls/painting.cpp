#include "controls/painting.h"

void Draw_Frame(QPainter& painter, const QRect& rect, const QColor& color) {
    if (rect.width() < 1 || rect.height() < 1) {
        return;
    }
    painter.fillRect(rect.left(), rect.top(), rect.width(), 1, color);
    painter.fillRect(rect.left(), rect.bottom(), rect.width(), 1, color);
    painter.fillRect(rect.left(), rect.top(), 1, rect.height(), color);
    painter.fillRect(rect.right(), rect.top(), 1, rect.height(), color);
}

void Draw_Line(QPainter& painter, const QPoint& from, const QPoint& to, const QColor& color) {
    if (from.y() == to.y()) {
        painter.fillRect(from.x(), from.y(), to.x() - from.x(), 1, color);
    } else {
        painter.fillRect(from.x(), from.y(), 1, to.y() - from.y(), color);
    }
}
