// The road of a record into the pages and back.
#include "controls/text_fields.h"
#include "core/categories.h"
#include "editors/list/card_list.h"
#include "editors/list/frm_re_function_edit.h"
#include "editors/list/frm_reminder_edit.h"
#include "editors/list/list_rules.h"
#include "editors/list/misc_page.h"
#include "editors/list/sound_page.h"
#include "editors/pages/date_page.h"
#include "editors/pages/hour_page.h"

#include <QPlainTextEdit>

void frmReminderEdit::Clear_Reminder_View() {
    Picture2->Clear_View();
    Picture3->Clear_View();
    Picture6->Clear_View();
    Picture7->Clear_View();
}

void frmReminderEdit::Load_Reminder_To_View() {
    const ReminderClass* reminder = selection.Peek();
    if (reminder == nullptr)
        return;
    // The date page may show a box, under which the reminder can go.
    const ReminderClass record = *reminder;
    Picture2->Set_LoadingView(true);
    Clear_Reminder_View();
    Picture3->Show_HourSetup_List(record);
    Picture6->Load_View(record);
    Picture7->Load_View(record);
    Picture10->Set_CategoryText(record.rs_Category.isEmpty() ? NoCategoryText : record.rs_Category);
    Select_Icon_By_Name(record.rs_Icon, CardIcon::Keep);
    Picture2->Load_View(record);
    Picture2->Set_LoadingView(false);
    if (Selected_Reminder() != nullptr)
        Picture2->Update_NextRun_Labels();
}

bool frmReminderEdit::Save_View_To_Reminder(CategoryOnSave category) {
    return Save_View(category, ShowErrors::Yes);
}

// The first field at fault ends the save. Each step may show a box, so each looks the record up.
bool frmReminderEdit::Save_View(CategoryOnSave category, ShowErrors show) {
    ReminderClass* reminder = Selected_Reminder();
    if (reminder == nullptr)
        return true;
    refused.Save_Begins(selection);
    Picture2->Update_NextRun_Labels();
    if (!Picture2->Save_DateSetup_To_Reminder(*reminder, show)) {
        refused.Save_Refused(RefusedPart::Date);
        return false;
    }
    if (!Picture3->Save_HourSetup_List(show)) {
        refused.Save_Refused(RefusedPart::Hours);
        return false;
    }
    reminder = Selected_Reminder();
    if (reminder == nullptr)
        return true;
    Picture6->Save_View(*reminder);
    Picture7->Save_View(*reminder);
    CategoryChanged = false;
    if (category == CategoryOnSave::Take)
        Save_Category(*reminder);
    reminder->rs_Icon = Picture10->IconSelIMG->Selected_Name().trimmed();
    Sync_CategoriesFromReminders();
    // The list goes to the record a second time, and this is the result that counts. That is meant.
    const bool saved = Picture3->Save_HourSetup_List(show);
    if (saved)
        refused.Save_Done();
    else
        refused.Save_Refused(RefusedPart::Hours);
    return saved;
}

void frmReminderEdit::Save_Category(ReminderClass& reminder) {
    const QString category = Category_FromText(Picture10->CategoryText());
    if (category.compare(reminder.rs_Category, Qt::CaseInsensitive) == 0)
        return;
    reminder.rs_Category = category;
    CategoryChanged = true;
}

bool frmReminderEdit::Store_OpenPage() {
    if (Save_View(CategoryOnSave::Take, ShowErrors::No))
        return true;
    refused.Restore(selection);
    return false;
}

void frmReminderEdit::Restore_RefusedPage() {
    refused.Restore(selection);
}

void frmReminderEdit::Title_Changed(const QString& title) {
    ReminderClass* reminder = Selected_Reminder();
    if (reminder == nullptr)
        return;
    reminder->rs_Title = title;
    if (CardView* card = Cards->Card_Of(selection))
        card->Set_Title(title);
}

void frmReminderEdit::Text_Changed(const QString& text) {
    ReminderClass* reminder = Selected_Reminder();
    if (reminder == nullptr)
        return;
    reminder->rs_Text = Text_ForRecord(text, reminder->rs_Text);
    if (CardView* card = Cards->Card_Of(selection))
        card->Set_Text(text);
}

void frmReminderEdit::Card_Text_Changed(const QString& text) {
    ReminderClass* reminder = Selected_Reminder();
    if (reminder == nullptr)
        return;
    reminder->rs_Text = Text_ForRecord(text, reminder->rs_Text);
    Picture6->Set_Text(text);
}

void frmReminderEdit::Row_Enabled_Changed(const ReminderRef& changed, bool ticked) {
    if (ReminderClass* reminder = changed.Get()) {
        if (ticked)
            reminder->rs_DisabledForToday = 0;
        reminder->rs_Enabled = ticked;
    }
    Refresh_View();
}

void frmReminderEdit::Text4_SetDate_FromCalendar(int Index, const QString& NewDate) {
    Picture2->Text4_SetDate_FromCalendar(Index, NewDate);
}

void frmReminderEdit::UpdateFunctions(const ReminderClass& wOBJ, TitlesOfFunctions titles) {
    Picture6->UpdateFunctions(wOBJ, titles);
}

void frmReminderEdit::Function_Enable_Changed(int k) {
    ReminderClass* reminder = Selected_Reminder();
    if (reminder == nullptr)
        return;
    FunctionEntry entry = reminder->GetFuncion(k);
    entry.Enabled = Picture6->p6ChkImage[static_cast<std::size_t>(k)]->Is_Ticked();
    reminder->SetFuncion(k, entry);
}

void frmReminderEdit::Edit_Function(int k) {
    if (Selected_Reminder() == nullptr)
        return;
    if (functionEdit == nullptr || functionEdit->Is_Unloading()) {
        functionEdit = new frmRE_FunctionEdit(this);
        connect(functionEdit, &frmRE_FunctionEdit::Function_Changed, this, [this] {
            const ReminderClass* reminder = selection.Peek();
            if (reminder != nullptr && functionEdit->wOBJ == selection)
                UpdateFunctions(*reminder, TitlesOfFunctions::Keep);
        });
    }
    functionEdit->wOBJ = selection;
    functionEdit->Index = k;
    functionEdit->UpdateView();
    functionEdit->Present();
}
