// The keyboard and the wheel on the card list.
#include "controls/painting.h"
#include "controls/palette.h"
#include "editors/list/card_list.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>

namespace {
constexpr int WheelStep = 120; // of an ordinary wheel: one card
}

void CardList::Mark_Current() {
    for (CardView* card : cards)
        card->Set_Current(hasFocus() && card->Row != -1 && card->Row == currentRow);
    update();
}

void CardList::Set_CurrentRow(int row) {
    Note_Current(std::clamp(row, -1, static_cast<int>(slots.size()) - 1));
    Bring_IntoView(currentRow);
    Mark_Current();
}

void CardList::Bring_IntoView(int row) {
    if (row < 0)
        return;
    const auto top = static_cast<int>(std::int64_t{row} * CardPitch);
    const int least = top + CardPitch - height();
    if (VScroll2->value() > top)
        VScroll2->setValue(top);
    else if (VScroll2->value() < least)
        VScroll2->setValue(least);
}

// -1 for a key that moves nowhere.
int CardList::Row_ForKey(int key) const {
    const int last = static_cast<int>(slots.size()) - 1;
    const int page = std::max(1, height() / CardPitch);
    switch (key) {
    case Qt::Key_Up:
        return std::max(0, currentRow - 1);
    case Qt::Key_Down:
        return std::min(last, currentRow + 1);
    case Qt::Key_PageUp:
        return std::max(0, currentRow - page);
    case Qt::Key_PageDown:
        return std::min(last, currentRow + page);
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return last;
    default:
        return -1;
    }
}

void CardList::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    const int row = hasFocus() && !slots.empty() ? Row_ForKey(key) : -1;
    if (!hasFocus())
        QWidget::keyPressEvent(event);
    else if (row != -1)
        Set_CurrentRow(row);
    else if (event->matches(QKeySequence::Copy))
        Q_EMIT Copy_Pressed(current);
    else if (event->matches(QKeySequence::Paste))
        Q_EMIT Paste_Pressed();
    else if (key == Qt::Key_Delete)
        Q_EMIT Delete_Pressed(current);
    else if (currentRow != -1 &&
             (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter))
        Q_EMIT Card_Chosen(current);
    else
        QWidget::keyPressEvent(event);
}

void CardList::wheelEvent(QWheelEvent* event) {
    VScroll2->setValue(VScroll2->value() - event->angleDelta().y() * CardPitch / WheelStep);
    event->accept();
}

void CardList::focusInEvent(QFocusEvent* event) {
    if (currentRow == -1 && !slots.empty())
        Note_Current(std::max(0, Row_Of(selected)));
    if (event->reason() == Qt::MouseFocusReason)
        Mark_Current();
    else
        Set_CurrentRow(currentRow);
}

void CardList::focusOutEvent(QFocusEvent*) {
    Mark_Current();
}

void CardList::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (slots.empty() && hasFocus())
        Draw_Frame(painter, rect(), palette::To_Color(palette::Focus_Mark));
}
