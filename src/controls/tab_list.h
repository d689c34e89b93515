// What a tab strip is made of, on plain data: its list of tabs, and the colours of its faces.
#pragma once

#include "controls/palette.h"

#include <QString>

#include <optional>
#include <vector>

inline constexpr int MostTabs = 31;
inline constexpr int WidthOfCaption = -1;

struct TabEntry {
    int Width = WidthOfCaption; // pixels
    QString Caption;
    bool operator==(const TabEntry&) const = default;
};

// Pairs of width and caption between ";". A last field without a partner is dropped, a width that
// is no number is 0. Nothing for more than MostTabs pairs.
std::optional<std::vector<TabEntry>> Parse_Tabs(const QString& list);

// The colours of rows 1 to rowCount of a face, the first row at index 0. The last row stays one
// step short of bottom.
std::vector<ColorValue> Gradient_Rows(ColorValue top, ColorValue bottom, int rowCount);
