#include "toolbar/hide_rules.h"

#include "toolbar/menu_tables.h"

CloseAction Choose_CloseAction(MouseButton button, std::int16_t shift) {
    if (button == MouseButton::Right) {
        return CloseAction::Open_Menu;
    }
    if (button != MouseButton::Left) {
        return CloseAction::Nothing;
    }
    if ((shift & ShiftKeyDown) != 0) {
        return CloseAction::Hide;
    }
    return (shift & CtrlKeyDown) != 0 ? CloseAction::Unload : CloseAction::Minimize;
}

CloseAction CloseAction_OfAnswer(int answer) {
    switch (static_cast<HideOption>(answer)) {
    case HideOption::Minimize:
        return CloseAction::Minimize;
    case HideOption::Hide:
        return CloseAction::Hide;
    case HideOption::Unload:
        return CloseAction::Unload;
    }
    return CloseAction::Nothing;
}

HideMode Best_HideMode(const ToolbarRect& bounds, int scaleWidth, const QRect& screen) {
    constexpr int NearTop = 21;
    constexpr int NearBottom = 40;
    if (bounds.Top < screen.top() + NearTop) {
        return HideMode::Top;
    }
    if (bounds.Bottom >= screen.bottom() + 1 - NearBottom) {
        return HideMode::Bottom;
    }
    // Doubled, so that odd widths keep their half pixels.
    return scaleWidth + screen.width() >= (bounds.Right - screen.left()) * 2 ? HideMode::Left
                                                                             : HideMode::Right;
}

bool AutoHide_Is_Due(const AutoHideMoment& moment) {
    return moment.Has_Waited() && !moment.Cursor_Rests() && !moment.LinksMenuVisible;
}
