// The reminder window as its user meets it: what its buttons and keys do, and how it comes and
// goes.
#include "delivery/important_rwin.h"

#include "controls/program_end.h"
#include "controls/show_beside.h"
#include "controls/the_screen.h"
#include "controls/transparency.h"
#include "controls/unload_queue.h"
#include "delivery/options_menu.h"
#include "delivery/rwin_layout.h"
#include "platform/dialogs.h"
#include "platform/shell.h"
#include "platform/window.h"
#include "settings/global_settings.h"

#include <QAccessible>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QTimer>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

OptionsMenu* Global_OptionsMenu = nullptr;

frmImportantRWin::~frmImportantRWin() {
    Free_Entry();
    for (const std::size_t slot : PendingList)
        table.Free(slot);
}

void frmImportantRWin::AddReminder(std::size_t slot) {
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

void frmImportantRWin::Raise_Soon() {
    if (std::exchange(raiseAsked, true))
        return;
    QTimer::singleShot(0, this, [this] {
        raiseAsked = false;
        if (!closed)
            platform::Windows::Get().Raise(winId(), platform::RaiseOver::All);
    });
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
    if (reminderOnView.Slot() == -1) {
        platform::Dialogs::Get().Message(u"The reminder shown in this window as deleted."_s,
                                         platform::BoxStyle::Exclamation);
        return;
    }
    const QPoint below = wbButton2->mapToGlobal(QPoint(0, wbButton2->height()));
    Global_OptionsMenu->Open_For_Window(*this, {below.x(), below.y()});
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
        const std::size_t slot = PendingList.front();
        PendingList.pop_front();
        Free_Entry();
        found = Take_Entry(slot);
    }
    // When the last one waiting has been deleted, the old text stays.
    Mark_Pending();
    if (found)
        Tell_ScreenReader();
}

bool frmImportantRWin::Take_Entry(std::size_t slot) {
    slotOnView = slot;
    const ReminderRef reminder = table.Come_OnView(slot, PendingCount());
    if (reminder.Slot() == -1)
        return false;
    const int formerBottom = y() + height();
    UpdateWindow(reminder);
    Stay_OnScreen(formerBottom);
    return true;
}

// The next reminder may have more or fewer buttons.
void frmImportantRWin::Stay_OnScreen(int formerBottom) {
    const int top = table.Reaches_Upward(*slotOnView) ? formerBottom - height() : y();
    const QRect screen = Screen_At(geometry().center());
    const int lowest = screen.bottom() + 1 - height();
    move(x(), std::max(std::min(top, lowest), screen.top()));
}

void frmImportantRWin::Free_Entry() {
    if (slotOnView)
        table.Free(*slotOnView);
    slotOnView.reset();
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

void Unload_ReminderWindows() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (qobject_cast<frmImportantRWin*>(window) != nullptr)
            delete window;
}
