#include "toolbar/message_strip.h"

#include "controls/metrics.h"
#include "controls/palette.h"

#include <QFocusEvent>
#include <QFontMetricsF>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {

constexpr int ToolTipLimit = 1000; // characters; a longer tip would cover the screen

// Breaks and tabs would leave the line.
QString As_Line(QString text) {
    for (QChar& c : text) {
        if (c.unicode() < 32 || c == QChar::LineSeparator || c == QChar::ParagraphSeparator) {
            c = u' ';
        }
    }
    return text;
}

} // namespace

MessageSurface::MessageSurface(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::PreventContextMenu);
}

void MessageSurface::focusInEvent(QFocusEvent* event) {
    const Qt::FocusReason reason = event->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
        focusByKey = reason != Qt::MouseFocusReason;
    }
    parentWidget()->update(geometry().adjusted(-1, -1, 1, 1));
}

void MessageSurface::focusOutEvent(QFocusEvent*) {
    parentWidget()->update(geometry().adjusted(-1, -1, 1, 1));
}

void MessageSurface::paintEvent(QPaintEvent* event) {
    QPainter(this).fillRect(event->rect(), palette::To_Color(palette::Message_Back));
}

MessageText::MessageText(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setFont(Small_Font());
    layout.setTextFormat(Qt::PlainText);
    layout.setPerformanceHint(QStaticText::AggressiveCaching);
}

void MessageText::Set_Text(const QString& text) {
    shown = text;
    layout.setText(As_Line(text));
    update();
}

int MessageText::Width_Of(const QString& text) {
    return qRound(QFontMetricsF(Small_Font()).horizontalAdvance(As_Line(text)));
}

bool MessageText::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && !toolTip().isEmpty()) {
        // Wrapped by being rich text, and so escaped: a reminder may hold anything.
        QString tip = toolTip();
        if (tip.size() > ToolTipLimit) {
            tip = tip.first(ToolTipLimit) + QChar(0x2026);
        }
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           u"<p>"_s + tip.toHtmlEscaped() + u"</p>"_s, this);
        return true;
    }
    return QWidget::event(event);
}

void MessageText::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), palette::To_Color(palette::Message_Back));
    painter.setPen(palette::To_Color(palette::Message_Text));
    painter.drawStaticText(0, 0, layout);
}
