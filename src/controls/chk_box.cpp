#include "controls/chk_box.h"

#include "controls/chk_box_accessible.h"
#include "controls/icons.h"
#include "controls/metrics.h"
#include "controls/painting.h"
#include "controls/palette.h"

#include <QAccessible>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int FrameSize = 13;
constexpr int CaptionLeft = FrameSize + 5;
constexpr int CaptionRight = 4; // room for the focus mark
constexpr int BoxHeight = 15;   // the frame, and the pixel that a press moves it
constexpr ColorValue BlockedFill = 0xE0E0E0;

} // namespace

ChkBox::ChkBox(const QString& text, int left, int top, QWidget* parent) : QWidget(parent) {
    setFont(Small_Font());
    setFocusPolicy(Qt::StrongFocus);
    // A press on a blocked box must not become a press on the page behind it.
    setAttribute(Qt::WA_NoMousePropagation);
    Install_ChkBoxAccessibility();
    Set_Caption(text);
    move(left, top);
}

void ChkBox::Set_Caption(const QString& text) {
    caption = text;
    resize(sizeHint());
    update();
}

QSize ChkBox::sizeHint() const {
    if (caption.isEmpty())
        return {FrameSize + 1, BoxHeight};
    return {CaptionLeft + fontMetrics().horizontalAdvance(caption) + CaptionRight, BoxHeight};
}

void ChkBox::Set_Ticked(bool on) {
    if (ticked == on)
        return;
    ticked = on;
    update();
    Tell_StateChange();
}

void ChkBox::Set_Blocked(bool block) {
    if (blocked == block)
        return;
    blocked = block;
    setFocusPolicy(blocked ? Qt::NoFocus : Qt::StrongFocus);
    Set_Down(false);
    if (blocked)
        Set_Ticked(false);
    update();
}

void ChkBox::Tell_StateChange() {
    if (!QAccessible::isActive() || !isVisible())
        return;
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void ChkBox::Toggle() {
    if (blocked || !isEnabled())
        return;
    Set_Ticked(!ticked);
    // Whoever hears of it may let the box go.
    if (ticked)
        Q_EMIT Checked();
    else
        Q_EMIT Unchecked();
}

void ChkBox::Set_Down(bool value) {
    if (down != value) {
        down = value;
        update();
    }
}

void ChkBox::mousePressEvent(QMouseEvent* event) {
    focusByKey = false;
    if (event->button() == Qt::LeftButton && !blocked)
        Set_Down(true);
}

void ChkBox::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !down)
        return;
    Set_Down(false);
    if (rect().contains(event->position().toPoint()))
        Toggle();
}

void ChkBox::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Space) {
        QWidget::keyPressEvent(event);
        return;
    }
    focusByKey = true;
    if (!event->isAutoRepeat())
        Toggle();
}

void ChkBox::focusInEvent(QFocusEvent* event) {
    const Qt::FocusReason reason = event->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
        focusByKey = reason != Qt::MouseFocusReason;
    update();
}

void ChkBox::focusOutEvent(QFocusEvent*) {
    Set_Down(false);
    update();
}

void ChkBox::hideEvent(QHideEvent*) {
    Set_Down(false);
}

void ChkBox::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) {
        Set_Down(false);
        update();
    }
}

QRect ChkBox::Frame_Rect() const {
    const int moved = down ? 1 : 0;
    return {moved, (height() - FrameSize) / 2 + moved, FrameSize, FrameSize};
}

void ChkBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const bool dull = blocked || !isEnabled();
    const QColor text = palette::To_Color(dull ? palette::System_GrayText : palette::Black);
    const QRect frame = Frame_Rect();
    painter.fillRect(frame, palette::To_Color(dull ? BlockedFill : palette::White));
    Draw_Frame(painter, frame, palette::To_Color(dull ? palette::Outline : palette::Black));
    if (ticked) {
        const QSize size(FrameSize - 2, FrameSize - 2);
        const QIcon::Mode mode = dull ? QIcon::Disabled : QIcon::Normal;
        const QPixmap tick = Load_Icon(IconName::Tick).pixmap(size, devicePixelRatioF(), mode);
        painter.drawPixmap(QRect(frame.topLeft() + QPoint(1, 1), size), tick);
    }
    painter.setPen(text);
    painter.drawText(QRect(CaptionLeft, 0, width() - CaptionLeft, height()),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, caption);
    if (hasFocus() && focusByKey && window()->isActiveWindow()) {
        const QRect mark = caption.isEmpty() ? frame.adjusted(1, 1, -1, -1)
                                             : rect().adjusted(CaptionLeft - 3, 0, 0, 0);
        Draw_Frame(painter, mark, palette::To_Color(palette::Focus_Mark));
    }
}
