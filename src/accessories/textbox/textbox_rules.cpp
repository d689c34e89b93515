#include "accessories/textbox/textbox_rules.h"

#include "controls/the_screen.h"

#include <algorithm>

namespace {

constexpr int LeastGrip = 40; // pixels of the title bar that a hand needs
constexpr int TitleHeight = 20;

} // namespace

QPoint Reachable_Place(const QPoint& place, const QSize& box, const std::vector<QRect>& screens,
                       const QRect& home) {
    const auto isReachable = [&](const QRect& screen) {
        const QRect title = screen & QRect(place, QSize(box.width(), TitleHeight));
        return title.width() >= LeastGrip && title.height() == TitleHeight;
    };
    if (std::any_of(screens.begin(), screens.end(), isReachable))
        return place;
    return Moved_Into(home, {place, box}).topLeft();
}
