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

    void frmCalendarCopy_DateSelected(const QString& NewDate);

protected:
    void On_Unload() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Build_Message();
    void Build_Days();
    void Build_Hours();
    TimeField* Add_TimeBox(const QString& name, const QRect& place, ChkBox* box);
    void Build_Buttons();
    void Choose_Day(std::size_t index);
    void Hour_Unchecked(std::size_t index);
    void Text1_LostFocus(Qt::FocusReason reason);

    QuickAddState State() const;
    // The own reminder; made anew when somebody has deleted it.
    ReminderClass& Own_Reminder();
    bool Apply(BadValues bad);
    void Test_Click();
    void Accept_Click();
    void FullEditor_Click();
    void Calendar_Click();

    ReminderRef pending;
    QLineEdit* Text1 = nullptr;
    MemoField* Text3 = nullptr;
    ComboBox* Combo1 = nullptr;
    std::array<QRadioButton*, 3> Option1{};
    std::array<ChkBox*, 7> p2ChkImage{}; // 0..3 hours, 4..6 days
    QLineEdit* Text5 = nullptr;
    std::array<TimeField*, QuickTimeCount> hText{};
    QPointer<frmCalendar> frmCalendarCopy;
    ClockPopup clock;
};

// Opens the dialog, or brings the open one to the front.
void Show_QuickAdd();
