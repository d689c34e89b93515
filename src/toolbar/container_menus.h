// The owner of the program's popup menus: opens them, waits, and passes on what was picked. Events
// are handled while a menu is open, so the message it belongs to and the program itself can end
// meanwhile.
#pragma once

#include "delivery/options_menu.h"
#include "toolbar/menu_tables.h"

#include <QPoint>

// Index of the entry picked last in the close button's menu; -1 = none.
extern int Global_HideOptionAnswer;

class frmContainer : public OptionsMenu {
public:
    // The menu of the message on the line, which stands still meanwhile. Nothing when there is
    // none. where: screen pixels.
    void Popup_MessageOptions(const QPoint& where);
    void Open_For_Window(frmImportantRWin& caller, platform::Point place) override;
    // The menu of the close button; the answer stands in Global_HideOptionAnswer.
    void Popup_HideOptions(const QPoint& where);
};
