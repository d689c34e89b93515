// A text that is clicked like a link. While the mouse is over it, it is hot; a poll ends that, so
// that it cannot stay hot when the card moves away under the mouse.
#pragma once

#include <QAbstractButton>
#include <QRect>
#include <QTimer>

class NoteLink : public QAbstractButton {
    Q_OBJECT
public:
    explicit NoteLink(const QString& caption, QWidget* parent = nullptr);
    bool Is_Hot() const { return hot; }
    QSize sizeHint() const override;

protected:
    void enterEvent(QEnterEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Timer2_Tick();
    void Set_Hot(bool on);

    bool hot = false;
    QRect hotArea; // on the screen
    QTimer Timer2;
};
