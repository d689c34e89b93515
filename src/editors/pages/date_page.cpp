#include "editors/pages/date_page.h"

#include "controls/chk_box.h"
#include "controls/form.h"
#include "controls/metrics.h"
#include "controls/page_parts.h"
#include "controls/tooltip_picture.h"
#include "controls/wb_button.h"
#include "core/date_text.h"
#include "editors/calendar/calendar_rules.h"
#include "editors/calendar/frm_calendar.h"
#include "editors/pages/page_controls.h"
#include "platform/desktop.h"
#include "platform/dialogs.h"

#include <QButtonGroup>
#include <QLabel>
#include <QRadioButton>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace date_box;

namespace {

constexpr int RefusalTime = 8000; // ms

// Pixels.
constexpr QSize PageSize(470, 440);
constexpr int CalendarRight = 480; // of the window's left edge
constexpr int CalendarAbove = 100; // the button
constexpr int Left = 8;            // of the left column, and of the right one
constexpr int Right = 238;
constexpr int ColumnWidth = 224;
constexpr int Indent = 10; // of what stands in a frame
constexpr int RowPitch = 20;
constexpr int TooltipMarkRight = 22; // of a frame's right edge, to the picture's left
constexpr int BoxInRow = 3;          // a box beside a field of 21 pixels
constexpr int LabelInRow = 4;
constexpr int NumberLength = 8; // letters
constexpr int OrdinalLength = 16;
constexpr int DateLength = 40; // the pattern is the user's own
constexpr ColorValue FieldBack = 0xFFC0C0;
constexpr ColorValue HighlightBack = 0xD8F4FF;
constexpr ColorValue HighlightBorder = 0x4080C0;

// By DateType.
constexpr std::array<QRect, 5> FramePlaces{{{Left, 8, ColumnWidth, 44},     // every day
                                            {Left, 58, ColumnWidth, 212},   // weekdays
                                            {Left, 313, ColumnWidth, 51},   // every x days
                                            {Right, 8, ColumnWidth, 214},   // exact date
                                            {Left, 276, ColumnWidth, 31}}}; // day of the month
constexpr QRect StartFrame{Right, 228, ColumnWidth, 209};

const QRect& Frame_Of(DateType type) {
    return FramePlaces[static_cast<std::size_t>(type)];
}

void Add_TooltipPicture(int number, const QRect& frame, QWidget* parent) {
    new TooltipPicture(number, frame.right() - TooltipMarkRight, frame.top() + 6, parent);
}

} // namespace

// Made in the order in which Tab goes through them: down the left column, down the right one.
DatePage::DatePage(EditHost& editHost, QWidget* parent) : ReminderPage(parent), host(editHost) {
    resize(PageSize);
    setPalette(Form_Palette());
    setAutoFillBackground(true);
    Build_Frames();
    Build_EveryDay();
    Build_Weekdays();
    Build_Intervals();
    Build_ExactDate();
    Build_Start();
    Build_Marks();
    refusalTimer.setInterval(RefusalTime);
    connect(&refusalTimer, &QTimer::timeout, this, &DatePage::Refusal_Timeout);
    Show_State(Cleared_DatePage(Read_Moment()));
    Show_NextRun(std::nullopt, {});
}

void DatePage::Build_Frames() {
    highlight = new Shape(FramePlaces[0], {HighlightBack, HighlightBorder, 2}, this);
    highlight->hide();
    for (std::size_t index = 0; index < frames.size(); ++index)
        frames[index] = new Shape(FramePlaces[index], {}, this);
    new Shape(StartFrame, {}, this);
}

ChkBox* DatePage::Add_Box(int box, const QString& caption, const QString& group, int left,
                          int top) {
    auto* made = new ChkBox(caption, left, top, this);
    made->setAccessibleName(group + u' ' + caption);
    connect(made, &ChkBox::Checked, this, [this, box] { Box_Ticked(box); });
    connect(made, &ChkBox::Unchecked, this, [this, box] { Box_Unticked(box); });
    return boxes[static_cast<std::size_t>(box)] = made;
}

