#include "notes/note_link.h"

#include "controls/metrics.h"
#include "controls/painting.h"
#include "controls/palette.h"
#include "platform/desktop.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr int PollTime = 100; // ms
constexpr ColorValue HotColor = 0x0000C0;

} // namespace

NoteLink::NoteLink(const QString& caption, QWidget* parent) : QAbstractButton(parent) {
    setText(caption);
    setFont(Small_Font());
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::ClickFocus);
    resize(sizeHint());
    Timer2.setInterval(PollTime);
    connect(&Timer2, &QTimer::timeout, this, &NoteLink::Timer2_Tick);
}

QSize NoteLink::sizeHint() const {
    return {fontMetrics().horizontalAdvance(text()) + 4, SmallLineHeight + 2};
}

void NoteLink::Set_Hot(bool on) {
    if (!on)
        Timer2.stop();
    if (hot == on)
        return;
    hot = on;
    update();
}

void NoteLink::enterEvent(QEnterEvent*) {
    hotArea = QRect(mapToGlobal(QPoint()), size());
    Timer2.start();
    Set_Hot(true);
}

void NoteLink::Timer2_Tick() {
    const auto cursor = platform::Desktop::Get().Cursor_Position();
    if (!cursor || !hotArea.contains(cursor->x, cursor->y))
        Set_Hot(false);
}

void NoteLink::hideEvent(QHideEvent*) {
    Set_Hot(false);
}

void NoteLink::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void NoteLink::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QFont underlined = font();
    underlined.setUnderline(hot || hasFocus());
    painter.setFont(underlined);
    painter.setPen(palette::To_Color(hot ? HotColor : palette::Focus_Mark));
    painter.drawText(rect(), Qt::AlignCenter, text());
    if (hasFocus())
        Draw_Frame(painter, rect(), palette::To_Color(palette::Focus_Mark));
}
