// F1 in any window of the program opens the help at the page of that window, and coming back to a
// window turns the open help to it.
#pragma once

#include <QObject>

class HelpKeys : public QObject {
public:
    // For the whole application, while it lives.
    HelpKeys();
    bool eventFilter(QObject* watched, QEvent* event) override;
};
