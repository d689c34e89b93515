#include "toolbar/container_menus.h"

#include "controls/metrics.h"
#include "controls/program_end.h"
#include "core/remind_again.h"
#include "delivery/important_rwin.h"
#include "delivery/message_queue.h"

#include <QMenu>

#include <optional>
#include <utility>

int Global_HideOptionAnswer = -1;

namespace {

template <class Offered>
void Add_Rows(QMenu& menu, std::span<const MenuRow> rows, const Offered& offered) {
    for (const MenuRow& row : rows) {
        if (row.Is_Separator()) {
            menu.addSeparator();
            continue;
        }
        QAction* action = menu.addAction(row.Caption.toString());
        action->setData(row.Number);
        action->setEnabled(offered(row.Number));
    }
}

// The choices of minutes, under their entry.
void Add_RemindAgain(QMenu& menu) {
    for (QAction* action : menu.actions()) {
        if (action->isSeparator() ||
            action->data().toInt() != static_cast<int>(OptionsItem::RemindAgain)) {
            continue;
        }
        auto* choices = new QMenu(&menu);
        choices->setFont(Small_Font());
        int number = static_cast<int>(OptionsItem::FirstRA);
        for (const std::int32_t minutes : Global_RA_Options) {
            choices->addAction(RA_Caption(minutes))->setData(number++);
        }
        const bool isEnabled = action->isEnabled();
        action->setMenu(choices);
        action->setEnabled(isEnabled);
    }
}

// The number of the entry picked; nothing without one, and when the program ended meanwhile.
std::optional<int> Ask(QMenu& menu, const QPoint& where) {
    menu.setFont(Small_Font());
    const QAction* picked = menu.exec(where);
    if (picked == nullptr || Program_Is_Ending()) {
        return std::nullopt;
    }
    return picked->data().toInt();
}

// The slot is used again by others once its message has ended.
bool Same_Message(int index, const ToolbarMessage& before) {
    if (index != Global_CurrentMessage ||
        index >= static_cast<int>(Global_ToolbarMessages.size())) {
        return false;
    }
    const ToolbarMessage& now = Global_ToolbarMessages[static_cast<std::size_t>(index)];
    return now.Active && now.ReminderID == before.ReminderID &&
           now.ReminderCategoryID == before.ReminderCategoryID;
}

} // namespace

frmContainer::frmContainer(MessageActions messageActions) : actions(std::move(messageActions)) {}

frmContainer::~frmContainer() = default;

void frmContainer::Serve_Windows(WindowActions actionsOfWindows) {
    windowActions = std::move(actionsOfWindows);
}

bool frmContainer::Offers(int item) const {
    const bool line = IsStandardReminder;
    switch (static_cast<OptionsItem>(item)) {
    case OptionsItem::Ok_GotIt:
        return line && actions.Ok;
    case OptionsItem::DisableForToday:
        return line ? bool(actions.DisableForToday) : bool(windowActions.DisableForToday);
    case OptionsItem::Disable:
        return line ? bool(actions.Disable) : bool(windowActions.Disable);
    case OptionsItem::RemindAgain:
        return !Global_RA_Options.empty() &&
               (line ? bool(actions.RemindAgain) : bool(windowActions.RemindAgain));
    default:
        return false;
    }
}

std::optional<int> frmContainer::Ask_Options(const QPoint& where) const {
    QMenu menu;
    const auto offered = [this](int item) { return Offers(item); };
    if (IsStandardReminder) {
        Add_Rows(menu, mnuOptions_SR_Only(), offered);
    }
    Add_Rows(menu, mnuOptions(), offered);
    Add_RemindAgain(menu);
    // Not once the menu has answered: another menu or box may be open by then.
    QObject::connect(&menu, &QMenu::aboutToHide, [] { Global_MessagePaused = false; });
    return Ask(menu, where);
}

void frmContainer::Popup_MessageOptions(const QPoint& where) {
    const int index = Global_CurrentMessage;
    if (index < 0 || index >= static_cast<int>(Global_ToolbarMessages.size())) {
        return;
    }
    IsStandardReminder = true;
    wReminderListI = index;
    const ToolbarMessage served = Global_ToolbarMessages[static_cast<std::size_t>(index)];
    Global_MessagePaused = true;
    const std::optional<int> picked = Ask_Options(where);
    if (picked && Same_Message(index, served)) {
        wReminderListI = index;
        mnuOptions_Click(*picked);
    }
}

void frmContainer::mnuOptions_Click(int item) const {
    const int option = item - static_cast<int>(OptionsItem::FirstRA);
    if (option >= 0) {
        actions.RemindAgain(wReminderListI, option);
    } else if (item == static_cast<int>(OptionsItem::Ok_GotIt)) {
        actions.Ok(wReminderListI);
    } else if (item == static_cast<int>(OptionsItem::DisableForToday)) {
        actions.DisableForToday(wReminderListI);
    } else if (item == static_cast<int>(OptionsItem::Disable)) {
        actions.Disable(wReminderListI);
    }
}

void frmContainer::Open_For_Window(frmImportantRWin& caller, std::int32_t reminderIndex,
                                   platform::Point place) {
    IsStandardReminder = false;
    wReminderListI = reminderIndex;
    CallerRWin = &caller;
    const QPointer<frmImportantRWin> served = CallerRWin;
    const std::pair reminder(caller.ThisReminderID, caller.ThisCategoryID);
    const std::optional<int> picked = Ask_Options(QPoint(place.x, place.y));
    // The window goes on to its next reminder, or closes, without asking the menu.
    if (!picked || !served || served->Is_Closed() ||
        reminder != std::pair(served->ThisReminderID, served->ThisCategoryID)) {
        return;
    }
    CallerRWin = served;
    Window_Click(*picked);
}

void frmContainer::Window_Click(int item) const {
    const int option = item - static_cast<int>(OptionsItem::FirstRA);
    if (option >= 0) {
        windowActions.RemindAgain(*CallerRWin, option);
    } else if (item == static_cast<int>(OptionsItem::DisableForToday)) {
        windowActions.DisableForToday(*CallerRWin);
    } else if (item == static_cast<int>(OptionsItem::Disable)) {
        windowActions.Disable(*CallerRWin);
    }
}

void frmContainer::Popup_HideOptions(const QPoint& where,
                                     const std::function<bool(HideOption)>& offered) {
    Global_HideOptionAnswer = -1;
    QMenu menu;
    Add_Rows(menu, mnuHideOptions(),
             [&offered](int number) { return offered(static_cast<HideOption>(number)); });
    Global_HideOptionAnswer = Ask(menu, where).value_or(-1);
}
