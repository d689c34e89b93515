#include "toolbar/toolbar_drag.h"

#include <algorithm>

TwipsRect ToolbarDrag::Clamped(TwipsRect bounds, const DragScreen& screen) {
    const std::int64_t right = std::int64_t{screen.Pixels.width} * screen.TwipsPerPixelX;
    const std::int64_t bottom = std::int64_t{screen.Pixels.height} * screen.TwipsPerPixelY;
    bounds.Left = std::max(bounds.Left, 0);
    bounds.Top = std::max(bounds.Top, 0);
    if (std::int64_t{bounds.Top} + bounds.Height > bottom) {
        bounds.Top = static_cast<std::int32_t>(bottom - bounds.Height);
    }
    if (std::int64_t{bounds.Left} + bounds.Width > right) {
        bounds.Left = static_cast<std::int32_t>(right - bounds.Width);
    }
    return bounds;
}

GrabKind ToolbarDrag::Button_Down(int x, int scaleWidth, platform::Point cursor,
                                  const TwipsRect& bounds, const DragScreen& screen) {
    if (On_SizeHandle(x, scaleWidth)) {
        ResizeStartX = cursor.x;
        ResizeStartWidth = bounds.Width;
        IsResizing = true;
        return GrabKind::Sizing;
    }
    DragOffsetX = cursor.x - Twips_To_Pixels(bounds.Left, screen.TwipsPerPixelX);
    DragOffsetY = cursor.y - Twips_To_Pixels(bounds.Top, screen.TwipsPerPixelY);
    IsDragging = true;
    return GrabKind::Moving;
}

std::optional<TwipsRect> ToolbarDrag::Mouse_Move(platform::Point cursor, const TwipsRect& bounds,
                                                 const DragScreen& screen) const {
    TwipsRect next = bounds;
    if (IsDragging) {
        next.Left = Pixels_To_Twips(cursor.x - DragOffsetX, screen.TwipsPerPixelX);
        next.Top = Pixels_To_Twips(cursor.y - DragOffsetY, screen.TwipsPerPixelY);
        next = Clamped(next, screen);
    } else if (IsResizing) {
        const std::int64_t width =
            std::int64_t{cursor.x - ResizeStartX} * screen.TwipsPerPixelX + ResizeStartWidth;
        if (!Width_Allowed(width, screen)) {
            return std::nullopt;
        }
        next.Width = static_cast<std::int32_t>(width);
    }
    if (next == bounds) {
        return std::nullopt;
    }
    return next;
}

std::optional<GrabKind> ToolbarDrag::Button_Up() {
    if (IsDragging) {
        IsDragging = false;
        return GrabKind::Moving;
    }
    if (IsResizing) {
        IsResizing = false;
        return GrabKind::Sizing;
    }
    return std::nullopt;
}
