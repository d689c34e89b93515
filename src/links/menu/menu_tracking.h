// How the links menu follows the mouse, as rules on plain data. Screen pixels.
#pragma once

#include "links/menu/menu_layout.h"
#include "platform/desktop.h"

#include <QRect>

#include <cstddef>
#include <span>

// A form as it was when it was shown; its right and bottom are left + width and top + height.
struct MenuBounds {
    int Left = 0;
    int Top = 0;
    int Right = 0;
    int Bottom = 0;

    // Both ends belong to it.
    bool Holds(platform::Point place) const {
        return Left <= place.x && place.x <= Right && Top <= place.y && place.y <= Bottom;
    }
};

MenuBounds Bounds_Of(const QRect& form);

// The open forms of a cascade, the root first, and the toolbar it hangs at.
struct MenuCascade {
    std::span<const MenuBounds> Forms;
    MenuBounds Strip;

    // The form itself, or for the root the toolbar too.
    bool Form_Holds(std::size_t form, platform::Point mouse) const;
    // The form or an open one that it led to: a mouse that went on into a child has left none of
    // its parents.
    bool Is_Inside(std::size_t form, platform::Point mouse) const;
};

// What a mouse on a row asks of the form.
enum class RowMove {
    Nothing,    // the same row as before
    CloseChild, // a link or separator: the open submenu goes, none comes
    DelayChild, // a category: its submenu comes when the mouse rests
    Leave,      // on no row: no submenu comes, an open one stays
};
// selected: the row the mouse was on before. row: NoMenuRow, or an index of rows.
RowMove Move_ToRow(int selected, int row, std::span<const MenuRowKind> rows);
