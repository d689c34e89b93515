// The buttons below the list.
#include "controls/field_word.h"
#include "controls/program_end.h"
#include "controls/wb_button.h"
#include "delivery/deliver.h"
#include "editors/list/card_list.h"
#include "editors/list/copy_buffer.h"
#include "editors/list/frm_reminder_edit.h"
#include "editors/list/list_rules.h"
#include "editors/list/misc_page.h"
#include "platform/dialogs.h"

using namespace Qt::StringLiterals;

namespace {
const QString nothingSelected = u"Click on a reminder in the list first."_s;
} // namespace

// The new reminder is not selected: the pages stay with the one that is.
void frmReminderEdit::New_Click() {
    Save_Selected_Icon();
    const ReminderRef added = Add_New_Reminder(Category_OfNew(filter));
    UpdateReminderView();
    Show_NewCard(added);
}

void frmReminderEdit::Delete_Click() {
    const ReminderClass* reminder = selection.Peek();
    if (reminder == nullptr) {
        Say_AtField(wbButton6, nothingSelected);
        return;
    }
    const ReminderRef doomed = selection;
    const platform::Answer answer = platform::Dialogs::Get().Question(
        Delete_Question(*reminder, Read_Moment()), false, {.Title = u"Confirm"_s});
    if (answer != platform::Answer::Yes || Program_Is_Ending())
        return;
    Delete_ReminderSlot(doomed.Slot());
    Drop_Selection();
    Update_Category_Combos(FilterText::Keep);
    UpdateReminderView();
    Cards->setFocus();
}

void frmReminderEdit::Copy_Click() {
    if (selection.Peek() == nullptr)
        Say_AtField(wbButton8, nothingSelected);
    if (!Save_View_To_Reminder(CategoryOnSave::Take))
        return;
    const ReminderClass* reminder = selection.Peek();
    if (reminder != nullptr && !Write_CopyBuffer(*reminder))
        platform::Dialogs::Get().Message(u"The reminder can't be copied: the file \"temp.dat\" "
                                         "can't be written"_s,
                                         platform::BoxStyle::Exclamation);
}

void frmReminderEdit::Paste_Click() {
    Save_Selected_Icon();
    std::unique_ptr<ReminderClass> pasted;
    switch (Read_CopyBuffer(pasted)) {
    case PasteResult::Nothing:
        return;
    case PasteResult::Damaged:
        platform::Dialogs::Get().Message(u"The copied reminder can't be read"_s,
                                         platform::BoxStyle::Exclamation);
        return;
    case PasteResult::Pasted:
        break;
    }
    pasted->rs_Category = Category_OfPasted(filter);
    const ReminderRef added = Add_Reminder(std::move(pasted));
    UpdateReminderView();
    Show_NewCard(added);
}

void frmReminderEdit::Test_Click() {
    if (selection.Peek() == nullptr)
        Say_AtField(wbButton10, nothingSelected);
    if (Selected_Reminder() == nullptr || !Save_View_To_Reminder(CategoryOnSave::Keep) ||
        Program_Is_Ending())
        return;
    if (const std::int32_t slot = selection.Slot(); slot != -1)
        Deliver_Reminder(slot);
}

void frmReminderEdit::Save_Selected_Icon() {
    if (ReminderClass* reminder = Selected_Reminder())
        reminder->rs_Icon = Picture10->IconSelIMG->Selected_Name().trimmed().toLower();
}
