// Moving, sizing and the menus of the strip, with the mouse and with the keyboard.
#include "controls/timers.h"
#include "controls/unload_queue.h"
#include "toolbar/main_form.h"
#include "toolbar/message_strip.h"

#include <QMouseEvent>
#include <QWindow>

namespace {

constexpr int KeyStep = 10; // pixels

// Of the event, not of now: when the program was busy, the mouse has moved on since.
QPoint Screen_Place(const QMouseEvent& event) {
    return event.globalPosition().toPoint();
}

} // namespace

bool MainForm::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) {
        Stay_OnTop(Trigger::Now);
    }
    return QWidget::event(event);
}

// The message line drags the strip from anywhere on it, and never sizes it: its position counts
// as 0.
bool MainForm::eventFilter(QObject* watched, QEvent* event) {
    if (watched == windowHandle()) {
        Note_User(event->type());
    }
    if (watched == windowHandle() && event->type() == QEvent::Expose && !standsApart &&
        windowHandle()->isExposed()) {
        standsApart = true;
        Stand_Apart();
        Take_Place();
        Finish_Look();
    }
    if (watched != Picture1 && watched != Label1) {
        return QWidget::eventFilter(watched, event);
    }
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        Form_MouseDown(To_MouseButton(mouse->button()), 0, Screen_Place(*mouse));
        return true;
    }
    case QEvent::MouseMove: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        Form_MouseMove(mouse->buttons(), 0, Screen_Place(*mouse));
        return true;
    }
    case QEvent::MouseButtonRelease: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        const QPoint at = Screen_Place(*mouse);
        const MouseButton button = To_MouseButton(mouse->button());
        Form_MouseUp(button);
        if (button == MouseButton::Right &&
            Picture1->rect().contains(Picture1->mapFromGlobal(at))) {
            container.Popup_MessageOptions(at);
        }
        return true;
    }
    default:
        return QWidget::eventFilter(watched, event);
    }
}

// A strip that is used by keyboard keeps the focus, one that is used with the mouse does not.
void MainForm::Note_User(QEvent::Type type) {
    if (type == QEvent::KeyPress) {
        usedBy = UsedBy::Keyboard;
    } else if (type == QEvent::MouseButtonPress) {
        usedBy = UsedBy::Mouse;
    }
}

void MainForm::mousePressEvent(QMouseEvent* event) {
    Form_MouseDown(To_MouseButton(event->button()), event->position().toPoint().x(),
                   Screen_Place(*event));
}

void MainForm::mouseMoveEvent(QMouseEvent* event) {
    Form_MouseMove(event->buttons(), event->position().toPoint().x(), Screen_Place(*event));
}

void MainForm::mouseReleaseEvent(QMouseEvent* event) {
    Form_MouseUp(To_MouseButton(event->button()));
}

void MainForm::Form_MouseDown(MouseButton button, int x, const QPoint& cursor) {
    Unload_PendingForms();
    if (button != MouseButton::Left || Is_Collapsed()) {
        return;
    }
    if (drag.Button_Down(x, width(), {cursor.x(), cursor.y()}, live, DragScreen::Now()) ==
        GrabKind::Sizing) {
        setCursor(Qt::SizeHorCursor);
        sizePointer = true;
        if (Global_Timers != nullptr) {
            Global_Timers->Enable(TimerName::ResizeForm_Timer, false);
        }
    }
}

void MainForm::Form_MouseMove(Qt::MouseButtons held, int x, const QPoint& cursor) {
    MouseOver();
    if (!held.testFlag(Qt::LeftButton)) {
        Watch_SizeHandle(x);
        return;
    }
    if (const auto bounds = drag.Mouse_Move({cursor.x(), cursor.y()}, live, DragScreen::Now())) {
        Set_Bounds(*bounds);
    }
}

void MainForm::Form_MouseUp(MouseButton button) {
    if (button == MouseButton::Left && drag.Button_Up() == GrabKind::Sizing) {
        unsetCursor();
        sizePointer = false;
    }
}

void MainForm::Watch_SizeHandle(int x) {
    const auto cursor = platform::Desktop::Get().Cursor_Position();
    if (!ToolbarDrag::On_SizeHandle(x, width()) || !cursor) {
        return;
    }
    if (!sizePointer) {
        setCursor(Qt::SizeHorCursor);
        sizePointer = true;
    }
    ResizeEdgeX = cursor->x - x + width();
    if (Global_Timers != nullptr) {
        Global_Timers->Enable(TimerName::ResizeForm_Timer);
    }
}

// Nothing else tells that the mouse has left the handle.
void MainForm::ResizeForm_Tick() {
    const auto cursor = platform::Desktop::Get().Cursor_Position();
    if (cursor && cursor->x >= ResizeEdgeX - ToolbarDrag::HandleWidth && cursor->x <= ResizeEdgeX &&
        cursor->y >= toolbarRect.Top && cursor->y <= toolbarRect.Bottom) {
        return;
    }
    unsetCursor();
    sizePointer = false;
    Global_Timers->Enable(TimerName::ResizeForm_Timer, false);
}

void MainForm::keyPressEvent(QKeyEvent* event) {
    const bool menuKey =
        event->key() == Qt::Key_Menu ||
        (event->key() == Qt::Key_F10 && event->modifiers().testFlag(Qt::ShiftModifier));
    if (menuKey ? Open_FocusMenu() : Keyboard_Drag(*event)) {
        event->accept();
        return;
    }
    QWidget::keyPressEvent(event);
}

void MainForm::keyReleaseEvent(QKeyEvent* event) {
    if (!event->isAutoRepeat()) {
        Stay_OnTop(Trigger::Now);
    }
    QWidget::keyReleaseEvent(event);
}

// What the thin strip covers takes no focus.
bool MainForm::focusNextPrevChild(bool next) {
    return !Is_Collapsed() && QWidget::focusNextPrevChild(next);
}

bool MainForm::Keyboard_Drag(const QKeyEvent& event) {
    if (!event.modifiers().testFlag(Qt::ControlModifier) || Is_Collapsed()) {
        return false;
    }
    const DragScreen screen = DragScreen::Now();
    const int across =
        (event.key() == Qt::Key_Right ? 1 : 0) - (event.key() == Qt::Key_Left ? 1 : 0);
    const int down = (event.key() == Qt::Key_Down ? 1 : 0) - (event.key() == Qt::Key_Up ? 1 : 0);
    if (across == 0 && down == 0) {
        return false;
    }
    TwipsRect bounds = live;
    const std::int32_t step = across * KeyStep * screen.TwipsPerPixelX;
    if (event.modifiers().testFlag(Qt::ShiftModifier)) {
        if (ToolbarDrag::Width_Allowed(std::int64_t{bounds.Width} + step, screen)) {
            bounds.Width += step;
        }
    } else {
        bounds = ToolbarDrag::Stepped(live, across * KeyStep, down * KeyStep, screen);
    }
    Set_Bounds(bounds);
    return true;
}

bool MainForm::Open_FocusMenu() {
    if (focusWidget() == Picture1) {
        container.Popup_MessageOptions(Picture1->mapToGlobal(QPoint(0, Picture1->height())));
        return true;
    }
    if (focusWidget() == wbButton1) {
        Open_CloseMenu(wbButton1->mapToGlobal(QPoint(0, wbButton1->height())));
        return true;
    }
    return false;
}
