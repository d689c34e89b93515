#include "toolbar/toolbar_drag.h"

#include "controls/the_screen.h"

#include <algorithm>

namespace {

QRect In_Pixels(const TwipsRect& bounds, const DragScreen& scale) {
    return {Twips_To_Pixels(bounds.Left, scale.TwipsPerPixelX),
            Twips_To_Pixels(bounds.Top, scale.TwipsPerPixelY),
            Twips_To_Pixels(bounds.Width, scale.TwipsPerPixelX),
            Twips_To_Pixels(bounds.Height, scale.TwipsPerPixelY)};
}

} // namespace

DragScreen DragScreen::Now() {
    auto& desktop = platform::Desktop::Get();
    return {desktop.Screens(), desktop.TwipsPerPixelX(), desktop.TwipsPerPixelY()};
}

TwipsRect ToolbarDrag::Clamped(TwipsRect bounds, const QRect& screen, const DragScreen& scale) {
    const std::int64_t right = (std::int64_t{screen.right()} + 1) * scale.TwipsPerPixelX;
    const std::int64_t bottom = (std::int64_t{screen.bottom()} + 1) * scale.TwipsPerPixelY;
    bounds.Left = std::max(bounds.Left, Pixels_To_Twips(screen.left(), scale.TwipsPerPixelX));
    bounds.Top = std::max(bounds.Top, Pixels_To_Twips(screen.top(), scale.TwipsPerPixelY));
    if (std::int64_t{bounds.Top} + bounds.Height > bottom) {
        bounds.Top = static_cast<std::int32_t>(bottom - bounds.Height);
    }
    if (std::int64_t{bounds.Left} + bounds.Width > right) {
        bounds.Left = static_cast<std::int32_t>(right - bounds.Width);
    }
    return bounds;
}

TwipsRect ToolbarDrag::Brought_In(const TwipsRect& bounds, const DragScreen& screen) {
    const QRect strip = In_Pixels(bounds, screen);
    if (Is_OnScreens(screen.Screens, strip)) {
        return bounds;
    }
    const QRect home = Screen_Holding(screen.Screens, strip.center());
    TwipsRect inside = Clamped(bounds, home, screen);
    inside.Left = std::max(inside.Left, Pixels_To_Twips(home.left(), screen.TwipsPerPixelX));
    return inside;
}

TwipsRect ToolbarDrag::Stepped(const TwipsRect& bounds, int pixelsX, int pixelsY,
                               const DragScreen& screen) {
    const QRect strip = In_Pixels(bounds, screen);
    const QRect home = Screen_Holding(screen.Screens, strip.center());
    TwipsRect moved = bounds;
    moved.Left += pixelsX * screen.TwipsPerPixelX;
    moved.Top += pixelsY * screen.TwipsPerPixelY;
    const TwipsRect inside = Clamped(moved, home, screen);
    if (inside != bounds) {
        return inside;
    }
    const QPoint ahead((pixelsX > 0   ? strip.right()
                        : pixelsX < 0 ? strip.left()
                                      : strip.center().x()) +
                           pixelsX,
                       (pixelsY > 0   ? strip.bottom()
                        : pixelsY < 0 ? strip.top()
                                      : strip.center().y()) +
                           pixelsY);
    const QRect next = Screen_Holding(screen.Screens, ahead);
    return next.contains(ahead) ? Clamped(moved, next, screen) : bounds;
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
        next = Clamped(next, Screen_Holding(screen.Screens, {cursor.x, cursor.y}), screen);
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
