// The collapse of the strip to a thin rest at one of its own edges, as a rule on plain data. Bounds
// are twips.
#pragma once

#include "controls/metrics.h"
#include "controls/toolbar.h"

#include <cstdint>
#include <optional>

class Collapse {
public:
    static constexpr int EndHeight = 8;           // pixels, of a strip collapsed to top or bottom
    static constexpr int EndWidth = 10;           // pixels, of one collapsed to left or right
    static constexpr std::int32_t RoundTime = 30; // ms
    static constexpr std::int32_t HeightLimit = 300; // ms
    static constexpr std::int32_t WidthLimit = 1000; // ms

    // mode: Top, Left, Right or Bottom.
    Collapse(HideMode hideMode, const TwipsRect& start, int twipsPerPixelX, int twipsPerPixelY);

    // The bounds after one more round; nothing when there is none left.
    std::optional<TwipsRect> Next_Round();
    // Where the strip stands afterwards, however many rounds there was time for.
    TwipsRect End_Bounds() const;
    std::int32_t Time_Limit() const { return By_Width() ? WidthLimit : HeightLimit; }

private:
    bool By_Width() const { return mode == HideMode::Left || mode == HideMode::Right; }

    HideMode mode;
    TwipsRect first;
    TwipsRect now;
    int perX;
    int perY;
    int counter; // pixels of width or height, counted down
};
