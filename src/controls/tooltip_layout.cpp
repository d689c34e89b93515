#include "controls/tooltip_layout.h"

#include "controls/the_screen.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int LineStep = 14;
constexpr int GapHeight = 8;
constexpr std::size_t MostLines = 200;
constexpr int FromPicture = 4;

// Where the line has to be cut so that its left part fits: the last blank that does; -1 for none.
// Looking from the front, no more is measured than fits.
qsizetype Cutting_Point(const QString& line, int maxWidth, const TextWidth& widthOf) {
    qsizetype best = -1;
    for (qsizetype at = line.indexOf(u' ', 1); at >= 0; at = line.indexOf(u' ', at + 1)) {
        if (widthOf(line.left(at)) > maxWidth)
            break;
        best = at;
    }
    return best;
}

} // namespace

std::vector<TooltipLine> Layout_Tooltip(const QString& text, int maxWidth,
                                        const TextWidth& widthOf) {
    std::vector<TooltipLine> lines;
    if (text.isEmpty())
        return lines;
    int offset = 0;
    for (QString rest : text.split("\r\n"_L1)) {
        if (rest == "--"_L1) {
            offset += GapHeight;
            continue;
        }
        bool more = true;
        while (more && lines.size() < MostLines) {
            const bool tooWide = maxWidth >= 1 && widthOf(rest) > maxWidth;
            const qsizetype cut = tooWide ? Cutting_Point(rest, maxWidth, widthOf) : -1;
            const int top = static_cast<int>(lines.size()) * LineStep + offset;
            lines.push_back({cut < 0 ? rest : rest.left(cut), top});
            rest = rest.mid(cut + 1);
            more = cut >= 0;
        }
    }
    return lines;
}

QPoint Place_Tooltip(const QRect& picture, const QSize& tip, const QRect& screen) {
    int left = picture.x() + picture.width() + FromPicture;
    if (left + tip.width() > screen.right() + 1)
        left = picture.x() - FromPicture - tip.width();
    return Moved_Into(screen, {QPoint(left, picture.y()), tip}).topLeft();
}