QLineEdit* DatePage::Add_ShortField(const QString& name, const QRect& place, int maxLength) {
    auto* field = new QLineEdit(this);
    pages::Set_UpField(field, name, place, maxLength);
    QPalette colors = field->palette();
    colors.setColor(QPalette::Base, palette::To_Color(FieldBack));
    field->setPalette(colors);
    connect(field, &QLineEdit::textEdited, this, &DatePage::Update_NextRun);
    return field;
}

void DatePage::Build_EveryDay() {
    const QRect& frame = Frame_Of(DateType::EveryDay);
    const QString group = u"Remind me:"_s;
    Add_Text(this, group, frame.left() + Indent, frame.top() + 6, TextLook::Heading);
    Add_Box(EveryDay, u"Every Day"_s, group, frame.left() + Indent, frame.top() + 23);
    Add_TooltipPicture(1, frame, this);
}

void DatePage::Build_Weekdays() {
    const QRect& frame = Frame_Of(DateType::Weekdays);
    const int left = frame.left() + Indent;
    const QString group = u"Each:"_s;
    Add_Text(this, group, left, frame.top() + 6, TextLook::Heading);
    for (int weekday = 0; weekday < CalendarColumns; ++weekday)
        Add_Box(Monday + weekday, Weekday_Name(weekday), group, left,
                frame.top() + 23 + weekday * RowPitch);
    const int row = frame.top() + 165;
    Add_Text(this, u"Every:"_s, left, row + LabelInRow, TextLook::Heading);
    weeks =
        Add_ShortField(u"Every X weeks"_s, {left + 44, row, 36, pages::FieldHeight}, NumberLength);
    Add_Box(Weeks, u"Weeks"_s, u"Every X"_s, left + 86, row + BoxInRow);
    Add_Text(this, u"(Optional)"_s, left + 150, row + LabelInRow);
    weeksRun = Add_Text(this, {}, left, row + 27);
    Add_TooltipPicture(2, frame, this);
}

void DatePage::Build_Intervals() {
    const QRect& month = Frame_Of(DateType::DayOfMonth);
    int row = month.top() + 5;
    const int left = month.left() + Indent;
    Add_Box(date_box::DayOfMonth, u"Every"_s, u"Day of month:"_s, left, row + BoxInRow);
    monthday =
        Add_ShortField(u"Day of month"_s, {left + 58, row, 44, pages::FieldHeight}, OrdinalLength);
    Add_Text(this, u"of month"_s, left + 108, row + LabelInRow);
    Add_TooltipPicture(3, month, this);

    const QRect& interval = Frame_Of(DateType::EveryXDays);
    row = interval.top() + 5;
    Add_Box(EveryXDays, u"Every"_s, u"X days:"_s, left, row + BoxInRow);
    days =
        Add_ShortField(u"Every X days"_s, {left + 58, row, 44, pages::FieldHeight}, NumberLength);
    Add_Text(this, u"day(s)"_s, left + 108, row + LabelInRow);
    daysRun = Add_Text(this, {}, left, row + 27);
    Add_TooltipPicture(4, interval, this);
    for (QLabel* label : {weeksRun, daysRun}) {
        label->setFixedWidth(ColumnWidth - 2 * Indent);
        label->setToolTip(u"To change the next run date, set a new START date"_s);
    }

    startRefused = Add_Text(this, u"You can't use a start date with an Exact date reminder."_s,
                            Left + Indent, 372);
    startRefused->setWordWrap(true);
    startRefused->setFixedSize(ColumnWidth - 2 * Indent, 3 * SmallLineHeight);
    startRefused->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    QPalette colors = startRefused->palette();
    colors.setColor(QPalette::WindowText, palette::To_Color(pages::Error_Red));
    startRefused->setPalette(colors);
    startRefused->hide();
}

