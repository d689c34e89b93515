// What a reminder's function button does, as the windows show it and take it back.
#pragma once

#include "core/reminder.h"

#include <QString>

#include <array>

// The boxes of the function editor: two kinds of target, three start sizes.
constexpr int FunctionBoxCount = 5;
constexpr int FirstSizeBox = 2;
using FunctionBoxes = std::array<bool, FunctionBoxCount>;

// "- None -", or the kind and the path in double quotes.
QString Function_Text(FunctionType type, const QString& path);
// A box was ticked: the others of its group lose their tick.
void Tick_FunctionBox(FunctionBoxes& boxes, int box);
// The boxes of a stored function; a byte that stands for nothing ticks nothing.
FunctionBoxes Boxes_OfFunction(const FunctionEntry& entry);
// The function that the editor's fields say. Enabled and Title stay those of "before".
FunctionEntry Function_FromView(const FunctionEntry& before, const FunctionBoxes& boxes,
                                const QString& page, const QString& file);
