// Where the rows and headers of one level of the links menu stand, and which of them a place or a
// key means. Plain data; all coordinates are pixels of the level, from its top.
#pragma once

#include <QString>

#include <span>
#include <vector>

enum class MenuRowKind { Category, Link, Separator };

inline constexpr int MenuRowPitch = 24;
inline constexpr int MenuLeftMargin = 12;
inline constexpr int MenuRightMargin = 32;
inline constexpr int MenuEdge = 2; // the frame, and a pixel inside it
inline constexpr int NoMenuRow = -1000;
inline constexpr int NoHeader = -1;

struct MenuLayout {
    std::vector<int> Tops; // of the rows
    int CategoryLabel = NoHeader;
    int DailyLinksLabel = NoHeader;
    int Width = 0;
    int Height = 0;

    // The row at this height; NoMenuRow on a header or outside.
    int Row_At(int y) const;
};

// Categories stand first in rows. widestCaption: of the rows. widestHeader: widens a level whose
// captions are so short that the header would be cut.
MenuLayout Lay_OutMenu(std::span<const MenuRowKind> rows, int widestCaption, int widestHeader = 0);

// The next row that can be chosen, around the end; from: a row or NoMenuRow, step: 1 or -1.
// NoMenuRow when there is none.
int Next_MenuRow(std::span<const MenuRowKind> rows, int from, int step);
// The first row whose caption begins with the text, in any case, looked for from a row on and
// around the end; NoMenuRow when there is none.
int Find_MenuRow(std::span<const QString> captions, std::span<const MenuRowKind> rows, int from,
                 const QString& start);

// How far a level that is higher than its view has to be shifted up to show a row wholly; as
// little as it takes from the shift it has.
int Shift_ToShow(const MenuLayout& layout, int row, int shift, int viewHeight);
// The shift, held so that the view shows rows only.
int Bounded_Shift(int shift, int height, int viewHeight);
