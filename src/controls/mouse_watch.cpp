#include "controls/mouse_watch.h"

#include "platform/desktop.h"

#include <utility>

MouseWatch::MouseWatch(int interval, std::function<void()> left) : onLeft(std::move(left)) {
    timer.setInterval(interval);
    QObject::connect(&timer, &QTimer::timeout, &timer, [this] { Look(); });
}

void MouseWatch::Start(const QRect& onScreen) {
    place = onScreen.adjusted(0, 0, 1, 1);
    timer.start();
}

void MouseWatch::Look() {
    const auto cursor = platform::Desktop::Get().Cursor_Position();
    if (!cursor || place.contains(cursor->x, cursor->y))
        return;
    Stop();
    onLeft();
}

std::optional<QPoint> Corner_ByCursor(const QPoint& inControl) {
    const auto cursor = platform::Desktop::Get().Cursor_Position();
    return cursor ? std::optional(QPoint(cursor->x, cursor->y) - inControl) : std::nullopt;
}
