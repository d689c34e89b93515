// "Hours Setup": the list of when in the day the reminder fires, and the conditions to add.
#pragma once

#include "editors/pages/clock_popup.h"
#include "editors/pages/hour_rules.h"
#include "editors/pages/reminder_page.h"

#include <array>

class ChkBox;
class HourList;
class TimeField;

class HourPage : public ReminderPage {
    Q_OBJECT
public:
    HourPage(EditHost& editHost, QWidget* parent);

    void Load(const ReminderClass& reminder) override;
    QString Store(ReminderClass& reminder) override;
    void Mark_Fault() override;
    void Hide_Marks() override;
    void Hide_Popup() override;
    // The clock, with the window.
    void Unload_Popup() { clock.Unload(); }

Q_SIGNALS:
    // The record has got it at once: a save that is refused does not take it back.
    void Condition_Added(const HourSetup& condition);

private:
    void Build_List();
    void Build_Simple();
    void Build_Every();
    TimeField* Add_TimeField(const QString& spoken, int left, int top);
    void Add_ToList_Button(Condition condition, int top, const QString& spoken);
    void Show_Rows(const ReminderClass& reminder);
    void Add_Click(Condition condition);
    void Delete_Click(int row);
    void Show_Clock_ForCell(int row, HourCell cell);
    void Clock_Written(const QString& text);
    void Cell_Typed(int row, HourCell cell);

    EditHost& host;
    HourList* list = nullptr;
    int faultRow = 0;
    TimeField* at = nullptr;
    QLineEdit* every = nullptr;
    TimeField* startingAt = nullptr;
    TimeField* until = nullptr;
    std::array<ChkBox*, 2> starts{}; // "At", "When the program starts"

    // The clock's box for the rows, whose own fields come and go with scrolling: its text is copied
    // to the cell that it stands for.
    QLineEdit* wrapper = nullptr;
    int wrapperRow = -1; // -1 = no cell
    HourCell wrapperCell = HourCell::Start;
    bool copying = false; // one of the two is written because of the other
    ClockPopup clock;
};
