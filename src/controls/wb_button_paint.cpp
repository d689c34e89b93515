#include "controls/metrics.h"
#include "controls/painting.h"
#include "controls/wb_button.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

#include <algorithm>

namespace {
constexpr int PictureGap = 2; // pixels, between a picture and the caption
} // namespace

QColor wbButton::Face_Color() const {
    const QColor color = palette::To_Color(highlighted ? hlColor : backColor);
    return isEnabled() ? color : palette::Faded(color);
}

QColor wbButton::Caption_Color() const {
    if (!isEnabled()) {
        return palette::To_Color(palette::System_GrayText);
    }
    return palette::To_Color(mouseOver.Is_Watching() ? hForeColor : foreColor);
}

QColor wbButton::Border_Color() const {
    const QColor color = palette::To_Color(mouseOver.Is_Watching() ? hBorderColor : borderColor);
    return isEnabled() ? color : palette::Faded(color);
}

// Measured when it is asked for: the first text costs the start of the program its fonts.
QRect wbButton::Caption_Rect() const {
    if (!labelMiddle) {
        return {0, labelTop, width(), height() - labelTop};
    }
    const int labelWidth = fontMetrics().horizontalAdvance(caption);
    return {*labelMiddle - labelWidth / 2 - 1, labelTop, labelWidth, height() - labelTop};
}

void wbButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (style == ButtonStyle::System) {
        Paint_SystemFace(painter);
        return;
    }
    if (backStyle == BackStyle::Opaque) {
        painter.fillRect(rect(), Face_Color());
    }
    if (!picture.isNull()) {
        const QPixmap pixels = picture.pixmap(pictureSize, devicePixelRatioF(),
                                              isEnabled() ? QIcon::Normal : QIcon::Disabled);
        painter.drawPixmap(Picture_Rect(), pixels);
    }
    Paint_Decorations(painter);
    Paint_Caption(painter);
    if (hasFocus() && focusByKey && window()->isActiveWindow()) {
        Draw_Frame(painter, rect().adjusted(1, 1, -1, -1), palette::To_Color(palette::Focus_Mark));
    }
    Draw_Frame(painter, rect(), Border_Color());
}

void wbButton::Paint_SystemFace(QPainter& painter) {
    QStyleOptionButton option;
    option.initFrom(this);
    option.text = fontMetrics().elidedText(caption, Qt::ElideRight, width() - 6);
    option.state.setFlag(QStyle::State_Sunken, highlighted);
    option.state.setFlag(QStyle::State_Raised, !highlighted);
    QWidget::style()->drawControl(QStyle::CE_PushButton, &option, &painter, this);
}

void wbButton::Paint_Decorations(QPainter& painter) {
    const QColor color = isEnabled() ? palette::To_Color(palette::Black)
                                     : palette::To_Color(palette::System_GrayText);
    for (const QRect& shape : shapes) {
        Draw_Frame(painter, shape, color);
    }
    for (const QLine& line : lines) {
        if (line.dx() == 0 || line.dy() == 0) {
            Draw_Line(painter, line.p1(), line.p2(), color);
            continue;
        }
        // Slanted lines run through the middles of their pixels.
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(0.5, 0.5);
        painter.setPen(QPen(color, 1, Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(line);
        painter.restore();
    }
}

// Beside a picture that is not at the centre.
QRect wbButton::Caption_Room() const {
    QRect room(2, labelTop, width() - 4, height() - labelTop);
    if (!picture.isNull() && !centerImage) {
        room.setLeft(std::max(room.left(), Picture_Rect().right() + 1 + PictureGap));
    }
    return room;
}

// At its place as far as the room lets it; its blanks at the front only move it.
void wbButton::Paint_Caption(QPainter& painter) {
    const QString text = caption.trimmed();
    if (text.isEmpty()) {
        return;
    }
    const QFontMetrics metrics = fontMetrics();
    const QRect room = Caption_Room();
    const QRect place = Caption_Rect();
    const int width = metrics.horizontalAdvance(text);
    const int blanks = metrics.horizontalAdvance(caption.left(caption.indexOf(text)));
    const int left =
        place.left() + (place.width() - metrics.horizontalAdvance(caption)) / 2 + blanks;
    const int kept = std::max(std::min(left, room.right() + 1 - width), room.left());
    painter.setPen(Caption_Color());
    painter.drawText(QRect(kept, room.top(), room.right() + 1 - kept, room.height()),
                     Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine | Qt::TextDontClip,
                     metrics.elidedText(text, Qt::ElideRight, room.width()));
}
