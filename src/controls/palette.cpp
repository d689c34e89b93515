#include "controls/palette.h"

namespace palette {

namespace {

constexpr ColorValue SystemBit = 0x80000000;

ColorValue System_Value(ColorValue index) {
    switch (index) {
    case 5:  // window
    case 20: // the lit edge of a button
        return 0xFFFFFF;
    case 6:  // window frame
    case 7:  // menu text
    case 8:  // window text
    case 9:  // title text
    case 18: // button text
    case 23: // tool tip text
        return 0x000000;
    case 13: // selection
        return 0xC56A31;
    case 14: // selected text
        return 0xFFFFFF;
    case 16: // the shaded edge of a button
        return 0xA0A0A0;
    case 17: // text that cannot be chosen
        return 0x6D6D6D;
    case 24: // tool tip
        return 0xE1FFFF;
    default:
        return 0xF0F0F0;
    }
}

} // namespace

QColor To_Color(ColorValue value) {
    if ((value & SystemBit) != 0) {
        value = System_Value(value & ~SystemBit);
    }
    return QColor(static_cast<int>(value & 0xFFU), static_cast<int>((value >> 8) & 0xFFU),
                  static_cast<int>((value >> 16) & 0xFFU));
}

QColor Faded(const QColor& color) {
    const QColor ground = To_Color(Toolbar_Back);
    const auto mix = [](int part, int base) { return (part * 2 + base * 3) / 5; };
    return QColor(mix(color.red(), ground.red()), mix(color.green(), ground.green()),
                  mix(color.blue(), ground.blue()));
}

} // namespace palette
