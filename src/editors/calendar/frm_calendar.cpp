#include "editors/calendar/frm_calendar.h"

#include "controls/combo_box.h"
#include "controls/combo_name.h"
#include "controls/help_topic.h"
#include "controls/program_end.h"
#include "controls/the_screen.h"
#include "controls/wb_button.h"
#include "core/date_text.h"
#include "editors/calendar/calendar_rules.h"
#include "editors/calendar/day_grid.h"
#include "platform/dialogs.h"
#include "platform/window.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QStyle>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int Margin = 8;
constexpr int FieldHeight = 22;
constexpr int MonthWidth = 102;
constexpr int YearWidth = 63;
constexpr int LabelsTop = 36;
constexpr int GridTop = 52;
constexpr int ButtonHeight = 24;

} // namespace

frmCalendar::frmCalendar(QWidget* owner) : Form(owner) {
    setWindowTitle(u"Calendar"_s);
    Build_Controls();
    Fill_Boxes();
    Show_Date(0, 0, 0);
}

void frmCalendar::Build_Controls() {
    Combo1 = new ComboBox(this);
    Combo1->setGeometry(Margin, Margin, MonthWidth, FieldHeight);
    Name_Combo(Combo1, u"Month"_s);
    Combo1->setMaxVisibleItems(12);
    Combo2 = new ComboBox(this);
    Combo2->setGeometry(Margin + MonthWidth + 4, Margin, YearWidth, FieldHeight);
    Combo2->setEditable(true);
    Name_Combo(Combo2, u"Year"_s);
    Combo2->setInsertPolicy(QComboBox::NoInsert);
    Combo2->setCompleter(nullptr);
    DaysLabel = new DayGrid(CalendarRows, this);
    DaysLabel->move(Margin, GridTop);
    for (int i = 0; i < CalendarColumns; ++i) {
        QLabel* label =
            Add_Label(Weekday_Name(i).left(2), Margin + i * DayGrid::ColumnPitch, LabelsTop);
        label->setFixedWidth(DayGrid::ColumnPitch);
        label->setAlignment(Qt::AlignHCenter);
    }
    wbButton1 = new wbButton(this);
    const int buttonTop = GridTop + DaysLabel->height() + 6;
    wbButton1->setGeometry(Margin, buttonTop, DaysLabel->width(), ButtonHeight);
    wbButton1->Set_Caption(u"Ok"_s);
    const QLabel* hint = Add_Label(help_page::Hint, Margin, buttonTop + ButtonHeight + 4);
    setFixedSize(DaysLabel->width() + 2 * Margin, hint->geometry().bottom() + 4);

    connect(Combo1, &QComboBox::activated, this, &frmCalendar::Combo_Changed);
    connect(Combo2, &QComboBox::activated, this, &frmCalendar::Combo_Changed);
    connect(Combo2->lineEdit(), &QLineEdit::returnPressed, this, &frmCalendar::Combo_Changed);
    connect(DaysLabel, &DayGrid::Confirmed, this, &frmCalendar::wbButton1_Click);
    connect(wbButton1, &wbButton::Click, this, &frmCalendar::wbButton1_Click);
}

void frmCalendar::Fill_Boxes() {
    for (int month = 1; month <= 12; ++month)
        Combo1->addItem(Global_MonthNames[static_cast<std::size_t>(month)]);
    Combo2->addItems(Offered_Years(Read_Moment().Year));
}

void frmCalendar::UpdateCalendar(int Month, int Year) {
    if (!Is_CalendarMonth(Month, Year))
        return;
    CurrentMonth = Month;
    CurrentYear = Year;
    Combo1->setCurrentIndex(Month - 1);
    Combo2->setCurrentIndex(Combo2->findText(QString::number(Year)));
    Combo2->setEditText(QString::number(Year));
    const int first = First_DayCell(Month, Year);
    DaysLabel->Set_Days(first, Days_OfMonth(Month, Year), [&](int day) {
        const int weekday = (first + day - 1) % CalendarColumns;
        return u"%1, %2 %3 %4"_s.arg(Weekday_Name(weekday))
            .arg(day)
            .arg(Combo1->currentText())
            .arg(Year);
    });
}

void frmCalendar::DaysLabel_Click(int Index) {
    DaysLabel->Select(Index);
}

void frmCalendar::Show_Date(int DayOfMonth, int Month, int Year) {
    if (Is_CalendarMonth(Month, Year)) {
        UpdateCalendar(Month, Year);
        DaysLabel_Click(DaysLabel->Cell_Of(DayOfMonth));
        return;
    }
    const Moment now = Read_Moment();
    UpdateCalendar(now.Month, std::clamp(now.Year, FirstCalendarYear, LastTypedYear));
}

void frmCalendar::Show_DateText(const QString& text) {
    const Day day = ParseUserDateToDay(text, {});
    const CalendarDate date = day == NoDay ? CalendarDate{0, 0, 0} : DayToDate(day);
    Show_Date(date.day, date.month, date.year);
}

QSize frmCalendar::Framed_Size() const {
    // The window manager's frame is known only once it is there: the style's title bar stands for
    // it.
    return size() + QSize(0, style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this));
}

void frmCalendar::Present_Beside(const QRect& anchor, const QWidget& field) {
    const QRect screen = Screen_At(field.mapToGlobal(field.rect().center()));
    Present_At(Place_Beside(anchor, Framed_Size(), screen), field);
}

void frmCalendar::Present_At(const QPoint& place, const QWidget& field) {
    const QRect taken(field.mapToGlobal(QPoint(0, 0)), field.size());
    move(Moved_Clear(Screen_At(taken.center()), {place, Framed_Size()}, taken).topLeft());
    Present();
}

void frmCalendar::showEvent(QShowEvent* event) {
    platform::Windows::Get().Leave_TaskBar(winId());
    Form::showEvent(event);
    DaysLabel->Focus_Day();
}

void frmCalendar::Combo_Changed() {
    const int year = Typed_Year(Combo2->currentText());
    if (Combo1->currentIndex() >= 0 && Is_TakenYear(year, CurrentYear))
        UpdateCalendar(Combo1->currentIndex() + 1, year);
}

void frmCalendar::wbButton1_Click() {
    if (DaysLabel->Selected() == -1) {
        platform::Dialogs::Get().Message(u"Please select a day"_s, platform::BoxStyle::Exclamation);
        return;
    }
    const QString text =
        FormatUserDate(DaysLabel->Day_Of(DaysLabel->Selected()), CurrentMonth, CurrentYear, false);
    const QPointer<frmCalendar> alive(this);
    if (!Program_Is_Ending())
        Q_EMIT DateSelected(text);
    if (alive)
        Unload();
}
