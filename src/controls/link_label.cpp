#include "controls/link_label.h"

#include "controls/metrics.h"

#include <QKeyEvent>

namespace {

constexpr int LookInterval = 100; // ms

} // namespace

LinkLabel::LinkLabel(const QString& caption, QWidget* parent)
    : QAbstractButton(parent), watch(LookInterval, [this] { update(); }) {
    setText(caption);
    setFont(Small_Font());
    setCursor(Qt::PointingHandCursor);
    setMouseTracking(true);
}

void LinkLabel::Grow_Hot() {
    if (!Is_Hot())
        update();
    watch.Start({mapToGlobal(QPoint()), size()});
}

void LinkLabel::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    Grow_Hot();
}

void LinkLabel::mouseMoveEvent(QMouseEvent* event) {
    QAbstractButton::mouseMoveEvent(event);
    Grow_Hot();
}

void LinkLabel::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    watch.Stop();
    update();
}

void LinkLabel::hideEvent(QHideEvent* event) {
    QAbstractButton::hideEvent(event);
    watch.Stop();
}

void LinkLabel::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}
