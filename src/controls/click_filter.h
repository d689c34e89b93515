// A text that acts for the choice it stands beside.
#pragma once

#include <QMouseEvent>
#include <QRadioButton>

class ClickFilter : public QObject {
public:
    // Clicks on the text select the choice.
    ClickFilter(QWidget* text, QRadioButton* option) : QObject(text), choice(option) {
        text->installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::MouseButtonPress || !choice->isEnabled())
            return false;
        choice->setFocus();
        choice->setChecked(true);
        return true;
    }

private:
    QRadioButton* choice;
};
