#include "editors/wizard/frm_quick_add_reminder.h"

#include "accessories/help/help.h"
#include "controls/chk_box.h"
#include "controls/combo_box.h"
#include "controls/help_topic.h"
#include "controls/metrics.h"
#include "controls/one_window.h"
#include "controls/page_parts.h"
#include "controls/text_fields.h"
#include "controls/tooltip_picture.h"
#include "controls/wb_button.h"
#include "core/categories.h"
#include "core/date_text.h"
#include "delivery/deliver.h"
#include "editors/list/frm_reminder_edit.h"
#include "editors/list/reminder_edit.h"
#include "editors/pages/page_controls.h"
#include "platform/dialogs.h"
#include "platform/shown_text.h"

#include <QFocusEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Pixels.
constexpr int FormWidth = 360;
constexpr int FormHeight = 414;
constexpr int Margin = 8;
constexpr int FieldLeft = 76;
constexpr int FieldWidth = 252;
constexpr int FieldHeight = 21;
constexpr int ButtonHeight = 24;
constexpr int PictureLeft = 4;
constexpr int HelpLeft = FormWidth - Margin - 16;
constexpr int DaysTop = 214;
constexpr int HoursTop = 288;
constexpr int DayPitch = 86;
constexpr int TimePitch = 110;
constexpr int ButtonTop = FormHeight - Margin - ButtonHeight;

OneWindow<frmQuickAddReminder> quickWindow;

} // namespace

frmQuickAddReminder::frmQuickAddReminder()
    : pending(Make_PendingReminder(Read_Moment())), clock(*this, [] {}) {
    setWindowTitle(u"Add new reminder"_s);
    Set_HelpTopic(*this, help_page::NewReminder);
    setFixedSize(FormWidth, FormHeight);
    const QuickAddState first = New_QuickAddState(Read_Moment());
    Build_Message(first);
    Build_Days(first);
    Build_Hours(first);
    Build_Buttons();
    title->setFocus();
    title->selectAll();
}

void frmQuickAddReminder::Build_Message(const QuickAddState& first) {
    Add_Text(this, u"Title:"_s, Margin, 12);
    title = Add_Field(this, u"Title"_s, {FieldLeft, Margin, FieldWidth, FieldHeight});
    title->setText(first.Title);
    title->setToolTip(u"The name of the reminder in the list"_s);
    title->installEventFilter(this);
    new TooltipPicture(48, HelpLeft, Margin + 2, this);
    Add_Text(this, u"Message:"_s, Margin, 38, TextLook::Heading);
    Add_Text(this, u"Text:"_s, Margin, 58);
    text = Add_Memo(this, u"Text"_s, {FieldLeft, 56, FieldWidth, 82});
    text->setPlainText(Text_ForBox(first.Text));
    text->setToolTip(u"What is displayed when the reminder is due"_s);
    new TooltipPicture(49, HelpLeft, 56, this);
    Add_Text(this, u"Category:"_s, Margin, 149);
    category = pages::Add_CategoryBox(this, {FieldLeft, 145, 180, FieldHeight + 1});
    category->addItems(QStringList{NoCategoryText} + Category_Names());
    category->setEditText(NoCategoryText);
    category->setToolTip(u"Select a category, or type the name of a new one"_s);
    Add_Text(this, u"(Optional)"_s, FieldLeft + 188, 149, TextLook::Hint);
    new TooltipPicture(50, HelpLeft, 148, this);
    const QLabel* display = Add_Text(this, u"Display Mode:"_s, Margin, 180);
    const QString captions[][2] = {
        {u"Normal"_s, u"Inside the toolbar"_s},
        {u"Important"_s, u"On a window next to the toolbar"_s},
        {u"Very Important"_s, u"On a window at the center of the screen"_s}};
    int left = std::max(90, display->geometry().right() + 4);
    for (std::size_t i = 0; i < modes.size(); ++i) {
        modes[i] = Add_Option(this, captions[i][0], left, 177);
        modes[i]->setToolTip(captions[i][1]);
        left = modes[i]->geometry().right() + 4;
    }
    modes[static_cast<std::size_t>(first.DisplayMode)]->setChecked(true);
}

