// The time picker: an analogue face, two boxes of two digits, and four buttons that step. The time
// goes to the caller's text box at every change.
#pragma once

#include "accessories/clock/clock_rules.h"
#include "controls/form.h"

#include <QLineEdit>
#include <QPointer>
#include <QTimer>

#include <array>

class ClockPicture;
class wbButton;

class frmClock : public Form {
    Q_OBJECT
public:
    explicit frmClock(QWidget* owner = nullptr);

    // The box that takes the time as "hh:mm" and that the clock follows; null: none.
    void Set_wTextBox(QLineEdit* box);
    QLineEdit* wTextBox() const { return target; }
    // Minutes since midnight; outside 0..1439 it is brought inside. The target keeps its text.
    void SetTime(int LongMinutes);
    // Redraws the hands.
    void DrawTime(int LongMinutes);
    int MinutesValue() const { return To_MinutesValue(time); }
    // The caller tells the clock that its box has changed. A text that is no time is passed over.
    void wTextBox_Change();
    // Shows it without taking the focus, all on the screen; pixels.
    void Show_At(int left, int top);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void On_Unload() override;

private:
    void Make_Buttons();
    QLineEdit* Make_Box(int left, const QString& name);
    void Box_Change(QLineEdit* box);
    void Box_Left(QLineEdit* box);
    bool Step_ByKey(const QLineEdit* box, int key);
    void wbButton1_Click(StepButton button);
    void Press_Step(StepButton button);
    void Release_Step();
    void AutoAddTimer_Tick();
    void Fill_Boxes();
    QString Box_Text(const QLineEdit* box, int value) const;
    void Write_Target();
    void Hide_Clock();

    ClockTime time;
    bool SettingTime = false; // the program itself writes the boxes
    bool MinuteWrapped = false;
    bool writingTarget = false;
    bool hasRepeated = false; // the release that follows is no click of its own
    StepButton heldButton = StepButton::HourUp;
    QPointer<QLineEdit> target;
    ClockPicture* ClockPIC;
    QLineEdit* Text1; // hours
    QLineEdit* Text2; // minutes
    std::array<wbButton*, StepButtonCount> wbButton1{};
    QTimer AutoAddTimer{this};
};
