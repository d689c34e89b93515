// "Date Setup": on which days the reminder fires, and from which day on.
#pragma once

#include "editors/pages/date_rules.h"
#include "editors/pages/reminder_page.h"

#include <QPointer>
#include <QTimer>

class ChkBox;
class frmCalendar;
class QButtonGroup;
class QLabel;
class QLineEdit;
class QRadioButton;
class Shape;

class DatePage : public ReminderPage {
    Q_OBJECT
public:
    DatePage(EditHost& editHost, QWidget* parent);

    void Load(const ReminderClass& reminder) override;
    QString Store(ReminderClass& reminder) override;
    void Mark_Fault() override;
    void Hide_Marks() override;
    void Hide_Popup() override;
    // The day of the next run by what is on view, told and shown; nothing while it has a fault.
    void Update_NextRun();

Q_SIGNALS:
    // -1 = none.
    void NextRun_Changed(Day nextRun);

private:
    void Build_Frames();
    void Build_EveryDay();
    void Build_Weekdays();
    void Build_Intervals();
    void Build_ExactDate();
    void Build_Start();
    void Build_Marks();
    ChkBox* Add_Box(int box, const QString& caption, const QString& group, int left, int top);
    void Add_Weekdays(int monday, const QString& group, int left, int top);
    void Add_DateRow(DateField field, int box, const QString& group, int top);
    void Add_WeekOptions(WeekOption thisWeek, int top);
    QLineEdit* Add_ShortField(const QString& name, const QRect& place, int maxLength);

    DatePageState Read_State() const;
    void Show_State(const DatePageState& state);
    // True: the tick stays.
    bool Box_Ticked(int box);
    void Box_Unticked(int box);
    void Week_Chosen(WeekOption option);
    void Open_Calendar(DateField field, int top);
    void Take_Date(const QString& date);
    void Refusal_Timeout();
    QWidget* Control_Of(ErrorMark mark) const;
    void Show_NextRun(std::optional<DateType> kind, const QString& date);
    ChkBox* Box(int box) const { return boxes[static_cast<std::size_t>(box)]; }
    // All that can be typed into.
    std::array<QLineEdit*, 5> Fields() const { return {weeks, monthday, days, dates[0], dates[1]}; }

    EditHost& host;
    StoredDate stored;
    std::array<Day, 2> tickedOn{}; // by DateField
    ErrorMark fault = ErrorMark::Weeks;

    std::array<ChkBox*, date_box::Count> boxes{};
    QLineEdit* weeks = nullptr;
    QLineEdit* monthday = nullptr;
    QLineEdit* days = nullptr;
    std::array<QLineEdit*, 2> dates{};           // by DateField
    std::array<QRadioButton*, 4> weekOptions{};  // by WeekOption
    std::array<QButtonGroup*, 2> optionGroups{}; // by DateField
    QLabel* weeksRun = nullptr;
    QLabel* daysRun = nullptr;
    QLabel* startRefused = nullptr;
    QTimer refusalTimer;
    Shape* highlight = nullptr;
    std::array<Shape*, 5> frames{}; // by DateType
    std::array<Shape*, 7> marks{};  // by ErrorMark
    QPointer<frmCalendar> calendar;
    DateField calendarField = ExactField;
};
