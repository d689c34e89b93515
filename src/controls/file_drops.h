// Files that are dropped on a window stay where they are. Programs that offer a file to be moved
// take it away once the drop was accepted as a move: every window of the program accepts files as
// copies or links alone.
#pragma once

#include <QObject>

class QEvent;

class FileDrops : public QObject {
public:
    // For the whole application, while it lives.
    FileDrops();
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const QEvent* passing = nullptr; // made here, on its way to the window
};
