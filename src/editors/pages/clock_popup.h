// The clock as a popup of time fields: it comes with a click on one, and goes when the user is
// neither in a time field nor in the clock nor in the toolbar.
#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QTimer>

#include <functional>

class frmClock;
class QLineEdit;
class QWidget;
class TimeField;

class ClockPopup : public QObject {
public:
    // left: runs when the clock leaves its field.
    ClockPopup(QWidget& page, std::function<void()> left);

    // The clock's timer stands still while the field has the focus.
    void Watch(TimeField* field);
    // name: of the field; box: takes the time; minutes: since midnight; fieldTop: on the screen,
    // pixels.
    void Show_Clock_For_Textbox(const QString& name, QLineEdit* box, int minutes, int fieldTop);
    bool Is_On(const QString& name) const;
    // The box was changed by hand.
    void Follow(const QLineEdit* box);
    void Hide();
    void Unload();

protected:
    // Escape puts the clock away before it closes the window.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    frmClock& The_Clock();
    void frmClockFocusTimer_Tick();
    void Leave_Field();

    QWidget& page;
    std::function<void()> onLeft;
    QPointer<frmClock> clock;
    QString target;
    bool fieldHasFocus = false;
    QTimer frmClockFocusTimer{this};
};
