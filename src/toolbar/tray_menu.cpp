#include "toolbar/tray_menu.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace {

std::optional<ToolbarCommand> Command_Of(TrayItem item) {
    switch (item) {
    case TrayItem::Add_Reminder:
        return ToolbarCommand::Add_Reminder;
    case TrayItem::View_Reminders:
        return ToolbarCommand::View_Reminders;
    case TrayItem::View_Notes:
        return ToolbarCommand::View_Notes;
    case TrayItem::Setup:
        return ToolbarCommand::Open_Setup;
    case TrayItem::Exit:
        return ToolbarCommand::Unload;
    case TrayItem::Show_Toolbar:
        break;
    }
    return std::nullopt;
}

} // namespace

platform::TrayIcon Make_TrayIcon(ToolbarCommands& commands, Toolbar& toolbar) {
    platform::TrayIcon icon;
    icon.Picture = u":/icons/program.svg"_s;
    icon.Tip = u"Tockly"_s;
    for (const MenuRow& row : mnuTrayIcon()) {
        const auto command = Command_Of(static_cast<TrayItem>(row.Number));
        icon.Menu.push_back({row.Is_Separator() ? QString() : row.Caption.toString(),
                             !command || commands.Has(*command)});
    }
    icon.On_LeftClick = [&toolbar] { toolbar.AutoHide_ShowProc(false); };
    icon.On_Menu = [&commands, &toolbar](int index) {
        mnuTrayIcon_Click(static_cast<TrayItem>(index), commands, toolbar);
    };
    return icon;
}

void mnuTrayIcon_Click(TrayItem item, ToolbarCommands& commands, Toolbar& toolbar) {
    if (item != TrayItem::Exit) {
        toolbar.AutoHide_ShowProc(true);
    }
    if (const auto command = Command_Of(item)) {
        commands.Run(*command);
    }
}
