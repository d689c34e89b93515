#include "delivery/show_windows.h"

#include "controls/the_screen.h"
#include "controls/toolbar.h"
#include "core/reminder_store.h"
#include "delivery/important_rwin.h"
#include "delivery/near_placement.h"
#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/window.h"

#include <QApplication>
#include <QPointer>
#include <QTimer>

namespace {

QPointer<frmImportantRWin> centeredWindow;

WindowRequest Request_For(std::int32_t index) {
    const ReminderClass& reminder =
        Global_Reminders[static_cast<std::size_t>(index)].Reminder.Peek();
    return {index, reminder.rs_ID, reminder.rs_ID2, platform::Clock::Get().Milliseconds()};
}

// Once for all reminders of a moment: each asking takes a way to the window system and back.
void Raise_Soon(frmImportantRWin* window) {
    static QPointer<frmImportantRWin> asked;
    if (asked == window)
        return;
    asked = window;
    QTimer::singleShot(0, window, [window] {
        asked.clear();
        if (!window->Is_Closed())
            platform::Windows::Get().Raise(window->winId(), platform::RaiseOver::All);
    });
}

} // namespace

void Show_NextToToolbar(std::int32_t index) {
    const WindowRequest request = Request_For(index);
    const ToolbarRect toolbar = Global_Toolbar->Bounds();
    const QRect screen = The_Screen();
    const NearPlacement placement = Place_NearWindow(Global_NearWindows, request, toolbar, screen);
    if (placement.Decision == NearDecision::AlreadyShown)
        return;
    const auto slot = static_cast<std::int32_t>(placement.Entry);
    if (placement.Decision == NearDecision::Queued) {
        if (frmImportantRWin* host = Global_NearWindows[placement.Host].WorkForm)
            host->AddReminder(slot);
        return;
    }
    auto* window = new frmImportantRWin;
    window->UpdateWindow(index);
    NearWindowEntry& entry = Global_NearWindows[placement.Entry];
    entry.WorkForm = window;
    window->ListIndex = slot;
    window->move(placement.X, NearWindow_Top(entry, toolbar, window->height(), screen));
    window->Show_Window();
}

void Show_Centered(std::int32_t index, OtherApplications others) {
    const std::int32_t slot = Take_CenterEntry(Global_CenterWindows, Request_For(index));
    if (slot == -1)
        return;
    if (centeredWindow && !centeredWindow->Is_Closed()) {
        centeredWindow->AddReminder(slot);
        Raise_Soon(centeredWindow);
        return;
    }
    if (others == OtherApplications::Minimize)
        platform::Desktop::Get().Minimize_All();
    centeredWindow = new frmImportantRWin;
    centeredWindow->IsCenteredWindow = true;
    centeredWindow->ListIndex = slot;
    centeredWindow->UpdateWindow(index);
    centeredWindow->move(Centered_Place(The_Screen(), centeredWindow->size()));
    centeredWindow->Show_Window();
}

void Unload_ReminderWindows() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (qobject_cast<frmImportantRWin*>(window) != nullptr)
            delete window;
}
