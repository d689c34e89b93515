// What the links menu looks like.
#include "controls/painting.h"
#include "controls/palette.h"
#include "links/menu/links_menu_v2.h"

#include <QPaintEvent>
#include <QPainter>
#include <QPolygon>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr ColorValue Menu_Back = palette::Form_Back;
constexpr ColorValue Header_Back = palette::Toolbar_Back;
constexpr ColorValue Separator_Line = 0xC0C0C0;
constexpr ColorValue Mark_Color = 0x606060;
constexpr int FrameWidth = 1;
constexpr int MarkFromRight = 16;

// A small triangle about its middle; dx, dy: where it points.
void Draw_Mark(QPainter& painter, const QPoint& middle, int dx, int dy) {
    constexpr int half = 4;
    const QPoint along(dx * half / 2, dy * half / 2);
    const QPoint across(dy * half, dx * half);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette::To_Color(Mark_Color));
    painter.drawPolygon(
        QPolygon({middle + along, middle - along + across, middle - along - across}));
    painter.setRenderHint(QPainter::Antialiasing, false);
}

} // namespace

void LinksMenuV2::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), palette::To_Color(Menu_Back));
    Paint_Headers(painter);
    // Of a thousand rows only those on view.
    const auto first = std::upper_bound(level->Layout.Tops.begin(), level->Layout.Tops.end(),
                                        event->rect().top() + shift - MenuRowPitch);
    for (auto row = static_cast<int>(first - level->Layout.Tops.begin());
         row < Row_Count() && Row_Rect(row).top() <= event->rect().bottom(); ++row)
        Paint_Row(painter, row);
    Paint_Ends(painter);
    Draw_Frame(painter, rect(), palette::To_Color(palette::Outline));
}

void LinksMenuV2::Paint_Headers(QPainter& painter) const {
    painter.setFont(Menu_HeaderFont());
    const auto paint = [&](int top, const QString& text) {
        if (top == NoHeader)
            return;
        const QRect box(FrameWidth, top - shift, width() - 2 * FrameWidth, MenuRowPitch - 2);
        painter.fillRect(box, palette::To_Color(Header_Back));
        painter.setPen(palette::To_Color(palette::Collapsed_Text));
        painter.drawText(box.adjusted(MenuLeftMargin - FrameWidth, 0, 0, 0),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
    };
    paint(level->Layout.CategoryLabel, CategoriesText);
    paint(level->Layout.DailyLinksLabel, LinksText);
    painter.setFont(font());
}

// Measured as the form was: the toolkit's own test counts fractions of a pixel.
QString LinksMenuV2::Fitting_Text(int row, int room) const {
    const QString& text = Caption(row);
    return fontMetrics().horizontalAdvance(text) <= room
               ? text
               : fontMetrics().elidedText(text, Qt::ElideRight, room);
}

void LinksMenuV2::Paint_Row(QPainter& painter, int row) const {
    const QRect place = Row_Rect(row);
    const int middle = place.top() + MenuRowPitch / 2;
    if (row == highlight) {
        const QRect SelShape = place.adjusted(MenuEdge, 0, -MenuEdge, -1);
        painter.fillRect(SelShape, palette::To_Color(palette::Button_Pressed));
        Draw_Frame(painter, SelShape, palette::To_Color(palette::Button_Back));
    }
    if (Kind(row) == MenuRowKind::Separator) {
        Draw_Line(painter, {MenuLeftMargin, middle}, {width() - MenuLeftMargin, middle},
                  palette::To_Color(Separator_Line));
        return;
    }
    const int room = width() - MenuLeftMargin - MenuRightMargin;
    painter.setPen(palette::To_Color(palette::Black));
    painter.drawText(QRect(MenuLeftMargin, place.top(), room + MenuRightMargin, MenuRowPitch),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     Fitting_Text(row, room));
    if (Kind(row) == MenuRowKind::Category)
        Draw_Mark(painter, {width() - MarkFromRight, middle}, 1, 0);
}

// There is more above or below.
void LinksMenuV2::Paint_Ends(QPainter& painter) const {
    if (shift > 0)
        Draw_Mark(painter, {MenuLeftMargin / 2, 5}, 0, -1);
    if (shift + height() < level->Layout.Height)
        Draw_Mark(painter, {MenuLeftMargin / 2, height() - 6}, 0, 1);
}
