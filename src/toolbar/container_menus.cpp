#include "toolbar/container_menus.h"

#include "controls/metrics.h"
#include "controls/program_end.h"
#include "core/remind_again.h"
#include "delivery/important_rwin.h"
#include "delivery/message_menu.h"
#include "delivery/message_queue.h"

#include <QMenu>
#include <QPointer>

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
    return now.Active && now.Reminder == before.Reminder;
}

// What an entry of the options menu means, and which of the choices of minutes.
std::pair<ReminderAnswer, std::int32_t> Answer_Of(int item) {
    switch (static_cast<OptionsItem>(item)) {
    case OptionsItem::Ok_GotIt:
        return {ReminderAnswer::Ok, 0};
    case OptionsItem::DisableForToday:
        return {ReminderAnswer::DisableForToday, 0};
    case OptionsItem::Disable:
        return {ReminderAnswer::Disable, 0};
    default:
        return {ReminderAnswer::RemindAgain, item - static_cast<int>(OptionsItem::FirstRA)};
    }
}

bool Is_Offered(int item) {
    return item != static_cast<int>(OptionsItem::RemindAgain) || !Global_RA_Options.empty();
}

enum class Serves { Message, Window };

std::optional<int> Ask_Options(Serves whom, const QPoint& where) {
    QMenu menu;
    if (whom == Serves::Message) {
        Add_Rows(menu, mnuOptions_SR_Only(), Is_Offered);
    }
    Add_Rows(menu, mnuOptions(), Is_Offered);
    Add_RemindAgain(menu);
    // Not once the menu has answered: another menu or box may be open by then.
    QObject::connect(&menu, &QMenu::aboutToHide, [] { Global_MessagePaused = false; });
    return Ask(menu, where);
}

} // namespace

void frmContainer::Popup_MessageOptions(const QPoint& where) {
    const int index = Global_CurrentMessage;
    if (index < 0 || index >= static_cast<int>(Global_ToolbarMessages.size())) {
        return;
    }
    const ToolbarMessage served = Global_ToolbarMessages[static_cast<std::size_t>(index)];
    Global_MessagePaused = true;
    const std::optional<int> picked = Ask_Options(Serves::Message, where);
    if (picked && Same_Message(index, served)) {
        const auto [answer, option] = Answer_Of(*picked);
        Answer_Message(index, answer, option);
    }
}

void frmContainer::Open_For_Window(frmImportantRWin& caller, platform::Point place) {
    const QPointer<frmImportantRWin> window(&caller);
    const ReminderRef served = caller.Shown_Reminder();
    const std::optional<int> picked = Ask_Options(Serves::Window, QPoint(place.x, place.y));
    // The window goes on to its next reminder, or closes, without asking the menu.
    if (picked && window && !window->Is_Closed() && window->Shown_Reminder() == served) {
        const auto [answer, option] = Answer_Of(*picked);
        Answer_Window(*window, answer, option);
    }
}

void frmContainer::Popup_HideOptions(const QPoint& where) {
    Global_HideOptionAnswer = -1;
    QMenu menu;
    Add_Rows(menu, mnuHideOptions(), [](int) { return true; });
    Global_HideOptionAnswer = Ask(menu, where).value_or(-1);
}
