// The strip's icon in the tray, with PopmnuTrayIcon as its menu.
#pragma once

#include "controls/toolbar.h"
#include "platform/tray.h"
#include "toolbar/menu_tables.h"
#include "toolbar/toolbar_commands.h"

// A left click on the icon shows the strip. Both arguments outlive the icon.
platform::TrayIcon Make_TrayIcon(ToolbarCommands& commands, Toolbar& toolbar);
// Every entry but Exit brings the strip back first.
void mnuTrayIcon_Click(TrayItem item, ToolbarCommands& commands, Toolbar& toolbar);
