#include "editors/list/reminder_edit.h"

#include "accessories/help/help.h"
#include "controls/help_topic.h"
#include "controls/one_window.h"
#include "editors/list/frm_reminder_edit.h"

namespace {
OneWindow<frmReminderEdit> listWindow;
}

frmReminderEdit* Open_ReminderEdit() {
    return listWindow.Open();
}

void Show_ReminderEdit() {
    if (frmReminderEdit* open = listWindow.Open())
        open->Refresh_View();
    frmReminderEdit* window = listWindow.Open_OrMake();
    if (window == nullptr)
        return;
    Update_HelpTopic(help_page::Reminders);
    window->Present();
}

void Restore_RefusedPage() {
    if (frmReminderEdit* window = Open_ReminderEdit())
        window->Restore_RefusedPage();
}

bool Store_OpenPage() {
    frmReminderEdit* window = Open_ReminderEdit();
    return window == nullptr || window->Store_OpenPage();
}
