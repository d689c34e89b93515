// Where the reminder windows beside the toolbar stand: in columns to its left and right. The table
// says what is on view now. Plain data; all lengths are pixels.
#pragma once

#include "controls/toolbar.h"
#include "core/reminder_ref.h"

#include <QRect>

#include <cstddef>
#include <cstdint>
#include <vector>

class frmImportantRWin;

// Where the window stands: beside the toolbar or, where neither side has room for one, below or
// above it.
enum class NearSide : std::uint8_t { Left = 0, Right = 1, Under = 2 };

struct NearWindowEntry {
    bool Used = false;
    NearSide Side = NearSide::Left;
    bool AlignBottom = false; // bottoms level, the window reaches upward; else tops, downward
    std::int32_t Column = 0;  // 1 = touches the toolbar, or is flush with its left edge
    std::int32_t Waiting = 0; // how many reminders were added to this window
    bool IsQueued = false;    // held inside another entry's window
    std::int32_t Tick = 0;    // millisecond clock at creation
    ReminderRef Reminder;
    frmImportantRWin* WorkForm = nullptr;
    bool IsEdgeWindow = false; // the outermost of its column
};

enum class NearDecision { AlreadyShown, NewWindow, Queued };

struct NearPlacement {
    NearDecision Decision = NearDecision::AlreadyShown;
    std::size_t Entry = 0; // filled for the reminder; the caller of NewWindow adds WorkForm
    std::size_t Host = 0;  // Queued: the entry whose window takes the reminder
    std::int32_t X = 0;    // left edge of the window
};

// Decides for one reminder and brings the table up to date. tick: millisecond clock now.
NearPlacement Place_NearWindow(std::vector<NearWindowEntry>& table, const ReminderRef& due,
                               std::int32_t tick, const ToolbarRect& toolbar, const QRect& screen);
// Top edge of the entry's window, of this height.
std::int32_t NearWindow_Top(const NearWindowEntry& entry, const ToolbarRect& toolbar,
                            std::int32_t height, const QRect& screen);