void DatePage::Add_DateRow(DateField field, int box, const QString& group, int top) {
    const int left = Right + Indent;
    const bool exact = field == ExactField;
    Add_Box(box, u"On:"_s, group, left, top + BoxInRow);
    dates[field] = Add_ShortField(exact ? u"Exact date"_s : u"Start date"_s,
                                  {left + 44, top, 96, pages::FieldHeight}, DateLength);
    wbButton* set = Add_Button(
        this, u"Set"_s, {left + 146, top - 1, ColumnWidth - 2 * Indent - 146, pages::ButtonHeight},
        exact ? u"Set exact date"_s : u"Set start date"_s);
    connect(set, &wbButton::Click, this, [this, field, set] { Open_Calendar(field, set->y()); });
}

void DatePage::Add_WeekOptions(WeekOption thisWeek, int top) {
    Add_Text(this, u"Next:"_s, Right + Indent, top, TextLook::Heading);
    auto* group = new QButtonGroup(this);
    optionGroups[thisWeek == ExactThis ? ExactField : StartField] = group;
    for (int next = 0; next < 2; ++next) {
        auto* option = new QRadioButton(next == 0 ? u"This:"_s : u"Next:"_s, this);
        option->setFont(Small_Font());
        option->setGeometry(Right + Indent + 60 + next * 66, top - 2, 62, 17);
        option->setAccessibleName(next == 0 ? u"This week"_s : u"Next week"_s);
        const int number = thisWeek + next;
        group->addButton(option, number);
        weekOptions[static_cast<std::size_t>(number)] = option;
    }
    connect(group, &QButtonGroup::idClicked, this,
            [this](int number) { Week_Chosen(static_cast<WeekOption>(number)); });
}

// Two columns of four and three.
void DatePage::Add_Weekdays(int monday, const QString& group, int left, int top) {
    for (int weekday = 0; weekday < CalendarColumns; ++weekday)
        Add_Box(monday + weekday, Weekday_Name(weekday), group, left + weekday / 4 * 104,
                top + weekday % 4 * RowPitch);
}

void DatePage::Build_ExactDate() {
    const QRect& frame = Frame_Of(DateType::ExactDate);
    const QString group = u"Exact date:"_s;
    const int left = frame.left() + Indent;
    Add_Text(this, group, left, frame.top() + 6, TextLook::Heading);
    Add_Box(date_box::Today, u"Today"_s, group, left, frame.top() + 23);
    Add_Box(Tomorrow, u"Tomorrow"_s, group, left, frame.top() + 43);
    Add_DateRow(ExactField, OnDate, group, frame.top() + 61);
    Add_WeekOptions(ExactThis, frame.top() + 90);
    Add_Weekdays(ExactMonday, group, left, frame.top() + 108);
    Add_Box(EveryYear, u"Every year"_s, group, left, frame.top() + 192);
    Add_TooltipPicture(5, frame, this);
}

void DatePage::Build_Start() {
    const QString group = u"Start:"_s;
    const int left = StartFrame.left() + Indent;
    const int top = StartFrame.top();
    Add_Text(this, group, left, top + 6, TextLook::Heading);
    Add_Box(AlwaysActive, u"Always active"_s, group, left, top + 23);
    Add_Box(StartTomorrow, u"Tomorrow"_s, group, left, top + 43);
    Add_DateRow(StartField, StartOn, group, top + 61);
    Add_WeekOptions(StartThis, top + 90);
    Add_Weekdays(StartMonday, group, left, top + 108);
    Add_Text(this, u"Runs from the day after on."_s, left, top + 191);
    Add_TooltipPicture(6, StartFrame, this);
}

