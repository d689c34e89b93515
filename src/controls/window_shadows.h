// The drop shadow of every window and tool tip of the program, as "Use shadows" says.
#pragma once

#include <QObject>

// Sees to each window when it is about to be shown, for as long as it lives.
class WindowShadows : public QObject {
public:
    explicit WindowShadows(QObject* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
