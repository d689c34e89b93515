// Longer help beside a field: a small picture that shows one of the texts of "tooltips.txt" while
// the mouse is over it, or while it has the focus.
#pragma once

#include "controls/mouse_watch.h"
#include "controls/tooltip_texts.h"

#include <QWidget>

class TooltipPicture : public QWidget {
    Q_OBJECT
public:
    // index: the number of the text in Global_Tooltips; left and top in pixels.
    TooltipPicture(int index, int left, int top, QWidget* parent);
    ~TooltipPicture() override;
    int Index() const { return index; }

protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Show_Tip(const QRect& onScreen);
    void Hide_Tip();
    void Mouse_Left();

    int index;
    bool shownByKey = false;
    MouseWatch watch;
};
