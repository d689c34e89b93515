// Where the controls of the date page stand, and the state they show.
#include "editors/pages/date_page_view.h"

#include "controls/metrics.h"
#include "controls/tooltip_picture.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace date_box;

namespace {

constexpr int Left = 8; // of the left column, and of the right one
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
constexpr ColorValue Highlight_Back = 0xD8F4FF;
constexpr ColorValue Highlight_Border = 0x4080C0;

// By DateType.
constexpr std::array<QRect, 5> FramePlaces{{{Left, 8, ColumnWidth, 44},     // every day
                                            {Left, 58, ColumnWidth, 212},   // weekdays
                                            {Left, 313, ColumnWidth, 51},   // every x days
                                            {Right, 8, ColumnWidth, 214},   // exact date
                                            {Left, 276, ColumnWidth, 31}}}; // day of the month
constexpr QRect StartFrame{Right, 228, ColumnWidth, 209};

constexpr std::array<const char16_t*, 7> WeekdayNames{
    u"Monday", u"Tuesday", u"Wednesday", u"Thursday", u"Friday", u"Saturday", u"Sunday"};

const QRect& Frame_Of(DateType type) {
    return FramePlaces[static_cast<std::size_t>(type)];
}

void Add_TooltipPicture(int number, const QRect& frame, QWidget* parent) {
    new TooltipPicture(number, frame.right() - TooltipMarkRight, frame.top() + 6, parent);
}

} // namespace

// Made in the order in which Tab goes through them: down the left column, down the right one.
DatePage::View::View(DatePage& owner, EditHost& around) : page(owner), host(around) {
    Build_Frames();
    Build_EveryDay();
    Build_Weekdays();
    Build_Intervals();
    Build_ExactDate();
    Build_Start();
    Build_Marks();
}

void DatePage::View::Build_Frames() {
    dateTypeHLBox = new Shape(FramePlaces[0], {Highlight_Back, Highlight_Border, 2}, &page);
    dateTypeHLBox->hide();
    for (std::size_t index = 0; index < Frames.size(); ++index)
        Frames[index] = new Shape(FramePlaces[index], {}, &page);
    new Shape(StartFrame, {}, &page);
}

ChkBox* DatePage::View::Add_Box(int index, const QString& caption, const QString& group, int left,
                                int top) {
    auto* box = new ChkBox(caption, left, top, &page);
    box->setAccessibleName(group + u' ' + caption);
    return p2Chk[static_cast<std::size_t>(index)] = box;
}

QLineEdit* DatePage::View::Add_Field(const QString& name, const QRect& place, int maxLength) {
    auto* field = new QLineEdit(&page);
    pages::Set_UpField(field, name, place, maxLength);
    QPalette colors = field->palette();
    colors.setColor(QPalette::Base, palette::To_Color(pages::Field_Back));
    field->setPalette(colors);
    return field;
}

void DatePage::View::Build_EveryDay() {
    const QRect& frame = Frame_Of(DateType::EveryDay);
    pages::Add_Heading(u"Remind me:"_s, frame.left() + Indent, frame.top() + 6, &page);
    Add_Box(EveryDay, u"Every Day"_s, u"Remind me:"_s, frame.left() + Indent, frame.top() + 23);
    Add_TooltipPicture(1, frame, &page);
}

void DatePage::View::Build_Weekdays() {
    const QRect& frame = Frame_Of(DateType::Weekdays);
    const int left = frame.left() + Indent;
    pages::Add_Heading(u"Each:"_s, left, frame.top() + 6, &page);
    for (int weekday = 0; weekday < 7; ++weekday)
        Add_Box(Monday + weekday,
                QString::fromUtf16(WeekdayNames[static_cast<std::size_t>(weekday)]), u"Each:"_s,
                left, frame.top() + 23 + weekday * RowPitch);
    const int row = frame.top() + 165;
    pages::Add_Heading(u"Every:"_s, left, row + LabelInRow, &page);
    Text1 = Add_Field(u"Every X weeks"_s, {left + 44, row, 36, pages::FieldHeight}, NumberLength);
    Add_Box(Weeks, u"Weeks"_s, u"Every X"_s, left + 86, row + BoxInRow);
    pages::Add_Caption(u"(Optional)"_s, left + 150, row + LabelInRow, &page);
    Label27 = pages::Add_Caption({}, left, row + 27, &page);
    Add_TooltipPicture(2, frame, &page);
}

