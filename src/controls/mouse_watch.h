// Notices that the mouse has left a place of the screen: nothing tells a control so when it moves
// away under the mouse.
#pragma once

#include <QRect>
#include <QTimer>

#include <functional>
#include <optional>

class MouseWatch {
public:
    // left: called once, and the watch is over. interval: ms between two looks.
    MouseWatch(int interval, std::function<void()> left);
    // Both edges belong to the place.
    void Start(const QRect& onScreen);
    void Stop() { timer.stop(); }
    bool Is_Watching() const { return timer.isActive(); }

private:
    void Look();

    QRect place;
    std::function<void()> onLeft;
    QTimer timer;
};

// Where the upper left corner of a control stands on the screen while the cursor is at this place
// in it; nothing where the system does not tell.
std::optional<QPoint> Corner_ByCursor(const QPoint& inControl);
