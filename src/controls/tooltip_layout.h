// Where the lines of a tooltip stand, and where the tooltip itself stands. Pixels throughout.
#pragma once

#include <QPoint>
#include <QRect>
#include <QString>

#include <functional>
#include <vector>

struct TooltipLine {
    QString Text;
    int Top = 0; // below the title
    bool operator==(const TooltipLine&) const = default;
};

using TextWidth = std::function<int(const QString&)>;

// The lines of a text, "--" taken as a gap. Lines wider than maxWidth are cut at blanks; below 1
// nothing is cut. More lines than any screen has are left out.
std::vector<TooltipLine> Layout_Tooltip(const QString& text, int maxWidth,
                                        const TextWidth& widthOf);

// Beside the picture: right of it, or left of it where the screen ends, and all on the screen.
QPoint Place_Tooltip(const QRect& picture, const QSize& tip, const QRect& screen);