void DatePage::View::Build_Intervals() {
    const QRect& month = Frame_Of(DateType::DayOfMonth);
    int row = month.top() + 5;
    const int left = month.left() + Indent;
    Add_Box(date_box::DayOfMonth, u"Every"_s, u"Day of month:"_s, left, row + BoxInRow);
    Text2 = Add_Field(u"Day of month"_s, {left + 58, row, 44, pages::FieldHeight}, OrdinalLength);
    pages::Add_Caption(u"of month"_s, left + 108, row + LabelInRow, &page);
    Add_TooltipPicture(3, month, &page);

    const QRect& days = Frame_Of(DateType::EveryXDays);
    row = days.top() + 5;
    Add_Box(EveryXDays, u"Every"_s, u"X days:"_s, left, row + BoxInRow);
    Text3 = Add_Field(u"Every X days"_s, {left + 58, row, 44, pages::FieldHeight}, NumberLength);
    pages::Add_Caption(u"day(s)"_s, left + 108, row + LabelInRow, &page);
    Label36 = pages::Add_Caption({}, left, row + 27, &page);
    Add_TooltipPicture(4, days, &page);
    for (QLabel* label : {Label27, Label36}) {
        label->setFixedWidth(ColumnWidth - 2 * Indent);
        label->setToolTip(u"To change the next run date, set a new START date"_s);
    }

    ErrLabel = pages::Add_Caption(u"You can't use a start date with an Exact date reminder."_s,
                                  Left + Indent, 372, &page);
    ErrLabel->setWordWrap(true);
    ErrLabel->setFixedSize(ColumnWidth - 2 * Indent, 3 * SmallLineHeight);
    ErrLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    QPalette colors = ErrLabel->palette();
    colors.setColor(QPalette::WindowText, palette::To_Color(pages::Error_Red));
    ErrLabel->setPalette(colors);
    ErrLabel->hide();
}

void DatePage::View::Add_DateRow(DateField field, int box, const QString& group, int top) {
    const int left = Right + Indent;
    Add_Box(box, u"On:"_s, group, left, top + BoxInRow);
    Text4[field] = Add_Field(field == ExactField ? u"Exact date"_s : u"Start date"_s,
                             {left + 44, top, 96, pages::FieldHeight}, DateLength);
    wbButton2[field] = pages::Add_Button(
        u"Set"_s, {left + 146, top - 1, ColumnWidth - 2 * Indent - 146, pages::ButtonHeight},
        &page);
    wbButton2[field]->setAccessibleName(field == ExactField ? u"Set exact date"_s
                                                            : u"Set start date"_s);
}

void DatePage::View::Add_WeekOptions(WeekOption thisWeek, int top) {
    pages::Add_Heading(u"Next:"_s, Right + Indent, top, &page);
    auto* group = new QButtonGroup(&page);
    OptionGroups[thisWeek == ExactThis ? ExactField : StartField] = group;
    for (int next = 0; next < 2; ++next) {
        auto* option = new QRadioButton(next == 0 ? u"This:"_s : u"Next:"_s, &page);
        option->setFont(Small_Font());
        option->setGeometry(Right + Indent + 60 + next * 66, top - 2, 62, 17);
        option->setAccessibleName(next == 0 ? u"This week"_s : u"Next week"_s);
        const int number = thisWeek + next;
        group->addButton(option, number);
        Option1[static_cast<std::size_t>(number)] = option;
    }
}

// Two columns of four and three.
void DatePage::View::Add_Weekdays(int monday, const QString& group, int left, int top) {
    for (int weekday = 0; weekday < 7; ++weekday)
        Add_Box(monday + weekday,
                QString::fromUtf16(WeekdayNames[static_cast<std::size_t>(weekday)]), group,
                left + weekday / 4 * 104, top + weekday % 4 * RowPitch);
}

void DatePage::View::Build_ExactDate() {
    const QRect& frame = Frame_Of(DateType::ExactDate);
    const QString group = u"Exact date:"_s;
    const int left = frame.left() + Indent;
    pages::Add_Heading(group, left, frame.top() + 6, &page);
    Add_Box(date_box::Today, u"Today"_s, group, left, frame.top() + 23);
    Add_Box(Tomorrow, u"Tomorrow"_s, group, left, frame.top() + 43);
    Add_DateRow(ExactField, OnDate, group, frame.top() + 61);
    Add_WeekOptions(ExactThis, frame.top() + 90);
    Add_Weekdays(ExactMonday, group, left, frame.top() + 108);
    Add_Box(EveryYear, u"Every year"_s, group, left, frame.top() + 192);
    Add_TooltipPicture(5, frame, &page);
}

