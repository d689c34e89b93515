// Where the controls of the hour page stand.
#include "editors/pages/hour_page_view.h"

#include "controls/tooltip_picture.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

constexpr int Left = 8;
constexpr int Width = 454;
constexpr int Indent = 10;
constexpr QRect ListPlace{Left, 8, Width, 230};
constexpr int HeadingTop = 247;
constexpr QRect StartUpFrame{Left, 281, Width, 33};
constexpr QRect AtFrame{Left, 319, Width, 33};
constexpr QRect EveryFrame{Left, 357, Width, 75};
constexpr int FieldsLeft = 56; // of the frame
constexpr int OptionsLeft = 186;
constexpr int ButtonWidth = 84;
constexpr int TooltipMarkRight = 22;
constexpr int BoxInRow = 3;
constexpr int LabelInRow = 4;
constexpr int TimeWidth = 54;
constexpr int TimeLength = 16; // letters

} // namespace

HourPage::View::View(HourPage& owner, EditHost& around)
    : page(owner), host(around), Clock(owner, [this] { wrapperRow = -1; }) {
    p4TextWrapper = new QLineEdit(&page);
    p4TextWrapper->hide();
    Build_List();
    Build_Simple();
    Build_Every();
}

void HourPage::View::Build_List() {
    List = new HourList(ListPlace, &page);
    for (const HourRowView* row : List->Views())
        for (const HourCell cell : {HourCell::Start, HourCell::Until})
            Clock.Watch(row->p4Text(cell));
    const QLabel* heading = pages::Add_Heading(u"Add new condition:"_s, Left, HeadingTop, &page);
    new TooltipPicture(10, heading->geometry().right() + 8, HeadingTop - 1, &page);
    pages::Add_Caption(u"Run:"_s, Left, HeadingTop + 17, &page);
    for (const QRect& frame : {StartUpFrame, AtFrame, EveryFrame})
        new Shape(frame, {}, &page);
}

TimeField* HourPage::View::Add_TimeField(const QString& name, int left, int top) {
    auto* field = new TimeField(&page);
    pages::Set_UpField(field, name, {left, top, TimeWidth, pages::FieldHeight}, TimeLength);
    Clock.Watch(field);
    return field;
}

void HourPage::View::Add_Button(Condition condition, int top, const QString& spoken) {
    wbButton* button = pages::Add_Button(
        u"Add to list"_s,
        {Left + Width - TooltipMarkRight - 10 - ButtonWidth, top, ButtonWidth, pages::ButtonHeight},
        &page);
    button->setAccessibleName(u"Add to list: "_s + spoken);
    wbButton1[static_cast<std::size_t>(condition)] = button;
    new TooltipPicture(11 + static_cast<int>(condition), Left + Width - TooltipMarkRight, top + 4,
                       &page);
}

void HourPage::View::Build_Simple() {
    int row = StartUpFrame.top() + 6;
    pages::Add_Heading(u"At start up"_s, Left + Indent, row + LabelInRow, &page);
    Add_Button(Condition::AtStartUp, row - 1, u"At start up"_s);
    row = AtFrame.top() + 6;
    pages::Add_Heading(u"At"_s, Left + Indent, row + LabelInRow, &page);
    Text5 = Add_TimeField(u"At"_s, Left + FieldsLeft, row);
    Add_Button(Condition::At, row - 1, u"At"_s);
}

void HourPage::View::Build_Every() {
    const int row = EveryFrame.top() + 7;
    pages::Add_Heading(u"Every"_s, Left + Indent, row + LabelInRow, &page);
    Text6 = new QLineEdit(&page);
    pages::Set_UpField(Text6, u"Every"_s, {Left + FieldsLeft, row, TimeWidth, pages::FieldHeight},
                       TimeLength);
    pages::Add_Caption(u"starting:"_s, Left + 118, row + LabelInRow, &page);
    const int options = Left + OptionsLeft;
    p3Chk[0] = new ChkBox(u"At"_s, options, row + BoxInRow, &page);
    Text7 = Add_TimeField(u"Starting at"_s, options + 44, row);
    p3Chk[1] = new ChkBox(u"When the program starts"_s, options, row + 26, &page);
    for (ChkBox* box : p3Chk)
        box->Set_Radio(true);
    p3Chk[0]->setAccessibleName(u"Starting at"_s);
    p3Chk[1]->setAccessibleName(u"Starting when the program starts"_s);
    pages::Add_Caption(u"Until"_s, Left + Indent, row + 42 + LabelInRow, &page);
    Text13 = Add_TimeField(u"Until"_s, Left + FieldsLeft, row + 42);
    Add_Button(Condition::Every, row + 41, u"Every"_s);
}

ConditionFields HourPage::View::Read_Fields() const {
    return {Text5->text(), Text6->text(), Text7->text(), Text13->text(), p3Chk[0]->Is_Ticked()};
}
