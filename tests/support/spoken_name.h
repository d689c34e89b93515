// What a screen reader says a control is.
#pragma once

#include <QAccessible>
#include <QWidget>

inline QString Spoken_Name(QWidget* widget) {
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(widget);
    return interface == nullptr ? QString() : interface->text(QAccessible::Name);
}
