// The measures that all windows share: the small font, and the two scales of the program. Forms
// speak twips on their outside and pixels inside.
#pragma once

#include <QFont>

#include <cstdint>

// A form's bounds on the screen, twips.
struct TwipsRect {
    std::int32_t Left = 0;
    std::int32_t Top = 0;
    std::int32_t Width = 0;
    std::int32_t Height = 0;
    bool operator==(const TwipsRect&) const = default;
};

inline constexpr int SmallFontPixels = 11;
inline constexpr int SmallLineHeight = 13; // a line of the small font

// Small and without serifs, sized in pixels: the boxes it stands in are fixed.
QFont Small_Font();

// By the desktop's twips per pixel as they are now; rounded, and held within 32 bits.
int TwipsX_To_Pixels(std::int32_t twips);
int TwipsY_To_Pixels(std::int32_t twips);
std::int32_t PixelsX_To_Twips(int pixels);
std::int32_t PixelsY_To_Twips(int pixels);

// The nearest whole number of pixels, halves away from zero.
int Twips_To_Pixels(std::int32_t twips, int twipsPerPixel);
std::int32_t Pixels_To_Twips(int pixels, int twipsPerPixel);
