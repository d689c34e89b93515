// The links menu as the rest of the house opens and closes it.
#pragma once

#include "links/menu/links_menu_v2.h"

#include <QRect>

#include <functional>

// What it tells the application.
struct LinksMenuPorts {
    std::function<void()> Gone;          // it has left the view: the toolbar's button comes up
    std::function<void()> FocusReturned; // one that held the keyboard focus hands it back
};

// At the start, once the timers stand: no menu is open, and the tree of the links is built.
void Init_LinksMenu(LinksMenuPorts ports);
// The links have changed: an open menu goes at once, and the next one shows them.
void Update_LinksMenu();
// Shows the menu at the toolbar (strip: its bounds, screen pixels); nothing when there is neither a
// link nor a category. Opened by keyboard it takes the focus.
void Open_LinksMenu(MenuOpenedBy how, const QRect& strip);
// Also while it fades out.
bool LinksMenu_Visible();
// At once, without a fade.
void Hide_LinksMenu();
// At the end, after the event loop.
void Unload_LinksMenu();

// The form of the top level; nullptr before it is first opened and after it was unloaded.
LinksMenuV2* Current_RootMenu();
