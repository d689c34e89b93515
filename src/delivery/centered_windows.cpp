#include "delivery/centered_windows.h"

#include "controls/the_screen.h"
#include "delivery/important_rwin.h"
#include "platform/desktop.h"

#include <algorithm>

std::vector<CenterWindowEntry> Global_CenterWindows;

namespace {

class CenterTable : public RWinTable {
public:
    ReminderRef Come_OnView(std::size_t slot, int) override {
        return Global_CenterWindows[slot].Reminder;
    }
    void Free(std::size_t slot) override { Global_CenterWindows[slot] = {}; }
    bool Reaches_Upward(std::size_t) const override { return false; }
};
CenterTable centerTable;

frmImportantRWin* Open_Window() {
    const auto used = std::find_if(Global_CenterWindows.begin(), Global_CenterWindows.end(),
                                   [](const CenterWindowEntry& entry) { return entry.Used; });
    return used == Global_CenterWindows.end() ? nullptr : used->WorkForm;
}

} // namespace

void Init_CenterWindows() {
    Global_CenterWindows.assign(FirstEntries, CenterWindowEntry());
}

void Show_Centered(const ReminderRef& due) {
    frmImportantRWin* open = Open_Window();
    const std::optional<std::size_t> slot = Free_EntryFor(Global_CenterWindows, due);
    if (!slot)
        return;
    if (open != nullptr) {
        Global_CenterWindows[*slot] = {true, due, open};
        open->AddReminder(*slot);
        open->Raise_Soon();
        return;
    }
    if (due.Peek()->rs_Minimize_Apps)
        platform::Desktop::Get().Minimize_All();
    auto* window = new frmImportantRWin(centerTable, *slot);
    Global_CenterWindows[*slot] = {true, due, window};
    window->UpdateWindow(due);
    window->move(Centered_In(The_Screen(), window->size()));
    window->Show_Window();
}
