// Moving and sizing the strip with the mouse, as rules on plain data. Bounds are twips, the cursor
// and positions on the strip pixels.
#pragma once

#include "controls/metrics.h"
#include "platform/desktop.h"

#include <optional>

// What the rules need to know of the screen.
struct DragScreen {
    platform::Size Pixels;
    int TwipsPerPixelX = 15;
    int TwipsPerPixelY = 15;
};

enum class GrabKind { Moving, Sizing };

class ToolbarDrag {
public:
    static constexpr int HandleWidth = 4;  // pixels at the right end that size
    static constexpr int WidthFloor = 280; // pixels; a drag has to stay above it

    static bool On_SizeHandle(int x, int scaleWidth) { return x >= scaleWidth - HandleWidth; }
    // Keeps the strip on the screen. A strip wider than the screen stands flush at its right.
    static TwipsRect Clamped(TwipsRect bounds, const DragScreen& screen);
    static bool Width_Allowed(std::int64_t twips, const DragScreen& screen) {
        return twips > std::int64_t{WidthFloor} * screen.TwipsPerPixelX;
    }

    GrabKind Button_Down(int x, int scaleWidth, platform::Point cursor, const TwipsRect& bounds,
                         const DragScreen& screen);
    // The bounds that the strip takes now; nothing when it stays as it is.
    std::optional<TwipsRect> Mouse_Move(platform::Point cursor, const TwipsRect& bounds,
                                        const DragScreen& screen) const;
    // What has ended, if anything.
    std::optional<GrabKind> Button_Up();

    bool IsDragging = false;
    bool IsResizing = false;

private:
    int DragOffsetX = 0; // pixels from the strip's corner
    int DragOffsetY = 0;
    int ResizeStartX = 0; // pixels
    std::int32_t ResizeStartWidth = 0;
};
