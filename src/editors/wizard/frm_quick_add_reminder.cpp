#include "editors/wizard/frm_quick_add_reminder.h"

#include "accessories/help/help.h"
#include "controls/chk_box.h"
#include "controls/combo_box.h"
#include "controls/help_topic.h"
#include "controls/one_window.h"
#include "controls/text_fields.h"
#include "controls/wb_button.h"
#include "delivery/deliver.h"
#include "editors/list/frm_reminder_edit.h"
#include "editors/list/reminder_edit.h"
#include "editors/pages/page_controls.h"
#include "editors/wizard/page_parts.h"
#include "platform/dialogs.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QRadioButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t FirstHour = 0;
constexpr std::size_t FirstDay = 4;
constexpr std::size_t DateBox = 6;

OneWindow<frmQuickAddReminder> quickWindow;

} // namespace

frmQuickAddReminder::frmQuickAddReminder()
    : pending(Make_PendingReminder(Read_Moment())), clock(*this, [] {}) {
    setWindowTitle(u"Add new reminder"_s);
    Set_HelpTopic(*this, help_page::NewReminder);
    Build_Message();
    Build_Days();
    Build_Hours();
    Build_Buttons();
    Text1->setFocus();
    Text1->selectAll();
}

// One of the days stays chosen whatever is clicked.
void frmQuickAddReminder::Choose_Day(std::size_t index) {
    for (std::size_t i = FirstDay; i <= DateBox; ++i)
        p2ChkImage[i]->Set_Ticked(i == index);
}

// The last condition cannot be taken off.
void frmQuickAddReminder::Hour_Unchecked(std::size_t index) {
    const auto first = p2ChkImage.begin() + FirstHour;
    if (std::none_of(first, first + 1 + QuickTimeCount,
                     [](const ChkBox* box) { return box->Is_Ticked(); }))
        p2ChkImage[index]->Set_Ticked(true);
}

void frmQuickAddReminder::Text1_LostFocus(Qt::FocusReason reason) {
    if (Leaves_Field(reason) && Text_FollowsTitle(State()))
        page_parts::Set_MemoText(Text3, Text1->text());
}

QuickAddState frmQuickAddReminder::State() const {
    QuickAddState state;
    state.Title = Text1->text();
    state.Text = page_parts::Memo_Text(Text3);
    state.Category = Combo1->currentText();
    for (std::size_t i = 0; i < Option1.size(); ++i)
        if (Option1[i]->isChecked())
            state.DisplayMode = static_cast<ReminderType>(i);
    for (std::size_t i = FirstDay; i <= DateBox; ++i)
        if (p2ChkImage[i]->Is_Ticked())
            state.When = static_cast<DayChoice>(i - FirstDay);
    state.Date = Text5->text();
    state.AtStartUp = p2ChkImage[FirstHour]->Is_Ticked();
    for (std::size_t i = 0; i < hText.size(); ++i) {
        state.At[i] = p2ChkImage[FirstHour + 1 + i]->Is_Ticked();
        state.Times[i] = hText[i]->text();
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
        Deliver_Reminder(pending.Slot());
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
    Choose_Day(DateBox);
    if (!frmCalendarCopy || frmCalendarCopy->Is_Unloading()) {
        frmCalendarCopy = new frmCalendar(this);
        connect(frmCalendarCopy, &frmCalendar::DateSelected, this,
                &frmQuickAddReminder::frmCalendarCopy_DateSelected);
    }
    frmCalendarCopy->Show_DateText(Text5->text());
    frmCalendarCopy->Present_Beside(frameGeometry(), *Text5);
}

void frmQuickAddReminder::frmCalendarCopy_DateSelected(const QString& NewDate) {
    Text5->setText(NewDate);
}

bool frmQuickAddReminder::eventFilter(QObject* watched, QEvent* event) {
    if (watched == Text1 && event->type() == QEvent::FocusOut)
        Text1_LostFocus(static_cast<QFocusEvent*>(event)->reason());
    return Form::eventFilter(watched, event);
}

// Cancel, the close box and the end of the program leave no trace in the table.
void frmQuickAddReminder::On_Unload() {
    Drop_Pending(std::exchange(pending, {}));
    if (frmCalendarCopy)
        frmCalendarCopy->Unload();
    clock.Unload();
}

void Show_QuickAdd() {
    frmQuickAddReminder* window = quickWindow.Open_OrMake();
    if (window == nullptr)
        return;
    window->Present();
    Update_HelpTopic(help_page::NewReminder);
}
