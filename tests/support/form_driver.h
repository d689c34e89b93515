// Finds the controls of the windows on view by what a screen reader calls them, and uses them as a
// person does.
#pragma once

#include "support/spoken_name.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>

// Nothing when none is on view.
template <class Window>
Window* Open_Window() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* found = qobject_cast<Window*>(window); found != nullptr && found->isVisible())
            return found;
    return nullptr;
}

// In the window, or in all on view; one on a page that is not where none is seen. Nothing when
// there is none.
template <class Control>
Control* Look_For(const QString& name, const QWidget* window = nullptr) {
    const QWidgetList all = window == nullptr ? QApplication::topLevelWidgets() : QWidgetList();
    for (const QWidget* top : all)
        if (Control* found = top->isVisible() ? Look_For<Control>(name, top) : nullptr)
            return found;
    Control* unseen = nullptr;
    const auto inside = window == nullptr ? QList<Control*>() : window->findChildren<Control*>();
    for (Control* control : inside) {
        if (Spoken_Name(control) != name)
            continue;
        if (control->isVisible())
            return control;
        unseen = unseen == nullptr ? control : unseen;
    }
    return unseen;
}

template <class Control>
Control* Find(const QString& name, const QWidget* window = nullptr) {
    Control* found = Look_For<Control>(name, window);
    EXPECT_NE(found, nullptr) << "no control named " << name.toStdString();
    return found;
}

template <class Control>
void Click_On(const QString& name, const QWidget* window = nullptr) {
    auto* control = Find<Control>(name, window);
    // A radio button listens on its picture and text only.
    QTest::mouseClick(control, Qt::LeftButton, {}, QPoint(8, control->height() / 2));
}

// In the place of what the field holds.
inline void Type_Into(QWidget* field, const QString& text) {
    field->setFocus();
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(field, Qt::Key_Delete);
    for (const QChar letter : text)
        letter == u'\n' ? QTest::keyClick(field, Qt::Key_Return)
                        : QTest::keyClicks(field, QString(letter));
}

inline void Keys_To(QWidget* widget, std::initializer_list<Qt::Key> keys) {
    for (const Qt::Key key : keys)
        QTest::keyClick(widget, key);
}

// The window manager's answer is waited for.
inline void Give_Focus(QWidget* window) {
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
}
