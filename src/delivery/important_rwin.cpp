// The reminder window as its user meets it: what its buttons and keys do, and how it comes and
// goes.
#include "delivery/important_rwin.h"

#include "controls/program_end.h"
#include "controls/show_beside.h"
#include "controls/the_screen.h"
#include "controls/transparency.h"
#include "controls/unload_queue.h"
#include "core/reminder_store.h"
#include "delivery/near_placement.h"
#include "delivery/options_menu.h"
#include "delivery/rwin_layout.h"
#include "platform/dialogs.h"
#include "platform/shell.h"
#include "platform/window.h"
#include "settings/global_settings.h"

#include <QAccessible>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QTimer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Nothing for a number that is no entry of the table.
template <class Entry>
Entry* Entry_At(std::vector<Entry>& table, std::int32_t index) {
    const bool isInside = index >= 0 && static_cast<std::size_t>(index) < table.size();
    return isInside ? &table[static_cast<std::size_t>(index)] : nullptr;
}

} // namespace

OptionsMenu* Global_OptionsMenu = nullptr;

frmImportantRWin::~frmImportantRWin() {
    Free_Entry();
}

void frmImportantRWin::AddReminder(std::int32_t slot) {
    PendingList.push_back(slot);
    Mark_Pending();
}

void frmImportantRWin::Show_Window() {
    platform::Windows& windows = platform::Windows::Get();
    windows.Leave_TaskBar(winId());
    windows.Show_Everywhere(winId());
    windows.Stay_Quiet(winId());
    if (Global_IsWinXP && Global_UseTransparency) {
        Global_Transparency().DoFadeIn(this);
        Global_Transparency().Enable_TC_Timer();
    } else {
        Show_BesideMenus(*this);
    }
    windows.Set_Topmost(winId(), true);
    comesUp = true;
    shownAt = pos();
    Tell_ScreenReader();
}

// Some window managers put a window that came without the focus behind the one that has it, and
// count a frame that it has not.
void frmImportantRWin::Come_Up() {
    if (closed)
        return;
    platform::Windows::Get().Stay_Quiet(winId());
    platform::Windows::Get().Raise(winId(), platform::RaiseOver::All);
    move(shownAt);
}

void frmImportantRWin::Tell_ScreenReader() {
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void frmImportantRWin::wbButton1_Click(int index) {
    if (closed || Program_Is_Ending())
        return;
    const QString target = ActionTarget[static_cast<std::size_t>(index)];
    if (target.isEmpty())
        return;
    const auto state = platform::Show_StateOf(ActionWindowState[static_cast<std::size_t>(index)]);
    if (!platform::Shell::Get().Open(target, state))
        platform::Dialogs::Get().Message(u"Can't open "_s + target,
                                         platform::BoxStyle::Exclamation);
}

void frmImportantRWin::wbButton2_Click() {
    if (closed || Program_Is_Ending())
        return;
    const std::int32_t index = Find_ReminderIndex(ThisReminderID, ThisCategoryID);
    if (index == -1) {
        platform::Dialogs::Get().Message(u"The reminder shown in this window as deleted."_s,
                                         platform::BoxStyle::Exclamation);
        return;
    }
    if (Global_OptionsMenu == nullptr)
        return;
    const QPoint below = wbButton2->mapToGlobal(QPoint(0, wbButton2->height()));
    Global_OptionsMenu->Open_For_Window(*this, index, {below.x(), below.y()});
}

void frmImportantRWin::wbButton3_Click() {
    // A menu that was open while the window closed may still ask.
    if (closed || Program_Is_Ending())
        return;
    if (PendingList.empty()) {
        Close_Window();
        return;
    }
    bool found = false;
    while (!found && !PendingList.empty()) {
        const std::int32_t slot = PendingList.front();
        PendingList.pop_front();
        Free_Entry();
        found = Take_Entry(slot);
    }
    // When the last one waiting has been deleted, the old text stays.
    Mark_Pending();
    if (found)
        Tell_ScreenReader();
}

bool frmImportantRWin::Take_Entry(std::int32_t slot) {
    ListIndex = slot;
    std::int32_t reminderIndex = -1;
    if (IsCenteredWindow) {
        if (const CenterWindowEntry* entry = Entry_At(Global_CenterWindows, slot))
            reminderIndex = Find_ReminderIndex(entry->ID, entry->ID2);
    } else if (NearWindowEntry* entry = Entry_At(Global_NearWindows, slot)) {
        entry->Waiting = PendingCount();
        entry->IsQueued = false;
        reminderIndex = Find_ReminderIndex(entry->ID, entry->ID2);
    }
    if (reminderIndex == -1)
        return false;
    const int formerBottom = y() + height();
    UpdateWindow(reminderIndex);
    Stay_OnScreen(formerBottom);
    return true;
}

// The next reminder may have more or fewer buttons.
void frmImportantRWin::Stay_OnScreen(int formerBottom) {
    const NearWindowEntry* entry =
        IsCenteredWindow ? nullptr : Entry_At(Global_NearWindows, ListIndex);
    const int top = entry != nullptr && entry->AlignBottom ? formerBottom - height() : y();
    const QRect screen = Screen_At(geometry().center());
    const int lowest = screen.bottom() + 1 - height();
    move(x(), std::max(std::min(top, lowest), screen.top()));
}

void frmImportantRWin::Free_Entry() {
    if (IsCenteredWindow) {
        if (CenterWindowEntry* entry = Entry_At(Global_CenterWindows, ListIndex))
            entry->Used = false;
    } else if (NearWindowEntry* entry = Entry_At(Global_NearWindows, ListIndex)) {
        entry->Used = false;
        entry->WorkForm = nullptr;
    }
    ListIndex = -1;
}

void frmImportantRWin::Close_Window() {
    closed = true;
    Free_Entry();
    Global_Transparency().DeleteHWNDfromList(winId(), Layering::Remove, FadeEnd::KeepForm);
    hide();
    Queue_FormUnload(this);
}

void frmImportantRWin::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && !event->isAutoRepeat())
        wbButton3_Click();
    else
        QWidget::keyPressEvent(event);
}

// The window manager's way of closing passes over no reminder that waits.
void frmImportantRWin::closeEvent(QCloseEvent* event) {
    event->ignore();
    wbButton3_Click();
}