void frmQuickAddReminder::Build_Days(const QuickAddState& first) {
    Add_Text(this, u"Remind me:"_s, Margin, DaysTop, TextLook::Heading);
    new TooltipPicture(51, HelpLeft, DaysTop - 2, this);
    int left = Margin + 8;
    for (const auto& [choice, caption] : {std::pair(DayChoice::Today, u"Today"_s),
                                          {DayChoice::Tomorrow, u"Tomorrow"_s},
                                          {DayChoice::Date, QString()}}) {
        auto* box = new ChkBox(caption, left, DaysTop + 24, this);
        box->Set_Radio(true);
        for (const auto change : {&ChkBox::Checked, &ChkBox::Unchecked})
            connect(box, change, this, [this, day = choice] { Choose_Day(day); });
        days[static_cast<std::size_t>(choice)] = box;
        left += DayPitch;
    }
    Choose_Day(first.When);
    days.back()->setAccessibleName(u"On a date"_s);
    const int dateLeft = days.back()->x() + 20;
    date = Add_Field(this, u"Date"_s, {dateLeft, DaysTop + 21, 88, FieldHeight});
    date->setText(first.Date);
    date->setToolTip(platform::Tip_Text(Global_DateFormat));
    connect(date, &QLineEdit::textEdited, this, [this] { Choose_Day(DayChoice::Date); });
    wbButton* open = Add_Button(this, {}, {dateLeft + 92, DaysTop + 20, 24, FieldHeight + 2});
    open->Set_ToolTipTextLabel(u"Open calendar..."_s);
    Add_Picture(open, IconName::Calendar, PictureLeft);
    connect(open, &wbButton::Click, this, &frmQuickAddReminder::Calendar_Click);
}

void frmQuickAddReminder::Build_Hours(const QuickAddState& first) {
    Add_Text(this, u"Hour Setup:"_s, Margin, HoursTop, TextLook::Heading);
    new TooltipPicture(52, HelpLeft, HoursTop - 2, this);
    const auto Add_Box = [this](std::size_t at, const QString& caption, int left, int top) {
        auto* box = new ChkBox(caption, left, top, this);
        connect(box, &ChkBox::Unchecked, this, [this, box] { Hour_Unchecked(box); });
        return hours[at] = box;
    };
    Add_Box(0, u"At Start up"_s, Margin + 8, HoursTop + 24);
    int left = Margin + 8;
    for (std::size_t i = 0; i < times.size(); ++i, left += TimePitch) {
        ChkBox* box = Add_Box(1 + i, u"At "_s, left, HoursTop + 52);
        box->Set_Ticked(first.At[i]);
        times[i] =
            Add_TimeBox(static_cast<int>(i) + 1, {left + 42, HoursTop + 49, 48, FieldHeight}, box);
        times[i]->setText(first.Times[i]);
    }
}

TimeField* frmQuickAddReminder::Add_TimeBox(int number, const QRect& place, ChkBox* box) {
    const QString name = u"Time %1"_s.arg(number);
    auto* field = new TimeField(this);
    field->setAccessibleName(name);
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
    const auto Add = [this](const QString& caption, const QString& tip, int left, int width) {
        wbButton* button = Add_Button(this, caption, {left, ButtonTop, width, ButtonHeight});
        button->Set_ToolTipTextLabel(tip);
        return button;
    };
    wbButton* test =
        Add(u"Test the reminder"_s, u"Displays the reminder as it is now"_s, Margin, 132);
    Add_Picture(test, IconName::RunItem, PictureLeft);
    connect(test, &wbButton::Click, this, &frmQuickAddReminder::Test_Click);
    wbButton* editor =
        Add(u"More..."_s, u"Keeps the reminder and opens it in the list of reminders"_s, 144, 84);
    Add_Picture(editor, IconName::ViewReminders, PictureLeft);
    connect(editor, &wbButton::Click, this, &frmQuickAddReminder::FullEditor_Click);
    connect(Add(u"Ok"_s, u"Adds the reminder"_s, 232, 58), &wbButton::Click, this,
            &frmQuickAddReminder::Accept_Click);
    connect(Add(u"Cancel"_s, u"Closes the window without a new reminder"_s, 294, 58),
            &wbButton::Click, this, [this] { Unload(); });
}

