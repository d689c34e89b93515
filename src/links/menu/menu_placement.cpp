#include "links/menu/menu_placement.h"

#include "links/menu/menu_layout.h"

#include <algorithm>

QPoint Place_RootMenu(const QRect& strip, QSize menu, const QRect& screen) {
    const int below = strip.y() + strip.height();
    const bool fits = below + menu.height() <= screen.bottom() + 1;
    const int left = std::min(strip.x(), screen.right() + 1 - menu.width());
    return {std::max(left, screen.left()),
            std::max(fits ? below : strip.y() - menu.height(), screen.top())};
}

QPoint Place_ChildMenu(const QRect& parent, int rowTop, QSize child, const QRect& screen) {
    int left = parent.x() + parent.width();
    if (left + child.width() > screen.right())
        left = parent.x() - child.width();
    int top = rowTop;
    if (top + child.height() > screen.bottom())
        top = rowTop + MenuRowPitch - child.height();
    return {std::max(left, screen.left()), std::max(top, screen.top())};
}
