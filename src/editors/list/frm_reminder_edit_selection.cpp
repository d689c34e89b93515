// Which reminder is selected, and what the window does around the pages.
#include "controls/cool_tab.h"
#include "controls/program_end.h"
#include "editors/list/card_list.h"
#include "editors/list/frm_re_function_edit.h"
#include "editors/list/frm_reminder_edit.h"
#include "editors/list/list_rules.h"
#include "editors/list/misc_page.h"
#include "editors/list/sound_page.h"
#include "editors/pages/date_page.h"
#include "editors/pages/hour_page.h"
#include "platform/dialogs.h"

#include <QEvent>

QWidget* frmReminderEdit::Page_Widget(int page) const {
    const std::array<QWidget*, 5> pages{Picture2, Picture3, Picture6, Picture7, Picture10};
    return pages[static_cast<std::size_t>(page)];
}

int frmReminderEdit::SelectedRow() const {
    return Cards->Row_Of(selection);
}

void frmReminderEdit::UpdateReminderView() {
    Cards->Set_Slots(Visible_Slots(filter));
}

void frmReminderEdit::UpdateRList_ByCategory(const QString& wCategory) {
    Cards->Set_Slots(Keep_Category(Cards->Slots(), wCategory));
}

void frmReminderEdit::SelectReminder_Using_RListIndex(std::int32_t index) {
    Refresh_View();
    const ReminderRef target = ReminderRef::Of_Slot(index);
    const int row = Cards->Row_Of(target);
    if (row == -1)
        return;
    Cards->Set_CurrentRow(row);
    Select_Reminder(target);
}

void frmReminderEdit::SelectReminder_Using_ListRow(int row) {
    if (row >= 0 && row < static_cast<int>(Cards->Slots().size()))
        Select_Reminder(ReminderRef::Of_Slot(Cards->Slots()[static_cast<std::size_t>(row)]));
}

void frmReminderEdit::Select_Reminder(const ReminderRef& target) {
    const ReminderRef wanted = target; // the caller's may be a card's, which can change
    if (wanted.Slot() == -1) {
        Refresh_View();
        return;
    }
    if (wanted == selection)
        return;
    if (Selected_Reminder() != nullptr) {
        Hide_Popups();
        if (!Save_View_To_Reminder(CategoryOnSave::Take) || Program_Is_Ending())
            return;
        if (CategoryChanged) {
            Update_Category_Combos(FilterText::Keep);
            UpdateRList_ByCategory(filter);
        }
    }
    if (wanted.Slot() == -1) {
        Refresh_View();
        return;
    }
    selection = wanted;
    refused.Save_Done();
    Cards->Set_Selected(selection);
    Hide_ErrorShapes();
    Load_Reminder_To_View();
    if (Selected_Reminder() != nullptr)
        Set_CurrentPage(static_cast<int>(CurrentPage));
    else
        Refresh_View();
}

bool frmReminderEdit::Is_SelectedNow(const ReminderRef& target) {
    const ReminderRef wanted = target;
    if (!wanted.Is_Set())
        return false;
    Select_Reminder(wanted);
    return selection == wanted && Selected_Reminder() != nullptr && !Program_Is_Ending();
}

void frmReminderEdit::Show_NewCard(const ReminderRef& added) {
    const int row = Cards->Row_Of(added);
    if (selection.Is_Set())
        Cards->Bring_IntoView(row);
    else
        Cards->Set_CurrentRow(row);
}

void frmReminderEdit::Drop_Selection() {
    selection = {};
    refused.Save_Done();
    Cards->Set_Selected({});
    Hide_Popups();
    Hide_All_Pages();
}

void frmReminderEdit::Refresh_View() {
    if (Is_Unloading())
        return;
    if (selection.Is_Set() && selection.Slot() == -1)
        Drop_Selection();
    Update_Category_Combos(FilterText::Keep);
    UpdateReminderView();
}

void frmReminderEdit::RefreshTimer_Tick() {
    if (platform::Dialogs::Get().Holds_Timers() || Program_Is_Ending())
        return;
    Refresh_View();
    const Day today = Get_TodayDay();
    if (today != shownDay && Selected_Reminder() != nullptr)
        Picture2->Update_NextRun_Labels();
    shownDay = today;
}

void frmReminderEdit::Hide_Popups() {
    Picture2->Hide_Popup();
    Picture3->Hide_Popup();
    if (functionEdit != nullptr)
        functionEdit->Unload();
}

void frmReminderEdit::Hide_All_Pages() {
    for (int page = 0; page < CoolTab1->TabCount(); ++page)
        Page_Widget(page)->hide();
}

void frmReminderEdit::HideErrorShapeTimer_Tick() {
    if (!platform::Dialogs::Get().Holds_Timers())
        Hide_ErrorShapes();
}

void frmReminderEdit::Hide_ErrorShapes() {
    Picture2->Hide_ErrorShapes();
    Picture3->Hide_ErrorShapes();
}

void frmReminderEdit::Restart_HideErrorShapeTimer() {
    HideErrorShapeTimer.start();
}

void frmReminderEdit::Set_CurrentPage(int page) {
    CurrentPage = static_cast<EditPage>(page);
    if (Selected_Reminder() == nullptr)
        return;
    if (CurrentPage != EditPage::DateSetup)
        Picture2->Hide_Popup();
    if (CurrentPage != EditPage::HoursSetup)
        Picture3->Hide_Popup();
    if (CurrentPage != EditPage::Message && functionEdit != nullptr)
        functionEdit->Unload();
    Page_Widget(page)->show();
    for (int other = 0; other < CoolTab1->TabCount(); ++other)
        if (other != page)
            Page_Widget(other)->hide();
}

void frmReminderEdit::Show_Page(EditPage page) {
    CoolTab1->Select(static_cast<int>(page));
    Set_CurrentPage(static_cast<int>(page));
}

void frmReminderEdit::Show_NextRun(Day nextRun) {
    Cards->Set_SelectedNextRun(nextRun);
}

bool frmReminderEdit::Query_Unload(UnloadMode mode) {
    // A record with a field at fault is not left behind, unless the system closes the window.
    return mode == UnloadMode::Ending || Save_View_To_Reminder(CategoryOnSave::Take);
}

void frmReminderEdit::On_Unload() {
    Hide_Popups();
    Picture3->Unload_Popup();
    Picture7->Stop_Sound();
    HideErrorShapeTimer.stop();
    refreshTimer.stop();
}

bool frmReminderEdit::event(QEvent* event) {
    const bool taken = Form::event(event);
    if (event->type() == QEvent::WindowActivate && !Program_Is_Ending())
        Refresh_View();
    return taken;
}

void frmReminderEdit::showEvent(QShowEvent* event) {
    refreshTimer.start();
    Form::showEvent(event);
}

void frmReminderEdit::hideEvent(QHideEvent* event) {
    refreshTimer.stop();
    Form::hideEvent(event);
}
