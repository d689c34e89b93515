// What stands where in the dialog; pixels.
#include "controls/chk_box.h"
#include "controls/combo_box.h"
#include "controls/help_topic.h"
#include "controls/icons.h"
#include "controls/metrics.h"
#include "controls/text_fields.h"
#include "controls/tooltip_picture.h"
#include "controls/wb_button.h"
#include "core/date_text.h"
#include "editors/pages/page_controls.h"
#include "editors/wizard/frm_quick_add_reminder.h"
#include "editors/wizard/page_parts.h"
#include "platform/shown_text.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace page_parts;

namespace {

constexpr int FormWidth = 360;
constexpr int FormHeight = 414;
constexpr int Margin = 8;
constexpr int FieldLeft = 76;
constexpr int FieldWidth = 252;
constexpr int HelpLeft = FormWidth - Margin - 16;
constexpr int DaysTop = 214;
constexpr int HoursTop = 288;
constexpr int ColumnPitch = 86;
constexpr int ButtonTop = FormHeight - Margin - ButtonHeight;

void Add_Picture(wbButton* button, IconName icon) {
    button->Set_Picture(Load_Icon(icon), {16, 16});
    button->Set_ImageLEFT(4);
    button->Set_ImageTOP((button->height() - 16) / 2);
}

} // namespace

void frmQuickAddReminder::Build_Message() {
    const QuickAddState first = New_QuickAddState(Read_Moment());
    setFixedSize(FormWidth, FormHeight);
    Add_Text(this, u"Title:"_s, Margin, 12);
    Text1 = Add_Field(this, u"Text1"_s, u"Title"_s, {FieldLeft, Margin, FieldWidth, FieldHeight});
    Text1->setText(first.Title);
    Text1->setToolTip(u"The name of the reminder in the list"_s);
    Text1->installEventFilter(this);
    new TooltipPicture(48, HelpLeft, Margin + 2, this);
    Add_Text(this, u"Message:"_s, Margin, 38, 0, TextLook::Heading);
    Add_Text(this, u"Text:"_s, Margin, 58);
    Text3 = Add_Memo(this, u"Text3"_s, u"Text"_s, {FieldLeft, 56, FieldWidth, 82});
    Set_MemoText(Text3, first.Text);
    Text3->setToolTip(u"What is displayed when the reminder is due"_s);
    new TooltipPicture(49, HelpLeft, 56, this);
    Add_Text(this, u"Category:"_s, Margin, 149);
    Combo1 = Add_CategoryBox(this, {FieldLeft, 145, 180, FieldHeight + 1});
    Combo1->setToolTip(u"Select a category, or type the name of a new one"_s);
    Add_Text(this, u"(Optional)"_s, FieldLeft + 188, 149, 0, TextLook::Hint);
    new TooltipPicture(50, HelpLeft, 148, this);
    const QLabel* display = Add_Text(this, u"Display Mode:"_s, Margin, 180);
    const std::array<QString, 3> modes{u"Normal"_s, u"Important"_s, u"Very Important"_s};
    const std::array<QString, 3> tips{u"Inside the toolbar"_s, u"On a window next to the toolbar"_s,
                                      u"On a window at the center of the screen"_s};
    int left = std::max(90, display->geometry().right() + 4);
    for (std::size_t i = 0; i < modes.size(); ++i) {
        Option1[i] = Add_Option(this, u"Option1_%1"_s.arg(i), modes[i], left, 177);
        left = Option1[i]->geometry().right() + 4;
        Option1[i]->setToolTip(tips[i]);
    }
    Option1[static_cast<std::size_t>(first.DisplayMode)]->setChecked(true);
}

void frmQuickAddReminder::Build_Days() {
    const QuickAddState first = New_QuickAddState(Read_Moment());
    Add_Text(this, u"Remind me:"_s, Margin, DaysTop, 0, TextLook::Heading);
    new TooltipPicture(51, HelpLeft, DaysTop - 2, this);
    const std::array<QString, 3> captions{u"Today"_s, u"Tomorrow"_s, QString()};
    for (std::size_t i = 0; i < captions.size(); ++i) {
        const std::size_t box = 4 + i;
        p2ChkImage[box] = new ChkBox(captions[i], Margin + 8 + ColumnPitch * static_cast<int>(i),
                                     DaysTop + 24, this);
        p2ChkImage[box]->setObjectName(u"p2ChkImage_%1"_s.arg(box));
        p2ChkImage[box]->Set_Radio(true);
        connect(p2ChkImage[box], &ChkBox::Checked, this, [this, box] { Choose_Day(box); });
        connect(p2ChkImage[box], &ChkBox::Unchecked, this, [this, box] { Choose_Day(box); });
    }
    p2ChkImage[4]->Set_Ticked(true);
    p2ChkImage[6]->setAccessibleName(u"On a date"_s);
    const int dateLeft = p2ChkImage[6]->x() + 20;
    Text5 = Add_Field(this, u"Text5"_s, u"Date"_s, {dateLeft, DaysTop + 21, 88, FieldHeight});
    Text5->setText(first.Date);
    Text5->setToolTip(platform::Tip_Text(Global_DateFormat));
    connect(Text5, &QLineEdit::textEdited, this, [this] { Choose_Day(6); });
    wbButton* calendar =
        Add_Button(this, u"wbButton2"_s, {}, {dateLeft + 92, DaysTop + 20, 24, FieldHeight + 2});
    calendar->Set_ToolTipTextLabel(u"Open calendar..."_s);
    Add_Picture(calendar, IconName::Calendar);
    connect(calendar, &wbButton::Click, this, &frmQuickAddReminder::Calendar_Click);
}

