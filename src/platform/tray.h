// The icon that stands for the program in the desktop's tray while its toolbar is hidden.
#pragma once

#include "platform/service.h"

#include <QString>

#include <functional>
#include <vector>

namespace platform {

// An entry of the icon's menu; an empty caption is a separator.
struct TrayItem {
    QString Caption;
    bool Enabled = true;
};

struct TrayIcon {
    QString Picture; // a resource of the program: ":/icons/tockly.svg"
    QString Tip;
    std::vector<TrayItem> Menu;
    std::function<void()> On_LeftClick;
    std::function<void(int index)> On_Menu; // index into Menu
};

class Tray : public Service<Tray> {
public:
    // A host that shows icons is there now.
    virtual bool Is_Available() = 0;
    // Shows the icon; a host that comes later, or comes back, gets it too.
    virtual void Add_Icon(TrayIcon icon) = 0;
    virtual void Remove_Icon() = 0;
};

} // namespace platform
