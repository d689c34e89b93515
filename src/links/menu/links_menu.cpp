#include "links/menu/links_menu.h"

#include "controls/program_end.h"
#include "controls/the_screen.h"
#include "controls/timers.h"
#include "controls/unload_queue.h"
#include "links/menu/menu_placement.h"
#include "links/store/links_data.h"

#include <utility>

namespace {

struct LinksMenu {
    LinksMenuPorts Ports;
    MenuLevels Levels; // of the tree as it stands
    QPointer<LinksMenuV2> Root;
};
LinksMenu menu;

// Stops itself; what the root menu led to must not outlive it.
void Win98HideForms_Tick() {
    Global_Timers->Enable(TimerName::Win98HideForms, false);
    if (menu.Root)
        menu.Root->ChidForm_HideAllChilds();
}

// One of its handlers may be running.
void Release_OldMenu() {
    if (!menu.Root)
        return;
    const QPointer<LinksMenuV2> old = std::exchange(menu.Root, nullptr);
    std::erase(Global_PendingUnloads, old);
    old->HideForm();
    if (old)
        old->deleteLater();
}

bool Has_Rows() {
    return Global_LinksRoot->Get_TotalLinks() != -1 ||
           Global_LinksRoot->Get_TotalCategories() != -1;
}

} // namespace

void Init_LinksMenu(LinksMenuPorts ports) {
    menu = {std::move(ports), {}, {}};
    Load_Global_LinksArray();
    Global_Timers->On_Tick(TimerName::Win98HideForms, Win98HideForms_Tick);
}

void Update_LinksMenu() {
    Load_Global_LinksArray();
    Release_OldMenu();
    menu.Levels = {};
}

void Open_LinksMenu(MenuOpenedBy how, const QRect& strip) {
    if (!Has_Rows() || Program_Is_Ending())
        return;
    if (Global_Timers->Is_Enabled(TimerName::UnloadFormsTimer))
        UnloadFormsTimer_Tick();
    Release_OldMenu();
    menu.Root = new LinksMenuV2(how, strip, menu.Levels);
    QObject::connect(menu.Root, &LinksMenuV2::Menu_Gone, [] { menu.Ports.Gone(); });
    QObject::connect(menu.Root, &LinksMenuV2::Focus_Returned, [] { menu.Ports.FocusReturned(); });
    // A button pressed on the toolbar, and AutoHide, send away what stands in this list.
    Global_PendingUnloads.emplace_back(menu.Root);
    menu.Root->LoadLinksData(Global_LinksRoot);
    menu.Root->move(Place_RootMenu(strip, menu.Root->Level_Size(), Screen_At(strip.center())));
    menu.Root->ShowForm();
}

bool LinksMenu_Visible() {
    return menu.Root && menu.Root->isVisible();
}

void Hide_LinksMenu() {
    if (menu.Root)
        menu.Root->HideForm();
}

void Unload_LinksMenu() {
    menu.Ports = {[] {}, [] {}}; // nobody is there to hear of it
    Global_Timers->On_Tick(TimerName::Win98HideForms, {});
    delete menu.Root.data();
    menu.Levels = {};
}

LinksMenuV2* Current_RootMenu() {
    return menu.Root;
}
