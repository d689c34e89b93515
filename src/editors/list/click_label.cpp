#include "editors/list/click_label.h"

#include "controls/metrics.h"
#include "controls/painting.h"
#include "controls/palette.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {
constexpr ColorValue LinkText = 0xFF0000;
}

ClickLabel::ClickLabel(const QString& text, int left, int top, QWidget* parent)
    : QLabel(text, parent) {
    setFont(Small_Font());
    setTextFormat(Qt::PlainText);
    move(left, top);
    adjustSize();
}

void ClickLabel::Look_Clickable() {
    QFont underlined = font();
    underlined.setUnderline(true);
    setFont(underlined);
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, palette::To_Color(LinkText));
    setPalette(colors);
}

void ClickLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
        Q_EMIT Click();
}

void ClickLabel::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return ||
        event->key() == Qt::Key_Enter)
        Q_EMIT Click();
    else
        QLabel::keyPressEvent(event);
}

void ClickLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (hasFocus()) {
        QPainter painter(this);
        Draw_Frame(painter, rect(), palette::To_Color(palette::Focus_Mark));
    }
}