void DatePage::View::Build_Start() {
    const QString group = u"Start:"_s;
    const int left = StartFrame.left() + Indent;
    pages::Add_Heading(group, left, StartFrame.top() + 6, &page);
    Add_Box(AlwaysActive, u"Always active"_s, group, left, StartFrame.top() + 23);
    Add_Box(StartTomorrow, u"Tomorrow"_s, group, left, StartFrame.top() + 43);
    Add_DateRow(StartField, StartOn, group, StartFrame.top() + 61);
    Add_WeekOptions(StartThis, StartFrame.top() + 90);
    Add_Weekdays(StartMonday, group, left, StartFrame.top() + 108);
    pages::Add_Caption(u"Runs from the day after on."_s, left, StartFrame.top() + 191, &page);
    Add_TooltipPicture(6, StartFrame, &page);
}

void DatePage::View::Build_Marks() {
    const auto Weekday_Group = [this](int monday) {
        QRect group;
        for (int box = monday; box < monday + 7; ++box)
            group |= p2Chk[static_cast<std::size_t>(box)]->geometry();
        return group;
    };
    const std::array<QRect, 7> places{Text1->geometry(),          Text2->geometry(),
                                      Text3->geometry(),          Text4[ExactField]->geometry(),
                                      Weekday_Group(ExactMonday), Text4[StartField]->geometry(),
                                      Weekday_Group(StartMonday)};
    for (std::size_t mark = 0; mark < places.size(); ++mark)
        ErrorShapes[mark] = Make_ErrorShape(places[mark], &page);
}

QWidget* DatePage::View::Control_Of(ErrorMark mark) const {
    const auto First_Weekday = [this](int monday) -> QWidget* {
        const auto first = p2Chk.begin() + monday;
        const auto ticked =
            std::find_if(first, first + 7, [](const ChkBox* box) { return box->Is_Ticked(); });
        return ticked == first + 7 ? *first : *ticked;
    };
    switch (mark) {
    case ErrorMark::Weeks:
        return Text1;
    case ErrorMark::Days:
        return Text3;
    case ErrorMark::ExactField:
        return Text4[ExactField];
    case ErrorMark::StartField:
        return Text4[StartField];
    case ErrorMark::ExactWeekdays:
        return First_Weekday(ExactMonday);
    case ErrorMark::StartWeekdays:
        return First_Weekday(StartMonday);
    default:
        return nullptr;
    }
}

void DatePage::View::Forget_Undo() {
    for (QLineEdit* field : {Text1, Text2, Text3, Text4[ExactField], Text4[StartField]})
        field->setText(field->text());
}

DatePageState DatePage::View::Read_State() const {
    DatePageState state;
    state.TickedOn = TickedOn;
    for (std::size_t box = 0; box < p2Chk.size(); ++box) {
        state.Ticks[box] = p2Chk[box]->Is_Ticked();
        state.Blocked[box] = p2Chk[box]->Is_Blocked();
    }
    state.Text1 = Text1->text();
    state.Text2 = Text2->text();
    state.Text3 = Text3->text();
    for (std::size_t field = 0; field < Text4.size(); ++field)
        state.Text4[field] = Text4[field]->text();
    for (std::size_t option = 0; option < Option1.size(); ++option)
        state.Option1[option] = Option1[option]->isChecked();
    return state;
}

void DatePage::View::Show_State(const DatePageState& state) {
    TickedOn = state.TickedOn;
    for (std::size_t box = 0; box < p2Chk.size(); ++box) {
        p2Chk[box]->Set_Blocked(state.Blocked[box]);
        p2Chk[box]->Set_Ticked(state.Ticks[box]);
    }
    pages::Show_Text(Text1, state.Text1);
    pages::Show_Text(Text2, state.Text2);
    pages::Show_Text(Text3, state.Text3);
    for (std::size_t field = 0; field < Text4.size(); ++field)
        pages::Show_Text(Text4[field], state.Text4[field]);
    for (QButtonGroup* group : OptionGroups)
        group->setExclusive(false); // so that none of the two can be set
    for (std::size_t option = 0; option < Option1.size(); ++option)
        Option1[option]->setChecked(state.Option1[option]);
    for (QButtonGroup* group : OptionGroups)
        group->setExclusive(true);
}