void DatePage::Build_Marks() {
    const auto Weekday_Group = [this](int monday) {
        QRect group;
        for (int box = monday; box < monday + CalendarColumns; ++box)
            group |= Box(box)->geometry();
        return group;
    };
    const std::array<QRect, 7> places{weeks->geometry(),          monthday->geometry(),
                                      days->geometry(),           dates[ExactField]->geometry(),
                                      Weekday_Group(ExactMonday), dates[StartField]->geometry(),
                                      Weekday_Group(StartMonday)};
    for (std::size_t mark = 0; mark < places.size(); ++mark)
        marks[mark] = Make_ErrorShape(places[mark], this);
}

DatePageState DatePage::Read_State() const {
    DatePageState state;
    state.TickedOn = tickedOn;
    for (std::size_t box = 0; box < boxes.size(); ++box) {
        state.Ticks[box] = boxes[box]->Is_Ticked();
        state.Blocked[box] = boxes[box]->Is_Blocked();
    }
    state.Weeks = weeks->text();
    state.DayOfMonth = monthday->text();
    state.Days = days->text();
    for (std::size_t field = 0; field < dates.size(); ++field)
        state.Dates[field] = dates[field]->text();
    for (std::size_t option = 0; option < weekOptions.size(); ++option)
        state.WeekOptions[option] = weekOptions[option]->isChecked();
    return state;
}

void DatePage::Show_State(const DatePageState& state) {
    tickedOn = state.TickedOn;
    for (std::size_t box = 0; box < boxes.size(); ++box) {
        boxes[box]->Set_Blocked(state.Blocked[box]);
        boxes[box]->Set_Ticked(state.Ticks[box]);
    }
    pages::Show_Text(weeks, state.Weeks);
    pages::Show_Text(monthday, state.DayOfMonth);
    pages::Show_Text(days, state.Days);
    for (std::size_t field = 0; field < dates.size(); ++field)
        pages::Show_Text(dates[field], state.Dates[field]);
    for (QButtonGroup* group : optionGroups)
        group->setExclusive(false); // so that none of the two can be set
    for (std::size_t option = 0; option < weekOptions.size(); ++option)
        weekOptions[option]->setChecked(state.WeekOptions[option]);
    for (QButtonGroup* group : optionGroups)
        group->setExclusive(true);
}

// The page is complete before the box: the record may be gone after it.
void DatePage::Load(const ReminderClass& reminder) {
    startRefused->hide();
    const DatePageState state = Load_DateSetup(reminder, Read_Moment());
    Show_State(state);
    stored = Stored_Date(state, reminder);
    // What was typed for another reminder cannot be undone into this one.
    for (QLineEdit* field : Fields())
        field->setText(field->text());
    if (const QString warning = DateSetup_Warning(reminder); !warning.isEmpty())
        platform::Dialogs::Get().Message(warning, platform::BoxStyle::Exclamation);
    Update_NextRun();
}

QString DatePage::Store(ReminderClass& reminder) {
    const DatePageState state = Read_State();
    if (const auto found = Save_DateSetup(state, stored, reminder, Read_Moment())) {
        fault = found->Mark;
        return found->Message;
    }
    stored = Stored_Date(state, reminder);
    return {};
}

bool DatePage::Box_Ticked(int box) {
    DatePageState state = Read_State();
    const TickOutcome outcome = Date_Option_Checked(state, box, Read_Moment());
    Show_State(state);
    if (outcome == TickOutcome::StartDateRefused) {
        platform::Desktop::Get().Beep();
        startRefused->show();
        refusalTimer.start();
        return false;
    }
    Update_NextRun();
    return true;
}

void DatePage::Box_Unticked(int box) {
    DatePageState state = Read_State();
    Date_Option_Unchecked(state, box, Read_Moment());
    Show_State(state);
    Update_NextRun();
}

void DatePage::Week_Chosen(WeekOption option) {
    DatePageState state = Read_State();
    Week_Option_Clicked(state, option, Read_Moment());
    Show_State(state);
    Update_NextRun();
}

void DatePage::Refusal_Timeout() {
    if (platform::Dialogs::Get().Holds_Timers())
        return;
    startRefused->hide();
    refusalTimer.stop();
}

