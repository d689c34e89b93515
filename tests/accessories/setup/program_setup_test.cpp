// The setup window, and the value that starts the program at log-on.
#include "accessories/setup/frm_program_setup.h"
#include "accessories/setup/run_key.h"
#include "accessories/setup/setup.h"
#include "controls/chk_box.h"
#include "controls/unload_queue.h"
#include "controls/wb_button.h"
#include "core/date_text.h"
#include "settings/global_settings.h"
#include "support/fake_system.h"
#include "support/form_driver.h"

#include <QLabel>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

class ProgramSetup : public testing::Test {
protected:
    ~ProgramSetup() override { Release_Forms(); }
    // Of the window, which is opened if need be.
    template <class Control>
    static Control* The(const QString& name) {
        Show_ProgramSetup();
        return Find<Control>(name);
    }
    // Whether the window has gone.
    static bool Press_Ok() {
        Show_ProgramSetup();
        Click_On<wbButton>(u"Ok"_s);
        return Open_Window<frmProgramSetup>() == nullptr;
    }

    FakeSystem system;
};

TEST_F(ProgramSetup, The_fields_are_checked_in_their_order) {
    const QString wait = u"Wait time must be greater than 1 second"_s;
    const QString format = u"Invalid Date Format.\r\nThe date Format must contain the following "
                           "fields:\r\ndd, mm, yy or yyyy\r\n\r\nExample: mm/dd/yyyy"_s;
    const struct {
        QString seconds;
        QString format;
        QString message; // empty: accepted
        int waitTime;    // afterwards, ms
    } rows[] = {
        {u"1"_s, u"dd.mm.yyyy"_s, wait, 7000}, {u"abc"_s, u"dd.mm.yyyy"_s, wait, 7000},
        {u"9"_s, u"dd/mm"_s, format, 9000}, // the wait time is in force all the same
        {u" 2 "_s, u"dd.mm.yyyy"_s, {}, 2000}, {u"999999999999"_s, u"MM/DD/YY"_s, {}, 2147483000},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.seconds.toStdString() + " " + row.format.toStdString());
        const bool accepted = row.message.isEmpty();
        Global_Autohide_WaitTime = 7000;
        Global_DateFormat = u"mm/dd/yyyy"_s;
        Global_Autohide_Enabled = !accepted;
        The<QLineEdit>(u"Wait time: (Seconds)"_s)->setText(row.seconds);
        The<QLineEdit>(u"Date Format:"_s)->setText(row.format);
        The<ChkBox>(u"Enable AutoHide"_s)->Set_Ticked(accepted);
        if (!accepted)
            system.dialogs.Expect_Message(row.message);
        EXPECT_EQ(Press_Ok(), accepted);
        EXPECT_EQ(Global_Autohide_WaitTime, row.waitTime);
        EXPECT_EQ(Global_DateFormat, accepted ? row.format : u"mm/dd/yyyy"_s);
        EXPECT_TRUE(Global_Autohide_Enabled) << "taken over behind the checks only";
    }
}

TEST_F(ProgramSetup, Effects_and_hide_mode_are_stored_with_Ok_alone) {
    for (const bool recent : {true, false}) {
        Global_IsWinXP = recent;
        Global_UseTransparency = false;
        Global_Autohide_SelectedHideMode = 4;
        Global_DateFormat = u"mm/dd/yyyy"_s;
        EXPECT_TRUE(The<QRadioButton>(u"Hide: System tray Icon"_s)->isChecked());
        QTest::mouseClick(The<ChkBox>(u"Use Transparency"_s), Qt::LeftButton);
        The<QRadioButton>(u"Auto"_s)->click();
        EXPECT_EQ(Global_Autohide_SelectedHideMode, 4);
        EXPECT_TRUE(Press_Ok());
        EXPECT_EQ(Global_UseTransparency, recent) << "an old system has no effects";
        EXPECT_EQ(Global_Autohide_SelectedHideMode, -1);
    }
    Global_Autohide_SelectedHideMode = 77; // shows as none, and none is the automatic choice
    EXPECT_TRUE(Press_Ok());
    EXPECT_EQ(Global_Autohide_SelectedHideMode, -1);
}

TEST_F(ProgramSetup, The_run_key_holds_the_path_of_the_program_or_nothing) {
    Global_DateFormat = u"mm/dd/yyyy"_s;
    const auto value = [this] {
        const auto read = system.registry.Read(
            platform::RegistryRoot::LocalMachine,
            u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run"_s, u"Tockly"_s);
        return read ? read->text : QString();
    };
    for (const QString& expected : {system.paths.Executable(), QString()}) {
        The<ChkBox>(u"Run at start up"_s)->Toggle();
        EXPECT_NE(value(), expected) << "not before Ok";
        EXPECT_TRUE(Press_Ok());
        EXPECT_EQ(value(), expected);
        EXPECT_EQ(The<ChkBox>(u"Run at start up"_s)->Is_Ticked(), !expected.isEmpty());
    }
    system.registry.Refuse(platform::RegistryRoot::LocalMachine);
    The<ChkBox>(u"Run at start up"_s)->Toggle();
    EXPECT_TRUE(Press_Ok());
    EXPECT_FALSE(The<ChkBox>(u"Run at start up"_s)->Is_Ticked()) << "the tick does not stick";

    EXPECT_EQ(Run_Command(u"C:/my T"_s, u"tockly"_s, Program_Ending(u"C:/T/TOCKLY.EXE"_s)),
              QDir::toNativeSeparators(u"C:/my T/tockly.exe"_s));
}

} // namespace
