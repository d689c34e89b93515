// Moving and sizing the strip with the mouse, as rules on plain data. Bounds are twips, the cursor
// and positions on the strip pixels.
#pragma once

#include "controls/metrics.h"
#include "platform/desktop.h"

#include <QRect>

#include <optional>
#include <vector>

// What the rules need to know of the screens.
struct DragScreen {
    std::vector<QRect> Screens; // the primary one first
    int TwipsPerPixelX = 15;
    int TwipsPerPixelY = 15;

    // As the desktop has them now.
    static DragScreen Now();
};

enum class GrabKind { Moving, Sizing };

class ToolbarDrag {
public:
    static constexpr int HandleWidth = 4;  // pixels at the right end that size
    static constexpr int WidthFloor = 280; // pixels; a drag has to stay above it

    static bool On_SizeHandle(int x, int scaleWidth) { return x >= scaleWidth - HandleWidth; }
    // Keeps the strip on the screen. A strip wider than the screen stands flush at its right.
    static TwipsRect Clamped(TwipsRect bounds, const QRect& screen, const DragScreen& scale);
    // The bounds if all of them are on screens; else moved into the screen that holds their middle,
    // or into the primary one. A strip wider than that stands flush at its left.
    static TwipsRect Brought_In(const TwipsRect& bounds, const DragScreen& screen);
    // A step with the keys. Flush with an edge, it goes on to the screen behind that edge.
    static TwipsRect Stepped(const TwipsRect& bounds, int pixelsX, int pixelsY,
                             const DragScreen& screen);
    static bool Width_Allowed(std::int64_t twips, const DragScreen& screen) {
        return twips > std::int64_t{WidthFloor} * screen.TwipsPerPixelX;
    }

    GrabKind Button_Down(int x, int scaleWidth, platform::Point cursor, const TwipsRect& bounds,
                         const DragScreen& screen);
    // The bounds that the strip takes now, on the screen that holds the cursor; nothing when it
    // stays as it is.
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
