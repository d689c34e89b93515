#include "controls/metrics.h"

#include "platform/desktop.h"

#include <QStringList>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

QFont Small_Font() {
    QFont font;
    QStringList families;
    families << u"Liberation Sans"_s << u"Arial"_s << u"Helvetica"_s << u"DejaVu Sans"_s;
    font.setFamilies(families);
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(SmallFontPixels);
    return font;
}

int Twips_To_Pixels(std::int32_t twips, int twipsPerPixel) {
    const std::int64_t per = std::max(twipsPerPixel, 1);
    const std::int64_t twice = std::int64_t{twips} * 2;
    return static_cast<int>((twice + (twips < 0 ? -per : per)) / (per * 2));
}

std::int32_t Pixels_To_Twips(int pixels, int twipsPerPixel) {
    using Limits = std::numeric_limits<std::int32_t>;
    const std::int64_t twips = std::int64_t{pixels} * twipsPerPixel;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(twips, Limits::min(), Limits::max()));
}

int TwipsX_To_Pixels(std::int32_t twips) {
    return Twips_To_Pixels(twips, platform::Desktop::Get().TwipsPerPixelX());
}

int TwipsY_To_Pixels(std::int32_t twips) {
    return Twips_To_Pixels(twips, platform::Desktop::Get().TwipsPerPixelY());
}

std::int32_t PixelsX_To_Twips(int pixels) {
    return Pixels_To_Twips(pixels, platform::Desktop::Get().TwipsPerPixelX());
}

std::int32_t PixelsY_To_Twips(int pixels) {
    return Pixels_To_Twips(pixels, platform::Desktop::Get().TwipsPerPixelY());
}
