#include "controls/the_screen.h"

#include "controls/toolbar.h"
#include "platform/desktop.h"

#include <QRegion>

#include <algorithm>

QRect Screen_Holding(const std::vector<QRect>& screens, const QPoint& place) {
    const auto found = std::find_if(screens.begin(), screens.end(),
                                    [&](const QRect& screen) { return screen.contains(place); });
    return found == screens.end() ? screens.front() : *found;
}

bool Is_OnScreens(const std::vector<QRect>& screens, const QRect& area) {
    QRegion left(area);
    for (const QRect& screen : screens)
        left -= screen;
    return left.isEmpty();
}

QRect Moved_Into(const QRect& screen, QRect area) {
    area.moveLeft(
        std::max(std::min(area.left(), screen.right() + 1 - area.width()), screen.left()));
    area.moveTop(std::max(std::min(area.top(), screen.bottom() + 1 - area.height()), screen.top()));
    return area;
}

QPoint Centered_In(const QRect& screen, const QSize& window) {
    return screen.topLeft() +
           QPoint((screen.width() - window.width()) / 2, (screen.height() - window.height()) / 2);
}

QRect Moved_Clear(const QRect& screen, const QRect& area, const QRect& field) {
    constexpr int gap = 4;
    const QRect wanted = Moved_Into(screen, area);
    if (!wanted.intersects(field))
        return wanted;
    const QPoint tries[] = {{wanted.left(), field.bottom() + 1 + gap},
                            {wanted.left(), field.top() - gap - area.height()},
                            {field.right() + 1 + gap, wanted.top()},
                            {field.left() - gap - area.width(), wanted.top()}};
    for (const QPoint& place : tries) {
        const QRect moved(place, area.size());
        if (screen.contains(moved))
            return moved;
    }
    return wanted;
}

QRect The_Screen() {
    if (Global_Toolbar == nullptr)
        return platform::Desktop::Get().Screens().front();
    const ToolbarRect strip = Global_Toolbar->Bounds();
    return Screen_At({(strip.Left + strip.Right) / 2, (strip.Top + strip.Bottom) / 2});
}

QRect Screen_At(const QPoint& place) {
    return Screen_Holding(platform::Desktop::Get().Screens(), place);
}
