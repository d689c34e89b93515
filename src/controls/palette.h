// The colours of the program. Every window takes them from here.
//
// A colour value is 0x00BBGGRR; with the top bit set its low bits are the number of a system
// colour. The house has its own set of those, because the other colours are fixed: a dark desktop
// theme would put light text on a light button.
#pragma once

#include <QColor>

#include <cstdint>

using ColorValue = std::uint32_t;

namespace palette {

inline constexpr ColorValue System_ButtonFace = 0x8000000F;
inline constexpr ColorValue System_ButtonText = 0x80000012;
inline constexpr ColorValue System_GrayText = 0x80000011;

inline constexpr ColorValue White = 0xFFFFFF;
inline constexpr ColorValue Black = 0x000000;
inline constexpr ColorValue Outline = 0x808080;
inline constexpr ColorValue Form_Back = 0xF3F3F3;

inline constexpr ColorValue Toolbar_Back = 0xE0E0E0;
inline constexpr ColorValue Message_Back = 0xC0FFFF;
inline constexpr ColorValue Message_Frame = 0x008080;
inline constexpr ColorValue Message_Shadow = 0x004040;
inline constexpr ColorValue Message_Text = 0x000000;
inline constexpr ColorValue Collapsed_Back = 0xE0E0E0;
inline constexpr ColorValue Collapsed_Text = 0x404040;
inline constexpr ColorValue Collapsed_Pressed = 0xF5F5F5;

inline constexpr ColorValue Button_Back = 0xFFC0C0;
inline constexpr ColorValue Button_Pressed = 0xFFE0E0;
inline constexpr ColorValue Button_Border = 0x400000;
inline constexpr ColorValue Focus_Mark = 0xC04000;

inline constexpr ColorValue ReminderWindow_Back = 0xF2F5F5;
inline constexpr ColorValue ReminderWindow_Outline_Back = 0xC0FFFF;
inline constexpr ColorValue ReminderWindow_Text_Back = 0xF0F5F5;

inline constexpr ColorValue Tab_Selected_Top = 0xC0E0E0;
inline constexpr ColorValue Tab_Selected_Bottom = 0xE0E0E0;
inline constexpr ColorValue Tab_Unselected_Top = 0xE0E0E0;
inline constexpr ColorValue Tab_Unselected_Bottom = 0xE0D0D0;

inline constexpr ColorValue Tooltip_Back = 0xF3F3F3;
inline constexpr ColorValue Clock_Box_Back = 0xDFD2D0;

// The colour to paint with; a system colour by its number, button face for an unknown one.
QColor To_Color(ColorValue value);
// The same colour as it looks on something that takes no input.
QColor Faded(const QColor& color);

} // namespace palette
