// What a reminder window asks of the program's menus. Implemented beside the toolbar's menus,
// handed out by the application.
#pragma once

#include "platform/desktop.h"

class frmImportantRWin;

class OptionsMenu {
public:
    virtual ~OptionsMenu() = default;
    // Opens mnuOptionsTop for the reminder that a window shows at a place of the screen (pixels),
    // without the entries that only a message on the line has. Returns when it has closed; events
    // are handled meanwhile, and the window may be gone then.
    virtual void Open_For_Window(frmImportantRWin& caller, platform::Point place) = 0;
};

extern OptionsMenu* Global_OptionsMenu;