void frmQuickAddReminder::Build_Hours() {
    const QuickAddState first = New_QuickAddState(Read_Moment());
    Add_Text(this, u"Hour Setup:"_s, Margin, HoursTop, 0, TextLook::Heading);
    new TooltipPicture(52, HelpLeft, HoursTop - 2, this);
    for (std::size_t i = 0; i < 4; ++i) {
        const int left = i == 0 ? Margin + 8 : Margin + 8 + (static_cast<int>(i) - 1) * 110;
        const int top = HoursTop + (i == 0 ? 24 : 52);
        auto* box = new ChkBox(i == 0 ? u"At Start up"_s : u"At "_s, left, top, this);
        p2ChkImage[i] = box;
        box->setObjectName(u"p2ChkImage_%1"_s.arg(i));
        connect(box, &ChkBox::Unchecked, this, [this, i] { Hour_Unchecked(i); });
        if (i == 0)
            continue;
        box->Set_Ticked(first.At[i - 1]);
        hText[i - 1] = Add_TimeBox(u"hText%1"_s.arg(i), {left + 42, top - 3, 48, FieldHeight}, box);
        hText[i - 1]->setText(first.Times[i - 1]);
    }
}

TimeField* frmQuickAddReminder::Add_TimeBox(const QString& name, const QRect& place, ChkBox* box) {
    auto* field = new TimeField(this);
    field->setObjectName(name);
    field->setAccessibleName("Time "_L1 + name.back());
    field->setToolTip(u"hh:mm"_s);
    field->setFont(Small_Font());
    field->setGeometry(place);
    Limit_ToStoredText(field);
    clock.Watch(field);
    connect(field, &TimeField::Clicked, this, [this, name, field] {
        clock.Show_Clock_For_Textbox(name, field, ParseTime_Colon(field->text()),
                                     field->mapToGlobal(QPoint()).y());
    });
    connect(field, &QLineEdit::textEdited, this, [this, field, box] {
        box->Set_Ticked(true);
        clock.Follow(field);
    });
    return field;
}

void frmQuickAddReminder::Build_Buttons() {
    Add_Label(help_page::Hint, Margin, ButtonTop - 17);
    wbButton* test = Add_Button(this, u"wbButton10"_s, u"Test the reminder"_s,
                                {Margin, ButtonTop, 132, ButtonHeight});
    test->Set_ToolTipTextLabel(u"Displays the reminder as it is now"_s);
    Add_Picture(test, IconName::RunItem);
    connect(test, &wbButton::Click, this, &frmQuickAddReminder::Test_Click);
    wbButton* editor =
        Add_Button(this, u"wbButton1"_s, u"More..."_s, {144, ButtonTop, 84, ButtonHeight});
    editor->Set_ToolTipTextLabel(u"Keeps the reminder and opens it in the list of reminders"_s);
    Add_Picture(editor, IconName::ViewReminders);
    connect(editor, &wbButton::Click, this, &frmQuickAddReminder::FullEditor_Click);
    wbButton* accept =
        Add_Button(this, u"wbButton3"_s, u"Ok"_s, {232, ButtonTop, 58, ButtonHeight});
    accept->Set_ToolTipTextLabel(u"Adds the reminder"_s);
    connect(accept, &wbButton::Click, this, &frmQuickAddReminder::Accept_Click);
    wbButton* cancel =
        Add_Button(this, u"wbButton4"_s, u"Cancel"_s, {294, ButtonTop, 58, ButtonHeight});
    cancel->Set_ToolTipTextLabel(u"Closes the window without a new reminder"_s);
    connect(cancel, &wbButton::Click, this, [this] { Unload(); });
}
