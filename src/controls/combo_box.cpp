#include "controls/combo_box.h"

#include <QWheelEvent>

ComboBox::ComboBox(QWidget* parent) : QComboBox(parent) {
    setFocusPolicy(Qt::StrongFocus); // the wheel does not bring it
}

void ComboBox::wheelEvent(QWheelEvent* event) {
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}
