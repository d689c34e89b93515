// A text that is clicked like a link, and is hot while the mouse is over it.
#pragma once

#include "controls/mouse_watch.h"

#include <QAbstractButton>

class LinkLabel : public QAbstractButton {
    Q_OBJECT
public:
    explicit LinkLabel(const QString& caption, QWidget* parent = nullptr);
    bool Is_Hot() const { return watch.Is_Watching(); }

protected:
    void enterEvent(QEnterEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Grow_Hot();

    MouseWatch watch;
};
