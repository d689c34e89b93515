// The tray icon that stands for the strip while that is hidden completely.
#pragma once

#include "platform/tray.h"

// What the icon was made of, kept for the whole run.
extern platform::TrayIcon Global_TrayData;

// Somewhere to put the icon is there now.
bool Tray_Is_Available();
void Tray_AddIcon(const platform::TrayIcon& icon);
// Nothing without an icon.
void Tray_RemoveIcon();
