#include "delivery/near_placement.h"

#include "delivery/rwin_table.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace {

constexpr std::int32_t WindowWidth = 254;
constexpr std::int32_t Overhang = 20;       // a window may pass the screen's edge by so much
constexpr std::int32_t TypicalHeight = 190; // to find the larger free part of the screen

// The column behind the last one of the side.
std::int32_t Next_Column(const std::vector<NearWindowEntry>& table, NearSide side) {
    std::int32_t highest = 0;
    for (const NearWindowEntry& entry : table)
        if (entry.Used && entry.Side == side)
            highest = std::max(highest, entry.Column);
    return highest + 1;
}

NearSide Opposite(NearSide side) {
    if (side == NearSide::Under)
        return side;
    return side == NearSide::Left ? NearSide::Right : NearSide::Left;
}

// Left edge of a window in a column of the side.
std::int32_t Column_Left(const ToolbarRect& toolbar, const QRect& screen, NearSide side,
                         std::int32_t column) {
    switch (side) {
    case NearSide::Left:
        return toolbar.Left - column * WindowWidth;
    case NearSide::Right:
        return toolbar.Right + (column - 1) * WindowWidth;
    case NearSide::Under:
        break;
    }
    return std::max(toolbar.Left, screen.left()) + (column - 1) * WindowWidth;
}

// A window that passes an edge by more than it may, as when the toolbar itself stands off the
// screen, is flush with it.
std::int32_t Held_Inside(std::int32_t place, std::int32_t length, std::int32_t from,
                         std::int32_t to) {
    if (place + length > to + Overhang)
        place = to - length;
    return place < from - Overhang ? from : place;
}

bool Fits(const ToolbarRect& toolbar, const QRect& screen, NearSide side, std::int32_t column) {
    const std::int32_t left = Column_Left(toolbar, screen, side, column);
    return left >= screen.left() - Overhang && left + WindowWidth <= screen.right() + 1 + Overhang;
}

bool Reaches_Upward(const ToolbarRect& toolbar, const QRect& screen) {
    return screen.bottom() + 1 - (toolbar.Top + TypicalHeight) <=
           toolbar.Bottom - TypicalHeight - screen.top();
}

// The window with the fewest reminders added to it, of equal ones the oldest; the first that has
// none is taken whatever its age.
std::size_t Choose_Host(const std::vector<NearWindowEntry>& table) {
    std::size_t host = table.size();
    for (std::size_t i = 0; i < table.size(); ++i) {
        const NearWindowEntry& entry = table[i];
        if (!entry.Used || entry.IsQueued)
            continue;
        if (entry.Waiting == 0)
            return i;
        if (host == table.size() || entry.Waiting < table[host].Waiting ||
            (entry.Waiting == table[host].Waiting && entry.Tick < table[host].Tick))
            host = i;
    }
    return host;
}

void Stand_First(NearWindowEntry& entry, const ToolbarRect& toolbar, const QRect& screen) {
    entry.Column = 1;
    for (const NearSide side : {NearSide::Right, NearSide::Left}) {
        entry.Side = side;
        if (Fits(toolbar, screen, side, entry.Column))
            return;
    }
    entry.Side = NearSide::Under;
}

// Behind the last column, on the side opposite to the edge window first. False: both are full.
bool Stand_Behind(NearWindowEntry& entry, const std::vector<NearWindowEntry>& table,
                  NearSide edgeSide, const ToolbarRect& toolbar, const QRect& screen) {
    for (const NearSide side : {Opposite(edgeSide), edgeSide}) {
        entry.Side = side;
        entry.Column = Next_Column(table, side);
        if (Fits(toolbar, screen, side, entry.Column))
            return true;
    }
    return false;
}

void Wait_Inside(NearWindowEntry& entry, std::vector<NearWindowEntry>& table, std::size_t host) {
    for (NearWindowEntry& other : table)
        if (other.Used && !other.IsQueued)
            other.IsEdgeWindow = false;
    entry.Side = table[host].Side;
    entry.AlignBottom = table[host].AlignBottom;
    entry.Column = table[host].Column;
    entry.WorkForm = table[host].WorkForm;
    entry.IsQueued = true;
    ++table[host].Waiting;
}

// Decides for the reminder of the entry, which is not in the table yet.
NearPlacement Place_Entry(NearWindowEntry& entry, std::vector<NearWindowEntry>& table,
                          const ToolbarRect& toolbar, const QRect& screen) {
    NearPlacement placement;
    placement.Decision = NearDecision::NewWindow;
    const auto first = std::find_if(table.begin(), table.end(),
                                    [](const NearWindowEntry& other) { return other.Used; });
    const auto edge = std::find_if(first, table.end(), [](const NearWindowEntry& other) {
        return other.Used && other.IsEdgeWindow;
    });
    entry.AlignBottom = first == table.end() ? Reaches_Upward(toolbar, screen) : first->AlignBottom;
    if (edge == table.end()) {
        Stand_First(entry, toolbar, screen);
    } else if (Stand_Behind(entry, table, edge->Side, toolbar, screen)) {
        edge->IsEdgeWindow = false;
    } else if (placement.Host = Choose_Host(table); placement.Host < table.size()) {
        placement.Decision = NearDecision::Queued;
        Wait_Inside(entry, table, placement.Host);
    } else {
        Stand_First(entry, toolbar, screen);
    }
    placement.X = Held_Inside(Column_Left(toolbar, screen, entry.Side, entry.Column), WindowWidth,
                              screen.left(), screen.right() + 1);
    return placement;
}

} // namespace

NearPlacement Place_NearWindow(std::vector<NearWindowEntry>& table, const ReminderRef& due,
                               std::int32_t tick, const ToolbarRect& toolbar, const QRect& screen) {
    const std::optional<std::size_t> free = Free_EntryFor(table, due);
    if (!free)
        return {};
    NearWindowEntry entry;
    entry.Used = true;
    entry.Reminder = due;
    entry.IsEdgeWindow = true;
    entry.Tick = tick;
    NearPlacement placement = Place_Entry(entry, table, toolbar, screen);
    placement.Entry = *free;
    table[*free] = entry;
    return placement;
}

std::int32_t NearWindow_Top(const NearWindowEntry& entry, const ToolbarRect& toolbar,
                            std::int32_t height, const QRect& screen) {
    const bool under = entry.Side == NearSide::Under;
    const std::int32_t top = entry.AlignBottom ? (under ? toolbar.Top : toolbar.Bottom) - height
                                               : (under ? toolbar.Bottom : toolbar.Top);
    return Held_Inside(top, height, screen.top(), screen.bottom() + 1);
}
