// The short way to a new reminder: one dialog with a text, a day and some times. The reminder is in
// the table from the start, pending, so that it can be tested for real.
#pragma once

#include "controls/form.h"
#include "editors/calendar/frm_calendar.h"
#include "editors/pages/clock_popup.h"
#include "editors/wizard/quick_add_rules.h"

#include <QPointer>

#include <array>

class ChkBox;
class ComboBox;
class QLineEdit;
class MemoField;
class QRadioButton;
class TimeField;

class frmQuickAddReminder : public Form {
    Q_OBJECT
public:
    frmQuickAddReminder();

protected:
    void On_Unload() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Build_Message(const QuickAddState& first);
    void Build_Days(const QuickAddState& first);
    void Build_Hours(const QuickAddState& first);
    TimeField* Add_TimeBox(int number, const QRect& place, ChkBox* box);
    void Build_Buttons();
    void Choose_Day(DayChoice choice);
    void Hour_Unchecked(ChkBox* box);
    void Title_Left(Qt::FocusReason reason);

    QuickAddState State() const;
    // The own reminder; made anew when somebody has deleted it.
    ReminderClass& Own_Reminder();
    bool Apply(BadValues bad);
    void Test_Click();
    void Accept_Click();
    void FullEditor_Click();
    void Calendar_Click();

    ReminderRef pending;
    QLineEdit* title = nullptr;
    MemoField* text = nullptr;
    ComboBox* category = nullptr;
    std::array<QRadioButton*, 3> modes{};
    std::array<ChkBox*, 3> days{}; // by DayChoice
    QLineEdit* date = nullptr;
    std::array<ChkBox*, 1 + QuickTimeCount> hours{}; // at start up, then the times
    std::array<TimeField*, QuickTimeCount> times{};
    QPointer<frmCalendar> calendar;
    ClockPopup clock;
};

// Opens the dialog, or brings the open one to the front.
void Show_QuickAdd();
