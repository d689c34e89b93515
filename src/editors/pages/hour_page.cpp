#include "editors/pages/hour_page.h"

#include "controls/chk_box.h"
#include "controls/form.h"
#include "controls/page_parts.h"
#include "controls/tooltip_picture.h"
#include "controls/wb_button.h"
#include "core/date_text.h"
#include "editors/pages/hour_list.h"
#include "editors/pages/page_controls.h"
#include "platform/dialogs.h"

#include <QLabel>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

// Pixels.
constexpr QSize PageSize(470, 440);
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

HourPage::HourPage(EditHost& editHost, QWidget* parent)
    : ReminderPage(parent), host(editHost), clock(*this, [this] { wrapperRow = -1; }) {
    resize(PageSize);
    setPalette(Form_Palette());
    setAutoFillBackground(true);
    wrapper = new QLineEdit(this);
    wrapper->hide();
    connect(wrapper, &QLineEdit::textChanged, this, &HourPage::Clock_Written);
    Build_List();
    Build_Simple();
    Build_Every();
}

void HourPage::Build_List() {
    list = new HourList(ListPlace, this);
    for (const HourRowView* row : list->Views())
        for (const HourCell cell : {HourCell::Start, HourCell::Until})
            clock.Watch(row->Field(cell));
    connect(list, &HourList::Tick_Changed, this, [this](int row, bool on) {
        list->Set_Enabled(row, on);
        if (ReminderClass* reminder = host.Selected_Reminder())
            Row_Tick_Changed(*reminder, row);
    });
    connect(list, &HourList::Delete_Click, this, &HourPage::Delete_Click);
    connect(list, &HourList::Cell_Clicked, this, [this](int row, HourCell cell) {
        if (cell != HourCell::Period)
            Show_Clock_ForCell(row, cell);
    });
    connect(list, &HourList::Cell_Changed, this, &HourPage::Cell_Typed);
    const QLabel* heading =
        Add_Text(this, u"Add new condition:"_s, Left, HeadingTop, TextLook::Heading);
    new TooltipPicture(10, heading->geometry().right() + 8, HeadingTop - 1, this);
    Add_Text(this, u"Run:"_s, Left, HeadingTop + 17);
    for (const QRect& frame : {StartUpFrame, AtFrame, EveryFrame})
        new Shape(frame, {}, this);
}

TimeField* HourPage::Add_TimeField(const QString& spoken, int left, int top) {
    auto* field = new TimeField(this);
    pages::Set_UpField(field, spoken, {left, top, TimeWidth, pages::FieldHeight}, TimeLength);
    clock.Watch(field);
    connect(field, &TimeField::Clicked, this, [this, spoken, field] {
        clock.Show_Clock_For_Textbox(spoken, field, ParseTime_Colon(field->text()),
                                     field->mapToGlobal(QPoint()).y());
    });
    connect(field, &QLineEdit::textEdited, this, [this, field] { clock.Follow(field); });
    return field;
}

void HourPage::Add_ToList_Button(Condition condition, int top, const QString& spoken) {
    wbButton* button = Add_Button(
        this, u"Add to list"_s,
        {Left + Width - TooltipMarkRight - 10 - ButtonWidth, top, ButtonWidth, pages::ButtonHeight},
        u"Add to list: "_s + spoken);
    connect(button, &wbButton::Click, this, [this, condition] { Add_Click(condition); });
    new TooltipPicture(11 + static_cast<int>(condition), Left + Width - TooltipMarkRight, top + 4,
                       this);
}

void HourPage::Build_Simple() {
    int row = StartUpFrame.top() + 6;
    Add_Text(this, u"At start up"_s, Left + Indent, row + LabelInRow, TextLook::Heading);
    Add_ToList_Button(Condition::AtStartUp, row - 1, u"At start up"_s);
    row = AtFrame.top() + 6;
    Add_Text(this, u"At"_s, Left + Indent, row + LabelInRow, TextLook::Heading);
    at = Add_TimeField(u"At"_s, Left + FieldsLeft, row);
    Add_ToList_Button(Condition::At, row - 1, u"At"_s);
}

