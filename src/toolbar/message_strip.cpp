#include "toolbar/message_strip.h"

#include "controls/metrics.h"
#include "controls/palette.h"
#include "platform/shown_text.h"

#include <QFocusEvent>
#include <QFontMetricsF>
#include <QHelpEvent>
#include <QPainter>
#include <QRawFont>
#include <QTextLayout>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype PieceLength = 64; // glyphs

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
}

void MessageText::Set_Text(const QString& text) {
    shown = text;
    pieces.clear();
    QTextLayout layout(As_Line(text), font());
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    layout.createLine().setLineWidth(QWIDGETSIZE_MAX);
    layout.endLayout();
    for (const QGlyphRun& run : layout.glyphRuns()) {
        Add_Pieces(run);
    }
    update();
}

void MessageText::Add_Pieces(const QGlyphRun& run) {
    const QList<quint32> glyphs = run.glyphIndexes();
    const QList<QPointF> places = run.positions();
    const int reach = static_cast<int>(std::ceil(run.rawFont().maxCharWidth()));
    const auto isLefter = [](QPointF a, QPointF b) { return a.x() < b.x(); };
    for (qsizetype from = 0; from < glyphs.size(); from += PieceLength) {
        const QList<QPointF> there = places.mid(from, PieceLength);
        const auto [first, last] = std::minmax_element(there.begin(), there.end(), isLefter);
        Piece piece{run, qRound(first->x()) - reach, qRound(last->x()) + 2 * reach};
        piece.Glyphs.setGlyphIndexes(glyphs.mid(from, PieceLength));
        piece.Glyphs.setPositions(there);
        pieces.push_back(std::move(piece));
    }
}

int MessageText::Width_Of(const QString& text) {
    return qRound(QFontMetricsF(Small_Font()).horizontalAdvance(As_Line(text)));
}

bool MessageText::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && !toolTip().isEmpty()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           platform::Tip_Text(toolTip()), this);
        return true;
    }
    return QWidget::event(event);
}

void MessageText::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), palette::To_Color(palette::Message_Back));
    painter.setPen(palette::To_Color(palette::Message_Text));
    for (const Piece& piece : pieces) {
        if (piece.Left <= event->rect().right() && piece.Right >= event->rect().left()) {
            painter.drawGlyphRun({}, piece.Glyphs);
        }
    }
}
