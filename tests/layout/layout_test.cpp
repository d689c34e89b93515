// Every window and page of the program, looked at for texts that are cut and controls that overlap.
// It runs with the program's own face and with a wider one, and at two scales.
#include "accessories/help/help.h"
#include "accessories/setup/setup.h"
#include "accessories/textbox/frm_textbox.h"
#include "app/application.h"
#include "controls/chk_box.h"
#include "controls/cool_tab.h"
#include "controls/frm_tooltip.h"
#include "controls/metrics.h"
#include "controls/program_look.h"
#include "controls/tooltip_texts.h"
#include "controls/wb_button.h"
#include "core/reminder_store.h"
#include "delivery/centered_windows.h"
#include "delivery/frm_missed_reminders.h"
#include "delivery/message_queue.h"
#include "delivery/missed_reminders.h"
#include "delivery/near_windows.h"
#include "editors/list/card_list.h"
#include "editors/list/frm_reminder_edit.h"
#include "editors/list/reminder_edit.h"
#include "editors/pages/page_controls.h"
#include "editors/wizard/frm_add_reminder_wizard.h"
#include "editors/wizard/frm_quick_add_reminder.h"
#include "example_reminders.h"
#include "layout/layout_faults.h"
#include "links/editor/frm_links_edit.h"
#include "links/editor/links_editor.h"
#include "links/menu/links_menu.h"
#include "notes/frm_notes_editor.h"
#include "settings/global_settings.h"
#include "support/fake_system.h"
#include "support/form_driver.h"
#include "toolbar/main_form.h"

#include <QApplication>
#include <QFontInfo>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Layout : public testing::Test {
protected:
    Layout() {
        const QString shipped = system.paths.Shipped_Folder();
        QFile::copy(TOCKLY_SHIPPED "/tooltips.txt"_L1, shipped + "/tooltips.txt"_L1);
        Init_Reminders();
        Fill_ExampleReminders();
        Save_Reminders(shipped + "/examplereminders.dat"_L1);
        Global_UseTransparency = false;
        EXPECT_TRUE(program.Load());
    }
    // Looks at all windows that are open.
    void Look(const QString& where) {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (!window->isVisible())
                continue;
            QCoreApplication::sendPostedEvents();
            for (const QString& fault : Layout_Faults(window)) {
                if (!known.contains(fault))
                    ADD_FAILURE() << qPrintable(where) << ": " << qPrintable(fault);
                known.append(fault);
            }
        }
    }
    static wbButton* Button(const QString& caption) {
        for (QWidget* window : QApplication::topLevelWidgets())
            for (auto* button : window->findChildren<wbButton*>())
                if (button->isVisible() &&
                    (button->Caption().trimmed() == caption || button->accessibleName() == caption))
                    return button;
        ADD_FAILURE() << "no button " << qPrintable(caption);
        return nullptr;
    }
    static void Press(const QString& caption) {
        if (wbButton* button = Button(caption))
            QTest::mouseClick(button, Qt::LeftButton);
    }
    template <class T>
    static T* Window() {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* found = qobject_cast<T*>(window); found != nullptr && found->isVisible())
                return found;
        ADD_FAILURE() << "the window did not open";
        return nullptr;
    }

    FakeSystem system;
    Application program;
    QStringList known;
};

TEST_F(Layout, Nothing_is_cut_and_nothing_overlaps_in_the_wizard) {
    Show_AddReminderWizard();
    const QString types[] = {u"Exact date:"_s,  u"Every day:"_s,    u"Weekday:"_s,
                             u"Every month:"_s, u"Every X days:"_s, u"Birthday:"_s};
    const auto Tick = [](const QString& box) {
        if (!Find<ChkBox>(box)->Is_Ticked())
            Find<ChkBox>(box)->Toggle();
    };
    for (const QString& type : types) {
        SCOPED_TRACE(type.toStdString());
        Find<QRadioButton>(type)->click();
        for (int page = 0; page < WizardPageCount; ++page) {
            Look(u"type %1, page %2"_s.arg(type).arg(page));
            if (page == int(WizardPage::Date) && type == u"Weekday:"_s)
                Tick(u"Wednesday"_s);
            if (page == int(WizardPage::Time))
                Tick(u"At time 2"_s);
            if (page == int(WizardPage::DisplayMode))
                for (const QString& mode : {u"Very important:"_s, u"Important:"_s, u"Normal:"_s}) {
                    Find<QRadioButton>(mode)->click();
                    Look(u"display mode"_s);
                }
            if (page == int(WizardPage::Message))
                Find<QPlainTextEdit>(u"Reminder message"_s)->setPlainText(u"Pay the rent"_s);
            if (page + 1 < WizardPageCount)
                Press(u"Next >"_s);
        }
        for (int page = 1; page < WizardPageCount; ++page)
            Press(u"< Previous"_s);
    }
}

