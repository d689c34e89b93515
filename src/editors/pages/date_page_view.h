// The controls of the date page.
#pragma once

#include "controls/chk_box.h"
#include "controls/wb_button.h"
#include "editors/calendar/frm_calendar.h"
#include "editors/pages/date_page.h"
#include "editors/pages/date_record.h"
#include "editors/pages/page_controls.h"

#include <QButtonGroup>
#include <QLabel>
#include <QPointer>
#include <QRadioButton>
#include <QTimer>

struct DatePage::View {
    View(DatePage& page, EditHost& host);

    DatePageState Read_State() const;
    void Show_State(const DatePageState& state);
    // What is to be mended first.
    QWidget* Control_Of(ErrorMark mark) const;
    // What was typed for another reminder cannot be undone into this one.
    void Forget_Undo();

    DatePage& page;
    EditHost& host;
    bool LoadingView = false;
    StoredDate Stored;
    std::array<Day, 2> TickedOn{};
    int TargetIndex = ExactField; // of the calendar

    std::array<ChkBox*, date_box::Count> p2Chk{};
    QLineEdit* Text1 = nullptr;
    QLineEdit* Text2 = nullptr;
    QLineEdit* Text3 = nullptr;
    std::array<QLineEdit*, 2> Text4{};
    std::array<wbButton*, 2> wbButton2{};
    std::array<QRadioButton*, 4> Option1{};
    std::array<QButtonGroup*, 2> OptionGroups{};
    QLabel* Label27 = nullptr; // next run by weeks
    QLabel* Label36 = nullptr; // next run by days
    QLabel* ErrLabel = nullptr;
    Shape* dateTypeHLBox = nullptr;
    std::array<Shape*, 5> Frames{}; // by DateType: Shape5, 7, 14, 8, 32
    std::array<Shape*, 7> ErrorShapes{};
    QTimer HideErrLabelTimer;
    QPointer<frmCalendar> Calendar;

private:
    void Build_Frames();
    void Build_EveryDay();
    void Build_Weekdays();
    void Build_Intervals();
    void Build_ExactDate();
    void Build_Start();
    void Build_Marks();
    ChkBox* Add_Box(int index, const QString& caption, const QString& group, int left, int top);
    void Add_Weekdays(int monday, const QString& group, int left, int top);
    void Add_DateRow(DateField field, int box, const QString& group, int top);
    void Add_WeekOptions(WeekOption thisWeek, int top);
    QLineEdit* Add_Field(const QString& name, const QRect& place, int maxLength);
};