// One of the days stays chosen whatever is clicked.
void frmQuickAddReminder::Choose_Day(DayChoice choice) {
    for (std::size_t i = 0; i < days.size(); ++i)
        days[i]->Set_Ticked(i == static_cast<std::size_t>(choice));
}

// The last condition cannot be taken off.
void frmQuickAddReminder::Hour_Unchecked(ChkBox* box) {
    if (std::none_of(hours.begin(), hours.end(),
                     [](const ChkBox* hour) { return hour->Is_Ticked(); }))
        box->Set_Ticked(true);
}

void frmQuickAddReminder::Title_Left(Qt::FocusReason reason) {
    if (Leaves_Field(reason) && Text_FollowsTitle(State()))
        text->setPlainText(title->text());
}

QuickAddState frmQuickAddReminder::State() const {
    QuickAddState state;
    state.Title = title->text();
    state.Text = Text_ForRecord(text->Text());
    state.Category = category->currentText();
    for (std::size_t i = 0; i < modes.size(); ++i)
        if (modes[i]->isChecked())
            state.DisplayMode = static_cast<ReminderType>(i);
    for (std::size_t i = 0; i < days.size(); ++i)
        if (days[i]->Is_Ticked())
            state.When = static_cast<DayChoice>(i);
    state.Date = date->text();
    state.AtStartUp = hours.front()->Is_Ticked();
    for (std::size_t i = 0; i < times.size(); ++i) {
        state.At[i] = hours[1 + i]->Is_Ticked();
        state.Times[i] = times[i]->text();
    }
    return state;
}

ReminderClass& frmQuickAddReminder::Own_Reminder() {
    if (pending.Slot() == -1)
        pending = Make_PendingReminder(Read_Moment());
    return *pending.Get();
}

// False: the window stays as it is, or is gone.
bool frmQuickAddReminder::Apply(BadValues bad) {
    if (Is_Unloading() || Program_Is_Ending())
        return false;
    const QString error = Apply_ToReminder(State(), Own_Reminder(), bad, Read_Moment());
    if (!error.isEmpty())
        platform::Dialogs::Get().Message(error, platform::BoxStyle::Exclamation);
    return error.isEmpty();
}

void frmQuickAddReminder::Test_Click() {
    if (Apply(BadValues::Report))
        Deliver_Reminder(pending);
}

void frmQuickAddReminder::Accept_Click() {
    if (!Apply(BadValues::Report))
        return;
    Accept_Pending(pending);
    pending = {};
    Unload();
}

void frmQuickAddReminder::FullEditor_Click() {
    if (!Apply(BadValues::Skip))
        return;
    Accept_Pending(pending);
    const ReminderRef accepted = std::exchange(pending, {});
    const QPointer<frmQuickAddReminder> alive(this);
    Show_ReminderEdit();
    if (Program_Is_Ending())
        return;
    frmReminderEdit* editor = Open_ReminderEdit();
    if (const std::int32_t index = accepted.Slot(); editor != nullptr && index != -1)
        editor->SelectReminder_Using_RListIndex(index);
    if (alive)
        Unload();
}

void frmQuickAddReminder::Calendar_Click() {
    Choose_Day(DayChoice::Date);
    if (!calendar || calendar->Is_Unloading()) {
        calendar = new frmCalendar(this);
        connect(calendar, &frmCalendar::DateSelected, date, &QLineEdit::setText);
    }
    calendar->Show_DateText(date->text());
    calendar->Present_Beside(frameGeometry(), *date);
}

bool frmQuickAddReminder::eventFilter(QObject* watched, QEvent* event) {
    if (watched == title && event->type() == QEvent::FocusOut)
        Title_Left(static_cast<QFocusEvent*>(event)->reason());
    return Form::eventFilter(watched, event);
}

// Cancel, the close box and the end of the program leave no trace in the table.
void frmQuickAddReminder::On_Unload() {
    Drop_Pending(std::exchange(pending, {}));
    if (calendar)
        calendar->Unload();
    clock.Unload();
}

void Show_QuickAdd() {
    frmQuickAddReminder* window = quickWindow.Open_OrMake();
    if (window == nullptr)
        return;
    window->Present();
    Update_HelpTopic(help_page::NewReminder);
}
