#include "editors/calendar/frm_calendar.h"

#include "controls/combo_box.h"
#include "controls/combo_name.h"
#include "controls/help_topic.h"
#include "controls/page_parts.h"
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
    months = new ComboBox(this);
    months->setGeometry(Margin, Margin, MonthWidth, FieldHeight);
    Name_Combo(months, u"Month"_s);
    months->setMaxVisibleItems(12);
    years = new ComboBox(this);
    years->setGeometry(Margin + MonthWidth + 4, Margin, YearWidth, FieldHeight);
    years->setEditable(true);
    Name_Combo(years, u"Year"_s);
    years->setInsertPolicy(QComboBox::NoInsert);
    years->setCompleter(nullptr);
    days = new DayGrid(CalendarRows, this);
    days->move(Margin, GridTop);
    for (int i = 0; i < CalendarColumns; ++i) {
        QLabel* label =
            Add_Label(Weekday_Name(i).left(2), Margin + i * DayGrid::ColumnPitch, LabelsTop);
        label->setFixedWidth(DayGrid::ColumnPitch);
        label->setAlignment(Qt::AlignHCenter);
    }
    const int buttonTop = GridTop + days->height() + 6;
    const wbButton* ok =
        Add_Button(this, u"Ok"_s, {Margin, buttonTop, days->width(), ButtonHeight});
    const QLabel* hint = Add_Label(help_page::Hint, Margin, buttonTop + ButtonHeight + 4);
    setFixedSize(days->width() + 2 * Margin, hint->geometry().bottom() + 4);

    connect(months, &QComboBox::activated, this, &frmCalendar::Combo_Changed);
    connect(years, &QComboBox::activated, this, &frmCalendar::Combo_Changed);
    connect(years->lineEdit(), &QLineEdit::returnPressed, this, &frmCalendar::Combo_Changed);
    connect(days, &DayGrid::Confirmed, this, &frmCalendar::Ok_Click);
    connect(ok, &wbButton::Click, this, &frmCalendar::Ok_Click);
}

void frmCalendar::Fill_Boxes() {
    for (int month = 1; month <= 12; ++month)
        months->addItem(Global_MonthNames[static_cast<std::size_t>(month)]);
    years->addItems(Offered_Years(Read_Moment().Year));
}

void frmCalendar::UpdateCalendar(int Month, int Year) {
    if (!Is_CalendarMonth(Month, Year))
        return;
    shownMonth = Month;
    shownYear = Year;
    months->setCurrentIndex(Month - 1);
    years->setCurrentIndex(years->findText(QString::number(Year)));
    years->setEditText(QString::number(Year));
    const int first = First_DayCell(Month, Year);
    days->Set_Days(first, Days_OfMonth(Month, Year), [&](int day) {
        const int weekday = (first + day - 1) % CalendarColumns;
        return u"%1, %2 %3 %4"_s.arg(Weekday_Name(weekday))
            .arg(day)
            .arg(months->currentText())
            .arg(Year);
    });
}

void frmCalendar::Show_Date(int DayOfMonth, int Month, int Year) {
    if (Is_CalendarMonth(Month, Year)) {
        UpdateCalendar(Month, Year);
        days->Select(days->Cell_Of(DayOfMonth));
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
    days->Focus_Day();
}

void frmCalendar::Combo_Changed() {
    const int year = Typed_Year(years->currentText());
    if (months->currentIndex() >= 0 && Is_TakenYear(year, shownYear))
        UpdateCalendar(months->currentIndex() + 1, year);
}

void frmCalendar::Ok_Click() {
    if (days->Selected() == -1) {
        platform::Dialogs::Get().Message(u"Please select a day"_s, platform::BoxStyle::Exclamation);
        return;
    }
    const QString text =
        FormatUserDate(days->Day_Of(days->Selected()), shownMonth, shownYear, false);
    const QPointer<frmCalendar> alive(this);
    if (!Program_Is_Ending())
        Q_EMIT DateSelected(text);
    if (alive)
        Unload();
}
