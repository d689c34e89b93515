// The program's load and end, with every service of the system replaced.
#include "accessories/setup/setup.h"
#include "accessories/textbox/frm_textbox.h"
#include "app/app_message.h"
#include "app/application.h"
#include "app/program.h"
#include "controls/program_end.h"
#include "controls/tooltip_picture.h"
#include "core/reminder_store.h"
#include "delivery/message_queue.h"
#include "editors/list/reminder_edit.h"
#include "editors/wizard/frm_add_reminder_wizard.h"
#include "editors/wizard/frm_quick_add_reminder.h"
#include "example_reminders.h"
#include "links/editor/links_editor.h"
#include "links/menu/links_menu.h"
#include "links/store/link_rec.h"
#include "notes/frm_notes_editor.h"
#include "notes/notes_store.h"
#include "notes/open_note.h"
#include "settings/account.h"
#include "settings/global_settings.h"
#include "support/fake_system.h"
#include "toolbar/main_form.h"

#include <QDialog>
#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Program : public testing::Test {
protected:
    Program() { Put(system.paths.Shipped_Folder() + "/tooltips.txt"_L1, "[0] Help\r\nText"); }
    QString Home() { return system.paths.Program_Folder(); }
    QString Reminders() { return Home() + "/User-1/reminders.dat"_L1; }
    static std::string Bytes(const QString& path) {
        return platform::Files::Get().Read(path).value_or("(none)");
    }
    void Put(const QString& path, const std::string& bytes) {
        QDir().mkpath(QFileInfo(path).path());
        ASSERT_TRUE(system.files.Replace(path, bytes));
        system.files.replaced.clear();
    }
    // Names of the account's files in the order in which they were replaced.
    std::string Saved() const {
        QStringList names;
        for (const QString& path : system.files.replaced) {
            names.append(QFileInfo(path).fileName());
        }
        return names.join(u' ').toStdString();
    }
    void Ship_Examples() {
        Init_Reminders();
        Fill_ExampleReminders();
        ASSERT_TRUE(Save_Reminders(system.paths.Shipped_Folder() + "/examplereminders.dat"_L1));
        system.files.replaced.clear();
    }
    std::uint32_t Number(platform::RegistryRoot root, const QString& name) {
        const auto value = system.registry.Read(root, u"Software\\Tockly"_s, name);
        return value ? value->number : 0xDEAD;
    }

    FakeSystem system;
};

const std::string Empty_Table("RSaveFile001\0\0\0\0", 16);

TEST_F(Program, A_First_Start_Makes_An_Account_With_The_Examples_And_Greets_At_The_First_Tick) {
    Ship_Examples();
    for (const auto& time : {std::array{2026, 3, 2, 9}, std::array{2027, 12, 31, 23},
                             std::array{2096, 2, 29, 0}, std::array{2031, 1, 1, 18}}) {
        SCOPED_TRACE(time[0]);
        system.clock.Set(time[0], time[1], time[2], time[3], 30);
        Application program;
        ASSERT_TRUE(program.Load());
        EXPECT_EQ(QFileInfo(Home() + "/User-1/Ada"_L1).size(), 0);
        EXPECT_EQ(program.Main_Form()->Live_Bounds(), (TwipsRect{7102, 0, 4995, 300}));

        std::vector<std::int32_t> identities;
        for (const auto& slot : Global_Reminders) {
            if (slot.Used) {
                identities.push_back(slot.Reminder->rs_ID);
                const Moment now = Read_Moment();
                // As a start looks for what was missed.
                if (slot.Reminder->rs_Enabled) {
                    EXPECT_FALSE(slot.Reminder->Engine_CheckDate(now) &&
                                 slot.Reminder->Check_ReminderWasMissedToday(now));
                    EXPECT_LE(slot.Reminder->GetPrevious_RunDate(now),
                              slot.Reminder->rs_LastExecutedDate);
                }
            }
        }
        EXPECT_EQ(identities, (std::vector{0, 1, 2, 3, 4}));
        Global_Timers->Tick(TimerName::R_CheckDate_Timer);
        Global_Timers->Tick(TimerName::S_Reminder_Timer);
        ASSERT_EQ(Global_CurrentMessage, 0);
        EXPECT_TRUE(Global_ToolbarMessages[0].Text.startsWith("Welcome to Tockly!"_L1));
    }
}

