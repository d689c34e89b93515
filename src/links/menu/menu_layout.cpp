#include "links/menu/menu_layout.h"

#include <algorithm>
#include <cstddef>

namespace {

int Count_Of(std::span<const MenuRowKind> rows) {
    return static_cast<int>(rows.size());
}

bool Can_BeChosen(std::span<const MenuRowKind> rows, int row) {
    return rows[static_cast<std::size_t>(row)] != MenuRowKind::Separator;
}

} // namespace

MenuLayout Lay_OutMenu(std::span<const MenuRowKind> rows, int widestCaption, int widestHeader) {
    MenuLayout layout;
    layout.Tops.reserve(rows.size());
    int top = MenuEdge;
    for (const MenuRowKind kind : rows) {
        int& header = kind == MenuRowKind::Category ? layout.CategoryLabel : layout.DailyLinksLabel;
        if (header == NoHeader) {
            header = top;
            top += MenuRowPitch;
        }
        layout.Tops.push_back(top);
        top += MenuRowPitch;
    }
    if (rows.empty())
        top += MenuRowPitch; // an empty level is an empty frame
    layout.Width = std::max(MenuLeftMargin + widestCaption + MenuRightMargin,
                            MenuLeftMargin + widestHeader + 2 * MenuEdge);
    layout.Height = top + MenuEdge;
    return layout;
}

int MenuLayout::Row_At(int y) const {
    const auto below = std::upper_bound(Tops.begin(), Tops.end(), y);
    if (below == Tops.begin() || y >= *std::prev(below) + MenuRowPitch)
        return NoMenuRow;
    return static_cast<int>(below - Tops.begin()) - 1;
}

int Next_MenuRow(std::span<const MenuRowKind> rows, int from, int step) {
    const int count = Count_Of(rows);
    int row = from == NoMenuRow ? (step > 0 ? -1 : count) : from;
    for (int looked = 0; looked < count; ++looked) {
        row = (row + step + count) % count;
        if (Can_BeChosen(rows, row))
            return row;
    }
    return NoMenuRow;
}

int Find_MenuRow(std::span<const QString> captions, std::span<const MenuRowKind> rows, int from,
                 const QString& start) {
    const int count = Count_Of(rows);
    for (int looked = 0; looked < count; ++looked) {
        const int row = (std::max(from, 0) + looked) % count;
        if (Can_BeChosen(rows, row) &&
            captions[static_cast<std::size_t>(row)].startsWith(start, Qt::CaseInsensitive))
            return row;
    }
    return NoMenuRow;
}

int Bounded_Shift(int shift, int height, int viewHeight) {
    return std::clamp(shift, 0, std::max(height - viewHeight, 0));
}

int Shift_ToShow(const MenuLayout& layout, int row, int shift, int viewHeight) {
    const int top = layout.Tops[static_cast<std::size_t>(row)];
    // With the first row its header comes on view, too.
    const int upper = row == 0 ? 0 : top - MenuEdge;
    const int lower = top + MenuRowPitch + MenuEdge;
    shift = std::min(std::max(shift, lower - viewHeight), upper);
    return Bounded_Shift(shift, layout.Height, viewHeight);
}
