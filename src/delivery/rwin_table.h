// The entries of the reminder windows: one for each reminder that is on view or waits in a window.
#pragma once

#include "core/reminder_ref.h"

#include <cstddef>
#include <optional>
#include <vector>

inline constexpr std::size_t FirstEntries = 21;
inline constexpr std::size_t MoreEntries = 20;

// The first free entry; the table grows when there is none. Nothing when the reminder is in the
// table.
template <class Entry>
std::optional<std::size_t> Free_EntryFor(std::vector<Entry>& table, const ReminderRef& due) {
    std::size_t free = table.size();
    for (std::size_t i = table.size(); i-- > 0;) {
        if (!table[i].Used)
            free = i;
        else if (table[i].Reminder == due)
            return std::nullopt;
    }
    if (free == table.size())
        table.resize(table.size() + MoreEntries);
    return free;
}

// What a window asks of the table that it stands in; slot: one of its entries.
class RWinTable {
public:
    virtual ~RWinTable() = default;
    // The waiting entry comes on view, and so many wait behind it. Its reminder.
    virtual ReminderRef Come_OnView(std::size_t slot, int waiting) = 0;
    virtual void Free(std::size_t slot) = 0;
    // Whether the window reaches upward from where it stands.
    virtual bool Reaches_Upward(std::size_t slot) const = 0;
};