TEST_F(Layout, Nothing_is_cut_and_nothing_overlaps_in_the_list_window) {
    Show_ReminderEdit();
    Press(u"Run"_s);
    Look(u"a word"_s);
    frmReminderEdit* list = Open_ReminderEdit();
    Look(u"no selection"_s);
    auto* tabs = list->findChild<CoolTab*>();
    list->SelectReminder_Using_ListRow(0);
    for (int page = 0; page < tabs->TabCount(); ++page) {
        tabs->Choose(page);
        Look(u"page %1"_s.arg(page));
        if (page == 1 && !list->findChildren<TimeField*>().isEmpty()) {
            for (TimeField* field : list->findChildren<TimeField*>())
                if (field->isVisible() && field->isEnabled()) {
                    QTest::mouseClick(field, Qt::LeftButton);
                    break;
                }
            Look(u"clock"_s);
        }
    }
    tabs->Choose(2);
    Press(u"Edit function of button 1"_s);
    Look(u"function editor"_s);
    Global_Reminders[0].Reminder->rs_DisabledForToday = Read_Moment().Today;
    list->UpdateReminderView();
    Look(u"disabled for today"_s);
}

TEST_F(Layout, Nothing_is_cut_and_nothing_overlaps_in_the_other_editors) {
    Show_QuickAdd();
    Look(u"quick add"_s);
    Click_On<wbButton>(u"Open calendar..."_s);
    Look(u"calendar"_s);
    Show_NotesEditor();
    Look(u"notes"_s);
    Show_LinksEditor();
    Look(u"links"_s);
    Press(u"Add link"_s);
    Look(u"a link"_s);
}

TEST_F(Layout, Nothing_is_cut_and_nothing_overlaps_in_setup_and_accessories) {
    Show_ProgramSetup();
    Look(u"setup"_s);
    Toggle_Textbox();
    Look(u"text box"_s);
    Show_HelpPage(u"toolbar.html"_s);
    Look(u"help"_s);
    Show_SetupWizard();
    for (int page = 0; page < 6; ++page) {
        Look(u"setup wizard, page %1"_s.arg(page));
        if (page < 5)
            Press(u"Next >"_s);
    }
}

TEST_F(Layout, Nothing_is_cut_and_nothing_overlaps_in_what_is_delivered) {
    Global_Timers->Tick(TimerName::R_CheckDate_Timer);
    Global_Timers->Tick(TimerName::S_Reminder_Timer);
    Look(u"toolbar"_s);
    const auto add = [](ReminderType type) {
        const auto slot = static_cast<std::int32_t>(Global_Reminders.size());
        Global_Reminders.emplace_back();
        Global_Reminders.back().Used = true;
        Global_Reminders.back().Reminder = std::make_unique<ReminderClass>();
        ReminderClass& reminder = *Global_Reminders.back().Reminder;
        reminder.SetDefaultValues();
        reminder.rs_ID = slot;
        reminder.rs_Text = u"Pay the rent\r\nand the gas"_s;
        reminder.rs_Reminder_Type = type;
        for (int k = 0; k < ReminderClass::FunctionCount; ++k)
            reminder.SetFuncion(
                k, {true, FunctionType::OpenPage, 0, u"http://www.example.com"_s, u"Open page"_s});
        return slot;
    };
    Show_NextToToolbar(ReminderRef::Of_Slot(add(ReminderType::NextToToolbar)));
    Show_Centered(ReminderRef::Of_Slot(add(ReminderType::Centered)));
    Look(u"reminder windows"_s);
    for (const TooltipText& text : Global_Tooltips) {
        The_frmTooltip().Set_Title(text.Title);
        The_frmTooltip().Set_Text_and_Size(text.Text, 300);
        The_frmTooltip().show();
        Look(u"tooltip"_s);
    }
    frmMissedReminders missed;
    missed.Fill_List({{u"02/03/2026: Pay the rent"_s, {}, 9000}});
    missed.Place_Window();
    missed.show();
    Look(u"missed reminders"_s);
    Open_LinksMenu(MenuOpenedBy::Keyboard, {0, 0, 300, 20});
    Look(u"links menu"_s);
    Hide_LinksMenu();
}

} // namespace

int main(int argc, char** argv) {
    QApplication toolkit(argc, argv);
    Set_ProgramLook();
    QApplication::setQuitOnLastWindowClosed(false);
    testing::InitGoogleTest(&argc, argv);
    // A case with another face than it says would prove nothing.
    const QString face = qEnvironmentVariable("TOCKLY_TEST_FACE");
    if (!face.isEmpty() && QFontInfo(Small_Font()).family() != face) {
        qCritical("The face is %s", qPrintable(QFontInfo(Small_Font()).family()));
        return 1;
    }
    return RUN_ALL_TESTS();
}
