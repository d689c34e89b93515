// Mouse and keyboard of the button. Any handler of an event may let the button go.
#include "controls/wb_button.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

#include <cmath>

namespace {

constexpr std::int16_t SpaceAscii = 32;
constexpr std::int16_t ReturnAscii = 13;

float X_Of(const QMouseEvent* event) {
    return static_cast<float>(event->position().x());
}
float Y_Of(const QMouseEvent* event) {
    return static_cast<float>(event->position().y());
}

} // namespace

bool wbButton::Presses(MouseButton button) const {
    return button == MouseButton::Left || (button == MouseButton::Right && allowRightClick);
}

void wbButton::Press(QMouseEvent* event) {
    const QPointer<wbButton> self(this);
    const MouseButton button = To_MouseButton(event->button());
    Q_EMIT MouseDown(button, To_ShiftState(event->modifiers()), X_Of(event), Y_Of(event));
    if (!self) {
        return;
    }
    lastPressed = button;
    if (Presses(button)) {
        Set_Highlight(true);
    }
}

void wbButton::mousePressEvent(QMouseEvent* event) {
    doubleClicked = false;
    focusByKey = false;
    Press(event);
}

void wbButton::mouseDoubleClickEvent(QMouseEvent* event) {
    const QPointer<wbButton> self(this);
    const bool counts = AcceptsDBLClick && Presses(To_MouseButton(event->button()));
    doubleClicked = counts;
    Press(event);
    if (self && counts) {
        Q_EMIT DblClick();
    }
}

void wbButton::mouseReleaseEvent(QMouseEvent* event) {
    const QPointer<wbButton> self(this);
    const MouseButton button = To_MouseButton(event->button());
    const QPointF at = event->position();
    Q_EMIT MouseUp(button, To_ShiftState(event->modifiers()), X_Of(event), Y_Of(event));
    if (!self) {
        return;
    }
    if (Presses(button)) {
        Set_Highlight(false);
    }
    const bool asRight = button == MouseButton::Right && allowRightClick;
    bool clicks = asRight || lastPressed == MouseButton::Left;
    if (AcceptsDBLClick) {
        clicks = Presses(button) && !doubleClicked;
    }
    // Both edges belong to the button.
    if (clicks && isEnabled() && at.x() >= 0 && at.y() >= 0 && at.x() <= width() &&
        at.y() <= height()) {
        Q_EMIT Click();
    }
}

void wbButton::mouseMoveEvent(QMouseEvent* event) {
    const QPointer<wbButton> self(this);
    const QPointF at = event->position();
    const Qt::MouseButtons held = event->buttons();
    const MouseButton button = held.testFlag(Qt::LeftButton)    ? MouseButton::Left
                               : held.testFlag(Qt::RightButton) ? MouseButton::Right
                                                                : MouseButton::None;
    Q_EMIT MouseMove(button, To_ShiftState(event->modifiers()), X_Of(event), Y_Of(event));
    if (self) {
        Begin_MouseOver(at);
    }
}

void wbButton::Begin_MouseOver(const QPointF& position) {
    if (!HMouseover || style != ButtonStyle::Flat || mouseOver.Is_Watching() || !isEnabled())
        return;
    const auto corner = Corner_ByCursor(
        {static_cast<int>(std::floor(position.x())), static_cast<int>(std::floor(position.y()))});
    if (!corner)
        return;
    mouseOver.Start({*corner, size()});
    update();
}

void wbButton::End_MouseOver() {
    if (mouseOver.Is_Watching())
        update();
    mouseOver.Stop();
}

void wbButton::keyPressEvent(QKeyEvent* event) {
    const QPointer<wbButton> self(this);
    const bool space = event->key() == Qt::Key_Space;
    const bool accepted = space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool repeated = event->isAutoRepeat();
    const QString text = event->text();
    event->setAccepted(accepted);
    if (!focusByKey) {
        focusByKey = true;
        update();
    }
    if (space && !spaceHeld && style == ButtonStyle::Flat) {
        spaceHeld = true;
        Set_Highlight(true);
    }
    Q_EMIT KeyDown(event->key(), To_ShiftState(event->modifiers()));
    if (!self) {
        return;
    }
    const std::int16_t ascii = space            ? SpaceAscii
                               : accepted       ? ReturnAscii
                               : text.isEmpty() ? std::int16_t{0}
                                                : static_cast<std::int16_t>(text.front().unicode());
    if (ascii == 0) {
        return;
    }
    Q_EMIT KeyPress(ascii);
    // A key held down clicks once.
    if (self && accepted && !repeated && isEnabled()) {
        Q_EMIT Click();
    }
}

void wbButton::keyReleaseEvent(QKeyEvent* event) {
    event->ignore(); // the window looks at it too
    if (event->isAutoRepeat()) {
        return;
    }
    if (event->key() == Qt::Key_Space && spaceHeld) {
        spaceHeld = false;
        Set_Highlight(false);
    }
    Q_EMIT KeyUp(event->key(), To_ShiftState(event->modifiers()));
}

void wbButton::Mark_Focus() {
    focusByKey = true;
    update();
}

void wbButton::focusInEvent(QFocusEvent* event) {
    const Qt::FocusReason reason = event->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
        focusByKey = reason != Qt::MouseFocusReason;
    }
    update();
}

void wbButton::focusOutEvent(QFocusEvent*) {
    if (spaceHeld) {
        spaceHeld = false;
        Set_Highlight(false);
    }
    update();
}
