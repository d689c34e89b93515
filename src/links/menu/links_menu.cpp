#include "links/menu/links_menu.h"

#include "controls/program_end.h"
#include "controls/the_screen.h"
#include "controls/timers.h"
#include "controls/unload_queue.h"
#include "links/menu/menu_placement.h"
#include "links/store/links_data.h"

#include <utility>

namespace {

QPointer<LinksMenuV2> rootMenu;
std::function<void()> menuGone;
std::function<void()> focusReturned;

// Stops itself; what the root menu led to must not outlive it.
void Win98HideForms_Tick() {
    Global_Timers->Enable(TimerName::Win98HideForms, false);
    if (rootMenu)
        rootMenu->ChidForm_HideAllChilds();
}

// One of its handlers may be running.
void Release_OldMenu() {
    if (!rootMenu)
        return;
    const QPointer<LinksMenuV2> old = std::exchange(rootMenu, nullptr);
    std::erase(Global_PendingUnloads, old);
    old->HideForm();
    if (old)
        old->deleteLater();
}

void Take_NewTree() {
    Release_OldMenu();
    Forget_MenuLevels();
}

void Tell_MenuGone() {
    // What is told may register another.
    const auto gone = menuGone;
    if (gone)
        gone();
}

void Tell_FocusReturned() {
    if (focusReturned)
        focusReturned();
}

bool Has_Rows() {
    return Global_LinksRoot && (Global_LinksRoot->Get_TotalLinks() != -1 ||
                                Global_LinksRoot->Get_TotalCategories() != -1);
}

} // namespace

void Init_LinksMenu(std::function<void()> gone, std::function<void()> returned) {
    menuGone = std::move(gone);
    focusReturned = std::move(returned);
    On_LinksTree_Changed(Take_NewTree);
    if (Global_Timers != nullptr)
        Global_Timers->On_Tick(TimerName::Win98HideForms, Win98HideForms_Tick);
}

void Open_LinksMenu(MenuOpenedBy how, const QRect& strip) {
    if (!Has_Rows() || Program_Is_Ending())
        return;
    if (Global_Timers != nullptr && Global_Timers->Is_Enabled(TimerName::UnloadFormsTimer))
        UnloadFormsTimer_Tick();
    Release_OldMenu();
    rootMenu = new LinksMenuV2(how, strip);
    QObject::connect(rootMenu, &LinksMenuV2::Menu_Gone, Tell_MenuGone);
    QObject::connect(rootMenu, &LinksMenuV2::Focus_Returned, Tell_FocusReturned);
    // A button pressed on the toolbar, and AutoHide, send away what stands in this list.
    Global_PendingUnloads.emplace_back(rootMenu);
    rootMenu->LoadLinksData(Global_LinksRoot);
    rootMenu->move(Place_RootMenu(strip, rootMenu->Level_Size(), Screen_At(strip.center())));
    rootMenu->ShowForm();
}

bool LinksMenu_Visible() {
    return rootMenu && rootMenu->isVisible();
}

void Hide_LinksMenu() {
    if (rootMenu)
        rootMenu->HideForm();
}

void Unload_LinksMenu() {
    On_LinksTree_Changed({});
    menuGone = {};
    focusReturned = {};
    if (Global_Timers != nullptr)
        Global_Timers->On_Tick(TimerName::Win98HideForms, {});
    delete rootMenu.data();
    Forget_MenuLevels();
}

LinksMenuV2* Current_RootMenu() {
    return rootMenu;
}
