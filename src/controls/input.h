// Mouse buttons and modifier keys as the events of the controls tell them.
#pragma once

#include <Qt>

#include <cstdint>

enum class MouseButton : std::int16_t { None = 0, Left = 1, Right = 2, Middle = 4 };

// Sums of these make a shift state.
enum ShiftKey : std::int16_t { NoShiftKey = 0, ShiftKeyDown = 1, CtrlKeyDown = 2, AltKeyDown = 4 };

constexpr MouseButton To_MouseButton(Qt::MouseButton button) {
    switch (button) {
    case Qt::LeftButton:
        return MouseButton::Left;
    case Qt::RightButton:
        return MouseButton::Right;
    case Qt::MiddleButton:
        return MouseButton::Middle;
    default:
        return MouseButton::None;
    }
}

inline std::int16_t To_ShiftState(Qt::KeyboardModifiers keys) {
    return static_cast<std::int16_t>((keys.testFlag(Qt::ShiftModifier) ? ShiftKeyDown : 0) |
                                     (keys.testFlag(Qt::ControlModifier) ? CtrlKeyDown : 0) |
                                     (keys.testFlag(Qt::AltModifier) ? AltKeyDown : 0));
}
