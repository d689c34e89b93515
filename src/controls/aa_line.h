// Smooth lines on a picture: coverage by quarter steps along the line's longer axis, blended with
// what is there.
#pragma once

#include "controls/palette.h"

class QImage;

// Each channel mixed by Alpha of 255, which is held within 0..255; system colours work.
ColorValue BlendColors(ColorValue ForeColor, ColorValue BackColor, int Alpha);

// Pixels of the picture itself, which may lie between two. Darkness 0: as the coverage says; above
// it each pixel is covered by so much more, 0.2 by a fifth. What falls outside is left out, and so
// is a line with an end that is no number.
void DrawAALine(QImage& surface, double X1, double Y1, double X2, double Y2, ColorValue Color,
                double Darkness = 0.0);