void DatePage::Open_Calendar(DateField field, int top) {
    const int box = field == ExactField ? OnDate : StartOn;
    Box(box)->Set_Ticked(true);
    if (!Box_Ticked(box))
        return;
    if (!calendar || calendar->Is_Unloading()) {
        calendar = new frmCalendar(window());
        connect(calendar, &frmCalendar::DateSelected, this, &DatePage::Take_Date);
    }
    calendarField = field;
    const CalendarDate start = Calendar_Start(Read_State(), field, Read_Moment());
    calendar->Show_Date(start.day, start.month, start.year);
    calendar->Present_At(window()->pos() + QPoint(CalendarRight, top - CalendarAbove),
                         *dates[field]);
}

void DatePage::Take_Date(const QString& date) {
    dates[calendarField]->setText(date);
    // Takes the year off again.
    if (calendarField == ExactField && Box(EveryYear)->Is_Ticked())
        Box_Ticked(EveryYear);
    else
        Update_NextRun();
}

void DatePage::Mark_Fault() {
    Shape* shape = marks[static_cast<std::size_t>(fault)];
    shape->show();
    shape->raise();
    if (QWidget* control = Control_Of(fault))
        control->setFocus();
}

// What is to be mended first.
QWidget* DatePage::Control_Of(ErrorMark mark) const {
    const auto First_Weekday = [this](int monday) -> QWidget* {
        const auto first = boxes.begin() + monday;
        const auto last = first + CalendarColumns;
        const auto ticked =
            std::find_if(first, last, [](const ChkBox* box) { return box->Is_Ticked(); });
        return ticked == last ? *first : *ticked;
    };
    switch (mark) {
    case ErrorMark::Weeks:
        return weeks;
    case ErrorMark::Days:
        return days;
    case ErrorMark::ExactField:
        return dates[ExactField];
    case ErrorMark::StartField:
        return dates[StartField];
    case ErrorMark::ExactWeekdays:
        return First_Weekday(ExactMonday);
    case ErrorMark::StartWeekdays:
        return First_Weekday(StartMonday);
    default:
        return nullptr;
    }
}

void DatePage::Hide_Marks() {
    for (Shape* shape : marks)
        shape->hide();
}

void DatePage::Hide_Popup() {
    if (calendar)
        calendar->hide();
}

// A copy takes the page's date, so that the display follows every click without touching the
// record.
void DatePage::Update_NextRun() {
    const ReminderClass* reminder = host.Selected_Reminder();
    if (reminder == nullptr)
        return;
    const Moment now = Read_Moment();
    ReminderClass temporary;
    temporary.rs_ActivationDay = reminder->rs_ActivationDay;
    temporary.rs_FirstRunDate = reminder->rs_FirstRunDate;
    temporary.rs_wDaysArray_LMonth = reminder->rs_wDaysArray_LMonth;
    temporary.rs_wDaysArray_LWeek = reminder->rs_wDaysArray_LWeek;
    if (Save_DateSetup(Read_State(), stored, temporary, now))
        return;
    const Day nextRun = temporary.GetNext_RunDate(now);
    Show_NextRun(temporary.rs_DateType_Used,
                 nextRun == NoDay ? QString() : DayToDateString(nextRun));
    Q_EMIT NextRun_Changed(nextRun);
}

void DatePage::Show_NextRun(std::optional<DateType> kind, const QString& date) {
    const QString none = u"Next run on: --"_s;
    const QString text = date.isEmpty() ? none : u"Next run on: "_s + date;
    weeksRun->setText(kind == DateType::Weekdays ? text : none);
    daysRun->setText(kind == DateType::EveryXDays ? text : none);
    const auto index = static_cast<std::size_t>(kind.value_or(DateType::EveryDay));
    highlight->setVisible(kind && index < frames.size());
    if (index >= frames.size())
        return;
    highlight->setGeometry(frames[index]->geometry());
    highlight->lower();
}
