// The check box of the program's pages: a frame, a tick and a label that act as one. A page makes
// radio groups of them by its own rules.
#pragma once

#include <QWidget>

class ChkBox : public QWidget {
    Q_OBJECT
public:
    // Pixels: the box stands at the left, the caption beside it.
    ChkBox(const QString& caption, int left, int top, QWidget* parent);

    // Makes the control as large as the new caption asks.
    void Set_Caption(const QString& text);
    const QString& Caption() const { return caption; }
    bool Is_Ticked() const { return ticked; }
    // By the program: tells nobody.
    void Set_Ticked(bool on);
    // A blocked box shows a grey frame, loses its tick and takes no input.
    void Set_Blocked(bool block);
    bool Is_Blocked() const { return blocked; }
    // One of a group: says so to a screen reader.
    void Set_Radio(bool radio) { isRadio = radio; }
    bool Is_Radio() const { return isRadio; }

Q_SIGNALS:
    // By the user, after the tick has changed: mouse, space bar or a screen reader.
    void Checked();
    void Unchecked();

public:
    // What a click does.
    void Toggle();
    // Where the frame stands now, pixels of the control; a press moves it.
    QRect Frame_Rect() const;
    QSize sizeHint() const override;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Set_Down(bool value);
    void Tell_StateChange();

    QString caption;
    bool ticked = false;
    bool blocked = false;
    bool isRadio = false;
    bool down = false;
    bool focusByKey = false; // only a keyboard user needs the focus mark
};
