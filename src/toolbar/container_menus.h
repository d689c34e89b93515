// The owner of the program's popup menus: opens them, waits, and passes on what was picked. Events
// are handled while a menu is open, so the message it belongs to and the program itself can end
// meanwhile.
#pragma once

#include "delivery/options_menu.h"
#include "toolbar/menu_tables.h"
#include "toolbar/toolbar_commands.h"

#include <QPoint>
#include <QPointer>

#include <functional>
#include <optional>

class QMenu;

// Index of the entry picked last in the close button's menu; -1 = none.
extern int Global_HideOptionAnswer;

class frmContainer : public OptionsMenu {
public:
    explicit frmContainer(MessageActions messageActions);
    ~frmContainer() override;

    void Serve_Windows(WindowActions actionsOfWindows);

    // The menu of the message on the line, which stands still meanwhile. Nothing when there is
    // none. where: screen pixels.
    void Popup_MessageOptions(const QPoint& where);
    void Open_For_Window(frmImportantRWin& caller, std::int32_t reminderIndex,
                         platform::Point place) override;
    // The menu of the close button; the answer stands in Global_HideOptionAnswer.
    void Popup_HideOptions(const QPoint& where, const std::function<bool(HideOption)>& offered);

    // The window that opened the options menu.
    QPointer<frmImportantRWin> CallerRWin;
    // Index of the message, or of the reminder, that the options menu serves.
    int wReminderListI = -1;
    // The menu serves the message line.
    bool IsStandardReminder = false;

private:
    bool Offers(int item) const;
    std::optional<int> Ask_Options(const QPoint& where) const;
    void mnuOptions_Click(int item) const;
    void Window_Click(int item) const;

    MessageActions actions;
    WindowActions windowActions;
};
