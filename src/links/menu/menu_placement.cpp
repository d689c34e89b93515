#include "links/menu/menu_placement.h"

#include "links/menu/menu_layout.h"

#include <algorithm>

QPoint Place_RootMenu(const QRect& strip, QSize menu, platform::Size screen) {
    const int below = strip.y() + strip.height();
    const int top = below + menu.height() <= screen.height ? below : strip.y() - menu.height();
    return {std::max(std::min(strip.x(), screen.width - menu.width()), 0), std::max(top, 0)};
}

QPoint Place_ChildMenu(const QRect& parent, int rowTop, QSize child, platform::Size screen) {
    int left = parent.x() + parent.width();
    if (left + child.width() >= screen.width)
        left = parent.x() - child.width();
    int top = rowTop;
    if (top + child.height() >= screen.height)
        top = rowTop + MenuRowPitch - child.height();
    return {std::max(left, 0), std::max(top, 0)};
}
