#include "editors/list/reminder_edit.h"

#include "accessories/help/help.h"
#include "controls/help_topic.h"
#include "editors/list/frm_reminder_edit.h"

#include <QPointer>

namespace {
QPointer<frmReminderEdit> listWindow;
}

frmReminderEdit* Open_ReminderEdit() {
    return listWindow == nullptr || listWindow->Is_Unloading() ? nullptr : listWindow.data();
}

void Show_ReminderEdit() {
    if (Open_ReminderEdit() == nullptr)
        listWindow = new frmReminderEdit;
    else
        listWindow->Refresh_View();
    Update_HelpTopic(help_page::Reminders);
    listWindow->Present();
}

void Restore_RefusedPage() {
    if (frmReminderEdit* window = Open_ReminderEdit())
        window->Restore_RefusedPage();
}

bool Store_OpenPage() {
    frmReminderEdit* window = Open_ReminderEdit();
    return window == nullptr || window->Store_OpenPage();
}