void HourPage::Build_Every() {
    const int row = EveryFrame.top() + 7;
    Add_Text(this, u"Every"_s, Left + Indent, row + LabelInRow, TextLook::Heading);
    every = new QLineEdit(this);
    pages::Set_UpField(every, u"Every"_s, {Left + FieldsLeft, row, TimeWidth, pages::FieldHeight},
                       TimeLength);
    Add_Text(this, u"starting:"_s, Left + 118, row + LabelInRow);
    const int options = Left + OptionsLeft;
    starts[0] = new ChkBox(u"At"_s, options, row + BoxInRow, this);
    starts[0]->setAccessibleName(u"Starting at"_s);
    startingAt = Add_TimeField(u"Starting at"_s, options + 44, row);
    starts[1] = new ChkBox(u"When the program starts"_s, options, row + 26, this);
    starts[1]->setAccessibleName(u"Starting when the program starts"_s);
    for (std::size_t index = 0; index < starts.size(); ++index) {
        starts[index]->Set_Radio(true);
        connect(starts[index], &ChkBox::Checked, this,
                [this, index] { starts[1 - index]->Set_Ticked(false); });
    }
    Add_Text(this, u"Until"_s, Left + Indent, row + 42 + LabelInRow);
    until = Add_TimeField(u"Until"_s, Left + FieldsLeft, row + 42);
    Add_ToList_Button(Condition::Every, row + 41, u"Every"_s);
}

void HourPage::Load(const ReminderClass& reminder) {
    at->setText(u"20:30"_s);
    every->setText(u"1h30m"_s);
    startingAt->setText(u"10:00"_s);
    until->setText(u"14:00"_s);
    starts[0]->Set_Ticked(false);
    starts[1]->Set_Ticked(true);
    Show_Rows(reminder);
}

void HourPage::Show_Rows(const ReminderClass& reminder) {
    Hide_Popup(); // its cell may be another one now
    list->Set_Rows(Rows_Of(reminder));
}

QString HourPage::Store(ReminderClass& reminder) {
    if (const auto fault = Save_HourRows(list->Rows(), reminder)) {
        faultRow = fault->Row;
        return fault->Message;
    }
    list->Note_Stored(reminder);
    return {};
}

void HourPage::Mark_Fault() {
    list->Scroll_To(faultRow);
    list->Mark_Error(faultRow);
    if (const HourRowView* view = list->View_Of(faultRow))
        view->Focus_Chain().back()->setFocus();
}

void HourPage::Hide_Marks() {
    list->Mark_Error(-1);
}

void HourPage::Hide_Popup() {
    clock.Hide();
}

void HourPage::Add_Click(Condition condition) {
    ReminderClass* reminder = host.Selected_Reminder();
    if (reminder == nullptr)
        return;
    std::vector<HourRow> rows = list->Rows();
    const std::size_t before = rows.size();
    const ConditionFields fields{at->text(), every->text(), startingAt->text(), until->text(),
                                 starts[0]->Is_Ticked()};
    const QString message = Add_Condition(condition, fields, rows, *reminder);
    if (!message.isEmpty()) {
        platform::Dialogs::Get().Message(message, platform::BoxStyle::Exclamation);
    } else if (rows.size() > before) {
        Q_EMIT Condition_Added(reminder->GetHourSetup(reminder->HourSetupList_Size()));
        list->Set_Rows(std::move(rows));
        list->Scroll_To(static_cast<int>(before));
    }
}

// The save protects what has been typed into the other rows; it may show a box.
void HourPage::Delete_Click(int row) {
    const ReminderClass* before = host.Selected_Reminder();
    if (before == nullptr)
        return;
    const std::uint64_t identity = before->Identity.Value();
    const QPointer<HourPage> alive(this);
    if (!host.Save_View_To_Reminder(CategoryOnSave::Take) || !alive)
        return;
    ReminderClass* reminder = host.Selected_Reminder();
    if (reminder == nullptr || reminder->Identity.Value() != identity)
        return;
    reminder->DeleteHourSetup(row);
    Show_Rows(*reminder);
}

void HourPage::Show_Clock_ForCell(int row, HourCell cell) {
    const QString name = u"row %1, cell %2"_s.arg(row).arg(static_cast<int>(cell));
    const HourRowView* view = list->View_Of(row);
    if (view == nullptr || clock.Is_On(name))
        return;
    Hide_Popup();
    const TimeField* field = view->Field(cell);
    wrapperCell = cell;
    wrapper->setText(field->text());
    wrapperRow = row;
    clock.Show_Clock_For_Textbox(name, wrapper, ParseTime_Colon(wrapper->text()),
                                 field->mapToGlobal(QPoint()).y());
}

void HourPage::Clock_Written(const QString& text) {
    if (copying || wrapperRow < 0)
        return;
    copying = true;
    list->Set_Text(wrapperRow, wrapperCell, text);
    copying = false;
}

void HourPage::Cell_Typed(int row, HourCell cell) {
    if (copying || row != wrapperRow || cell != wrapperCell)
        return;
    copying = true;
    wrapper->setText(list->Rows()[static_cast<std::size_t>(row)].Text(cell));
    clock.Follow(wrapper);
    copying = false;
}