TEST_F(Program, What_Was_Loaded_Is_Saved_In_Order_And_Once) {
    Put(Reminders(), Empty_Table);
    Application program;
    ASSERT_TRUE(program.Load());
    EXPECT_EQ(Bytes(Home() + "/User-1/reminders.bak"_L1), Empty_Table);
    system.files.replaced.clear();

    program.Unload();
    program.End(platform::EndReason::Asked);
    program.End(platform::EndReason::NoDisplay);
    EXPECT_EQ(Saved(), "reminders.dat rareminders.dat links.dat notes.dat rcategories.txt");
    EXPECT_TRUE(system.instance.ending);
    EXPECT_EQ(Number(platform::RegistryRoot::CurrentUser, u"Global_CurID"_s), 1U);
    EXPECT_EQ(Number(platform::RegistryRoot::CurrentUser, u"First Time"_s), 0U);
    EXPECT_EQ(Number(platform::RegistryRoot::CurrentUser, u"Global_Config_MainForm_Width"_s),
              4995U);
    EXPECT_EQ(Number(platform::RegistryRoot::LocalMachine, u"Global_MaxAccountID"_s), 2U);
}

TEST_F(Program, A_Second_User_Gets_The_Next_Account_And_The_First_Ones_Data_Stays) {
    ASSERT_TRUE(
        system.registry.Create_Key(platform::RegistryRoot::LocalMachine, u"Software\\Tockly"_s));
    ASSERT_TRUE(system.registry.Write(platform::RegistryRoot::LocalMachine, u"Software\\Tockly"_s,
                                      u"Global_MaxAccountID"_s,
                                      {platform::RegistryType::DWord, {}, {}, 2}));
    Put(Reminders(), "the first user's");
    Application program;
    ASSERT_TRUE(program.Load());
    program.Unload();
    EXPECT_EQ(Global_UserPath, Home() + "/User-2"_L1);
    EXPECT_EQ(Bytes(Home() + "/User-2/reminders.dat"_L1), Empty_Table);
    EXPECT_EQ(Bytes(Reminders()), "the first user's");
}

TEST_F(Program, A_Marker_Never_Empties_A_Data_File) {
    system.session.userName = u"Reminders.DAT"_s;
    Put(Home() + "/User-1/Reminders.DAT"_L1, "precious");
    Open_Account(Home(), 1);
    EXPECT_EQ(Bytes(Home() + "/User-1/Reminders.DAT"_L1), "precious");
}

TEST_F(Program, A_Damaged_File_Is_Told_Of) {
    struct Case {
        std::string bytes;
        QString line;
    };
    for (const Case& test : {Case{"RSaveFile001\x01", u"Invalid file"_s},
                             Case{"RSaveFile009", u"Version not supported"_s}}) {
        Put(Reminders(), test.bytes);
        system.dialogs.Expect_Message(u"Error loading reminders configuration:\r\n"_s + test.line,
                                      platform::BoxStyle::Critical);
        Application program;
        ASSERT_TRUE(program.Load());
        EXPECT_EQ(system.dialogs.shown.back().style, platform::BoxStyle::Critical);
        program.Unload();
        EXPECT_EQ(Bytes(Reminders()), Empty_Table);
    }
}

TEST_F(Program, The_End_During_A_Box_Of_The_Load_Saves_Nothing) {
    Put(Reminders(), "nonsense");
    system.dialogs.Expect_Message(u"Error loading reminders configuration:\r\nInvalid file"_s,
                                  platform::BoxStyle::Critical);
    Application program;
    system.dialogs.whileOpen = [&](const auto&) { program.End(platform::EndReason::Asked); };
    EXPECT_FALSE(program.Load());
    EXPECT_TRUE(system.files.replaced.filter(u".dat"_s).isEmpty());
    EXPECT_EQ(Bytes(Reminders()), "nonsense");
    EXPECT_FALSE(program.Main_Form()->isVisible());
}

TEST_F(Program, A_Failed_Save_Is_Said_To_The_User_After_All_Saves_But_Not_To_The_Session) {
    for (const bool byUser : {true, false}) {
        Application program;
        ASSERT_TRUE(program.Load());
        system.files.refusedWrites = {u"/reminders.dat"_s};
        system.files.replaced.clear();
        std::string savedBefore;
        system.dialogs.whileOpen = [&](const auto&) { savedBefore = Saved(); };
        if (byUser) {
            system.dialogs.Expect_Message(u"Error saving reminders"_s,
                                          platform::BoxStyle::Critical);
            program.Unload();
            EXPECT_EQ(savedBefore, "rareminders.dat links.dat notes.dat rcategories.txt");
        } else {
            program.End(platform::EndReason::Asked);
            EXPECT_EQ(Saved(), "rareminders.dat links.dat notes.dat rcategories.txt");
        }
        EXPECT_EQ(Number(platform::RegistryRoot::CurrentUser, u"First Time"_s), 0U);
    }
}

