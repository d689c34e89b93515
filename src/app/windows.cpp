#include "app/windows.h"

#include "accessories/help/help.h"
#include "accessories/setup/setup.h"
#include "accessories/textbox/frm_textbox.h"
#include "controls/form.h"
#include "controls/help_topic.h"
#include "editors/list/reminder_edit.h"
#include "editors/wizard/frm_add_reminder_wizard.h"
#include "editors/wizard/frm_quick_add_reminder.h"
#include "links/editor/links_editor.h"
#include "links/menu/link_target.h"
#include "links/menu/links_menu.h"
#include "notes/frm_notes_editor.h"
#include "notes/open_note.h"
#include "toolbar/main_form.h"

#include <memory>

namespace {

// A menu that comes by the keyboard takes the focus. The button tells how it was pressed just
// before it clicks.
void Connect_LinksMenu(ToolbarCommands& commands, MainForm& toolbar) {
    const auto how = std::make_shared<MenuOpenedBy>(MenuOpenedBy::Keyboard);
    QObject::connect(toolbar.wbButton2, &wbButton::MouseUp, &toolbar,
                     [how] { *how = MenuOpenedBy::Mouse; });
    QObject::connect(toolbar.wbButton2, &wbButton::KeyPress, &toolbar,
                     [how] { *how = MenuOpenedBy::Keyboard; });
    commands.Connect(ToolbarCommand::Open_LinksMenu, [how, &toolbar] {
        const ToolbarRect strip = toolbar.Bounds();
        Open_LinksMenu(
            *how, QRect(QPoint(strip.Left, strip.Top), QPoint(strip.Right - 1, strip.Bottom - 1)));
        *how = MenuOpenedBy::Keyboard;
    });
}

} // namespace

void Connect_Windows(ToolbarCommands& commands, MainForm& toolbar) {
    const struct {
        ToolbarCommand Command;
        void (*Open)();
    } rows[] = {
        {ToolbarCommand::Add_Reminder, Show_AddReminderWizard},
        {ToolbarCommand::View_Reminders, Show_ReminderEdit},
        {ToolbarCommand::View_Notes, Show_NotesEditor},
        {ToolbarCommand::Toggle_Textbox, Toggle_Textbox},
        {ToolbarCommand::Open_Setup, Show_ProgramSetup},
    };
    for (const auto& row : rows)
        commands.Connect(row.Command, row.Open);
    Connect_LinksMenu(commands, toolbar);
    Global_LinkCommands = {Show_ReminderEdit, Show_LinksEditor,
                           Show_ProgramSetup, Show_NotesEditor,
                           Show_SetupWizard,  [] {
                               Show_HelpPage(help_page::Contents); }};
}

void Store_OpenEdits(WindowsAre windows) {
    Store_OpenNote();
    if (windows == WindowsAre::Gone) {
        Restore_RefusedPage();
        return;
    }
    Store_OpenPage();
    Store_OpenLinksPanel();
}

void Release_Windows() {
    Unload_LinksMenu();
    Release_Forms();
}
