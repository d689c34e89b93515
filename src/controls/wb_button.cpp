#include "controls/wb_button.h"

#include "controls/metrics.h"
#include "controls/wb_button_accessible.h"

#include <QEvent>

using namespace Qt::StringLiterals;

namespace {
constexpr int LookInterval = 10; // ms
}

wbButton::wbButton(QWidget* parent)
    : QWidget(parent), caption(u"Button 1"_s), mouseOver(LookInterval, [this] { update(); }) {
    setFont(Small_Font());
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    // A press on a disabled button must not become a press on the window behind it.
    setAttribute(Qt::WA_NoMousePropagation);
    setContextMenuPolicy(Qt::PreventContextMenu);
    Install_ButtonAccessibility();
}

void wbButton::Set_Caption(const QString& text) {
    caption = text;
    labelMiddle = width() / 2;
    labelTop = height() / 2 - 6;
    update();
}

void wbButton::Set_BackColor(ColorValue color) {
    backColor = color;
    update();
}

void wbButton::Set_ForeColor(ColorValue color) {
    foreColor = color;
    update();
}

void wbButton::Set_BackStyle(BackStyle value) {
    backStyle = value;
    setAttribute(Qt::WA_OpaquePaintEvent, value == BackStyle::Opaque);
    update();
}

void wbButton::Set_HLcolor(ColorValue color) {
    hlColor = color;
    update();
}

void wbButton::Set_bordercolor(ColorValue color) {
    borderColor = color;
    update();
}

void wbButton::Set_HBorderColor(ColorValue color) {
    hBorderColor = color;
    update();
}

void wbButton::Set_HForeColor(ColorValue color) {
    hForeColor = color;
    update();
}

void wbButton::Set_Style(ButtonStyle value) {
    if (style == value) {
        return;
    }
    style = value;
    Set_BackStyle(BackStyle::Opaque);
    setAttribute(Qt::WA_OpaquePaintEvent, style == ButtonStyle::Flat);
    if (style == ButtonStyle::System) {
        End_MouseOver();
    }
}

void wbButton::Set_ToolTipTextLabel(const QString& text) {
    setToolTip(text);
}

void wbButton::Set_Picture(const QIcon& icon, const QSize& size) {
    picture = icon;
    pictureSize = size;
    update();
}

void wbButton::Set_CenterImage(bool centered) {
    centerImage = centered;
    update();
}

void wbButton::Set_ImageTOP(int top) {
    imageTop = top;
    update();
}

void wbButton::Set_ImageLEFT(int left) {
    imageLeft = left;
    update();
}

void wbButton::DRAWShape(int shapeTop, int shapeLeft, int shapeWidth, int shapeHeight) {
    shapes.emplace_back(shapeLeft, shapeTop, shapeWidth, shapeHeight);
    update();
}

void wbButton::DRAWLine(int lineX1, int lineY1, int lineX2, int lineY2) {
    lines.emplace_back(lineX1, lineY1, lineX2, lineY2);
    update();
}

QRect wbButton::Picture_Rect() const {
    if (centerImage) {
        return QRect(
            QPoint(width() / 2 - pictureSize.width() / 2, height() / 2 - pictureSize.height() / 2),
            pictureSize);
    }
    return QRect(QPoint(imageLeft, imageTop), pictureSize);
}

void wbButton::resizeEvent(QResizeEvent*) {
    labelMiddle.reset();
    labelTop = height() / 2 - 6;
}

void wbButton::Set_Highlight(bool on) {
    if (highlighted != on) {
        highlighted = on;
        update();
    }
}

void wbButton::Let_Go() {
    Set_Highlight(false);
    spaceHeld = false;
    lastPressed = MouseButton::None;
    End_MouseOver();
}

void wbButton::hideEvent(QHideEvent*) {
    Let_Go();
}

void wbButton::changeEvent(QEvent* event) {
    // A button that nobody sees yet has nothing to tell the screen readers, whose bridge is slow
    // to start.
    if (event->type() != QEvent::EnabledChange || isVisible()) {
        QWidget::changeEvent(event);
    }
    if (event->type() == QEvent::EnabledChange) {
        Let_Go();
        update();
    }
}