TEST_F(Program, A_Box_At_The_End_Goes_When_The_Session_Ends) {
    Application program;
    ASSERT_TRUE(program.Load());
    system.files.refusedWrites = {u"/reminders.dat"_s};
    system.dialogs.Expect_Message(u"Error saving reminders"_s, platform::BoxStyle::Critical);
    system.dialogs.whileOpen = [&](const auto&) { program.End(platform::EndReason::Asked); };
    program.Unload();
    EXPECT_TRUE(system.dialogs.dismissed);
}

TEST_F(Program, A_Later_Launch_Brings_A_Visible_Toolbar_Forward_And_Sends_Show_To_A_Hidden_One) {
    Application program;
    ASSERT_TRUE(program.Load());
    program.Show_Again();
    const auto window = program.Main_Form()->winId();
    EXPECT_EQ(system.windows.windows[window].activations, 1);
    EXPECT_EQ(Global_AppMessage.Pending, 0);

    program.Main_Form()->hide();
    Clear_AppMessage();
    Global_Timers->Tick(TimerName::TK_AppMessage_Timer);
    EXPECT_FALSE(program.Main_Form()->isVisible()) << "nothing came yet";
    {
        QDialog box;
        box.setModal(true);
        box.show();
        program.Show_Again(); // the box first, and the strip after it
        EXPECT_EQ(system.windows.windows[box.winId()].activations, 1);
    }
    EXPECT_TRUE(Global_Timers->Is_Enabled(TimerName::TK_AppMessage_Timer));
    Global_Timers->Tick(TimerName::TK_AppMessage_Timer);
    EXPECT_FALSE(Global_Timers->Is_Enabled(TimerName::TK_AppMessage_Timer));
    EXPECT_EQ(system.desktop.beeps, 1);
    EXPECT_TRUE(program.Main_Form()->isVisible());
    Clear_AppMessage();
}

TEST_F(Program, Links_And_Notes_That_Cannot_Be_Read_Are_Told_Of_And_What_Comes_First_Stands_In) {
    Put(Home() + "/User-1/links.dat"_L1, "LinksSaveFile002");
    Put(Home() + "/User-1/notes.dat"_L1, "nonsense");
    QFile::remove(system.paths.Shipped_Folder() + "/tooltips.txt"_L1);
    system.dialogs.Expect_Message(u"Error loading tooltips"_s, platform::BoxStyle::Critical);
    system.dialogs.Expect_Message(u"Error loading links (file version not supported)"_s,
                                  platform::BoxStyle::Critical);
    system.dialogs.Expect_Message(u"Error loading notes"_s, platform::BoxStyle::Critical);
    Application program;
    ASSERT_TRUE(program.Load());
    EXPECT_FALSE(Global_TooltipsLoaded);
    EXPECT_EQ(Link_Count(Global_LinkArray), 7U);
    EXPECT_EQ(Global_NoteCategories[0], u"Work Stuff"_s);
}

TEST_F(Program, The_End_Takes_What_Is_Being_Typed_And_Drops_What_Is_Only_Begun) {
    Application program;
    ASSERT_TRUE(program.Load());
    Global_Notes[0].Text = u"old"_s;
    Edit_NoteText(0, u"typed"_s);
    Show_ReminderEdit();
    Show_NotesEditor();
    Show_LinksEditor();
    Show_ProgramSetup();
    Toggle_Textbox();
    Show_AddReminderWizard();
    Show_QuickAdd(); // has a slot that must not reach the file
    program.End(platform::EndReason::Asked);
    EXPECT_EQ(Bytes(Reminders()), Empty_Table);
    EXPECT_NE(Bytes(Home() + "/User-1/notes.dat"_L1).find("typed"), std::string::npos);
}

TEST_F(Program, The_Strip_Does_Not_Hide_While_The_Links_Menu_Is_Open) {
    Application program;
    ASSERT_TRUE(program.Load());
    system.desktop.cursor = platform::Point{600, 600};
    Global_Autohide_Enabled = true;
    Global_Autohide_SelectedHideMode = 0;
    Open_LinksMenu(MenuOpenedBy::Keyboard, {0, 0, 300, 20});
    for (const bool open : {true, false}) {
        system.clock.Advance(20'000);
        Global_Timers->Tick(TimerName::AutoHideTimer);
        EXPECT_EQ(program.Main_Form()->Is_Collapsed(), !open);
        Hide_LinksMenu();
    }
}

TEST_F(Program, A_Handed_Over_Launch_Touches_Nothing) {
    system.instance.role = platform::LaunchRole::HandedOver;
    EXPECT_EQ(Main(), 0);
    EXPECT_TRUE(system.files.replaced.isEmpty());
    EXPECT_EQ(system.registry.changes, 0);
}

} // namespace
