// What the close button does, and which way the strip hides, as rules on plain data.
#pragma once

#include "controls/input.h"
#include "controls/toolbar.h"
#include "platform/desktop.h"

#include <cstdint>
#include <optional>

enum class CloseAction { Nothing, Open_Menu, Minimize, Hide, Unload };

// By the button and the shift state of the release.
CloseAction Choose_CloseAction(MouseButton button, std::int16_t shift);
// By the index of the item picked in the close button's menu; -1 = none.
CloseAction CloseAction_OfAnswer(int answer);

// The way to hide that suits the strip's place: bounds in screen pixels, scaleWidth the strip's
// width. Tried in the order top, bottom, left, right.
HideMode Best_HideMode(const ToolbarRect& bounds, int scaleWidth, const QRect& screen);

// What AutoHide looks at.
struct AutoHideMoment {
    bool Enabled = false;
    bool Collapsed = false;
    bool MessageActive = false;
    std::int32_t SinceMouseOver = 0; // ms; below 0 shortly after the strip came back
    std::int32_t WaitTime = 0;       // ms
    std::optional<platform::Point> Cursor;
    ToolbarRect Bounds;
    bool LinksMenuVisible = false;

    // Nothing holds the strip, and the wait time has run out: now the cursor decides.
    bool Has_Waited() const {
        return Enabled && !Collapsed && !MessageActive && SinceMouseOver >= WaitTime;
    }
    // A mouse that rests on the strip counts as present; the strip's edges belong to it.
    bool Cursor_Rests() const {
        return Cursor && Cursor->x >= Bounds.Left && Cursor->x <= Bounds.Right &&
               Cursor->y >= Bounds.Top && Cursor->y <= Bounds.Bottom;
    }
};
bool AutoHide_Is_Due(const AutoHideMoment& moment);
