#include "delivery/near_windows.h"

#include "controls/the_screen.h"
#include "delivery/important_rwin.h"
#include "platform/clock.h"

std::vector<NearWindowEntry> Global_NearWindows;

namespace {

class NearTable : public RWinTable {
public:
    ReminderRef Come_OnView(std::size_t slot, int waiting) override {
        NearWindowEntry& entry = Global_NearWindows[slot];
        entry.Waiting = waiting;
        entry.IsQueued = false;
        return entry.Reminder;
    }
    void Free(std::size_t slot) override {
        Global_NearWindows[slot].Used = false;
        Global_NearWindows[slot].WorkForm = nullptr;
    }
    bool Reaches_Upward(std::size_t slot) const override {
        return Global_NearWindows[slot].AlignBottom;
    }
};
NearTable nearTable;

} // namespace

void Init_NearWindows() {
    Global_NearWindows.assign(FirstEntries, NearWindowEntry());
}

void Show_NextToToolbar(const ReminderRef& due) {
    const ToolbarRect toolbar = Global_Toolbar->Bounds();
    const QRect screen = The_Screen();
    const NearPlacement placement = Place_NearWindow(
        Global_NearWindows, due, platform::Clock::Get().Milliseconds(), toolbar, screen);
    NearWindowEntry& entry = Global_NearWindows[placement.Entry];
    switch (placement.Decision) {
    case NearDecision::AlreadyShown:
        return;
    case NearDecision::Queued:
        Global_NearWindows[placement.Host].WorkForm->AddReminder(placement.Entry);
        return;
    case NearDecision::NewWindow:
        entry.WorkForm = new frmImportantRWin(nearTable, placement.Entry);
        entry.WorkForm->UpdateWindow(due);
        entry.WorkForm->move(placement.X,
                             NearWindow_Top(entry, toolbar, entry.WorkForm->height(), screen));
        entry.WorkForm->Show_Window();
        return;
    }
}
