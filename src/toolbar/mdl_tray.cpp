#include "toolbar/mdl_tray.h"

platform::TrayIcon Global_TrayData;

bool Tray_Is_Available() {
    return platform::Tray::Is_Provided() && platform::Tray::Get().Is_Available();
}

void Tray_AddIcon(const platform::TrayIcon& icon) {
    Global_TrayData = icon;
    platform::Tray::Get().Add_Icon(Global_TrayData);
}

void Tray_RemoveIcon() {
    if (platform::Tray::Is_Provided()) {
        platform::Tray::Get().Remove_Icon();
    }
}
