#include "toolbar/collapse.h"

namespace {

constexpr int WidthStep = 20; // pixels a round
constexpr int HeightStep = 1;
constexpr std::int32_t NarrowestRound = 10; // twips

} // namespace

Collapse::Collapse(HideMode hideMode, const TwipsRect& start, int twipsPerPixelX,
                   int twipsPerPixelY)
    : mode(hideMode), first(start), now(start), perX(twipsPerPixelX), perY(twipsPerPixelY),
      counter(By_Width() ? Twips_To_Pixels(start.Width, perX)
                         : Twips_To_Pixels(start.Height, perY)) {}

std::optional<TwipsRect> Collapse::Next_Round() {
    if (counter < (By_Width() ? EndWidth : EndHeight)) {
        return std::nullopt;
    }
    if (By_Width()) {
        counter -= WidthStep;
        const std::int32_t width = now.Width - WidthStep * perX;
        if (width < NarrowestRound) {
            return std::nullopt;
        }
        now.Width = width;
        now.Left += mode == HideMode::Right ? WidthStep * perX : 0;
    } else {
        counter -= HeightStep;
        now.Height -= HeightStep * perY;
        now.Top += mode == HideMode::Bottom ? HeightStep * perY : 0;
    }
    return now;
}

TwipsRect Collapse::End_Bounds() const {
    TwipsRect end = first;
    if (By_Width()) {
        end.Width = EndWidth * perX;
        if (mode == HideMode::Right) {
            end.Left += (Twips_To_Pixels(first.Width, perX) - EndWidth) * perX;
        }
    } else {
        end.Height = EndHeight * perY;
        if (mode == HideMode::Bottom) {
            end.Top += (Twips_To_Pixels(first.Height, perY) - EndHeight) * perY;
        }
    }
    return end;
}
