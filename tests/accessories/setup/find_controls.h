// Finds the controls of the window on view by what stands on them, as a user does.
#pragma once

#include "controls/chk_box.h"
#include "controls/wb_button.h"

#include <QApplication>
#include <QTest>

template <class Window>
Window* Open_Window() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* found = qobject_cast<Window*>(window); found != nullptr && found->isVisible())
            return found;
    return nullptr;
}

// name: its caption, its text, or the name that a screen reader says.
template <class Control>
Control* Find(const QString& name) {
    for (QWidget* window : QApplication::topLevelWidgets())
        for (auto* control : window->findChildren<Control*>()) {
            bool found = control->accessibleName() == name;
            if constexpr (requires { control->Caption(); })
                found = control->Caption() == name;
            else
                found = found || control->text() == name;
            if (found && window->isVisible())
                return control;
        }
    return nullptr;
}

inline void Press(const QString& button) {
    QTest::mouseClick(Find<wbButton>(button), Qt::LeftButton);
}
