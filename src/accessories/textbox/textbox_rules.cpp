#include "accessories/textbox/textbox_rules.h"

#include <algorithm>
#include <cstdint>

namespace {

constexpr int LeastGrip = 40; // pixels of the title bar that a hand needs
constexpr int TitleHeight = 20;

} // namespace

platform::Point Reachable_Place(platform::Point place, platform::Size box, platform::Size screen) {
    const std::int64_t right = std::int64_t{place.x} + box.width;
    const bool isReachable = right >= LeastGrip && place.x <= screen.width - LeastGrip &&
                             place.y >= 0 && place.y <= screen.height - TitleHeight;
    if (isReachable)
        return place;
    return {std::clamp(place.x, 0, std::max(screen.width - box.width, 0)),
            std::clamp(place.y, 0, std::max(screen.height - box.height, 0))};
}
