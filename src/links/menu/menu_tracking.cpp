#include "links/menu/menu_tracking.h"

MenuBounds Bounds_Of(const QRect& form) {
    return {form.x(), form.y(), form.x() + form.width(), form.y() + form.height()};
}

bool MenuCascade::Form_Holds(std::size_t form, platform::Point mouse) const {
    return Forms[form].Holds(mouse) || (form == 0 && Strip.Holds(mouse));
}

bool MenuCascade::Is_Inside(std::size_t form, platform::Point mouse) const {
    for (std::size_t i = form; i < Forms.size(); ++i) {
        if (Form_Holds(i, mouse))
            return true;
    }
    return false;
}

RowMove Move_ToRow(int selected, int row, std::span<const MenuRowKind> rows) {
    if (row == selected)
        return RowMove::Nothing;
    if (row == NoMenuRow)
        return RowMove::Leave;
    return rows[static_cast<std::size_t>(row)] == MenuRowKind::Category ? RowMove::DelayChild
                                                                        : RowMove::CloseChild;
}
