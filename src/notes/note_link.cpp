#include "notes/note_link.h"

#include "controls/metrics.h"
#include "controls/painting.h"
#include "controls/palette.h"

#include <QPainter>

namespace {

constexpr ColorValue HotColor = 0x0000C0;

} // namespace

NoteLink::NoteLink(const QString& caption, QWidget* parent) : LinkLabel(caption, parent) {
    setFocusPolicy(Qt::ClickFocus);
    resize(sizeHint());
}

QSize NoteLink::sizeHint() const {
    return {fontMetrics().horizontalAdvance(text()) + 4, SmallLineHeight + 2};
}

void NoteLink::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QFont underlined = font();
    underlined.setUnderline(Is_Hot() || hasFocus());
    painter.setFont(underlined);
    painter.setPen(palette::To_Color(Is_Hot() ? HotColor : palette::Focus_Mark));
    painter.drawText(rect(), Qt::AlignCenter, text());
    if (hasFocus())
        Draw_Frame(painter, rect(), palette::To_Color(palette::Focus_Mark));
}
