// The setup window, and the value that starts the program at log-on.
#include "accessories/setup/find_controls.h"
#include "accessories/setup/frm_program_setup.h"
#include "accessories/setup/run_key.h"
#include "accessories/setup/setup.h"
#include "controls/unload_queue.h"
#include "core/date_text.h"
#include "settings/global_settings.h"
#include "support/fake_system.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

class ProgramSetup : public testing::Test {
protected:
    ~ProgramSetup() override {
        if (auto* window = Open_Window<frmProgramSetup>(); window != nullptr)
            window->close();
        Unload_PendingForms();
    }
    // Of the window, which is opened if need be.
    template <class Control>
    static Control* The(const QString& name) {
        Show_ProgramSetup();
        return Find<Control>(name);
    }
    // Whether the window has gone.
    static bool Press_Ok() {
        QTest::mouseClick(The<wbButton>(u"Ok"_s), Qt::LeftButton);
        return Open_Window<frmProgramSetup>() == nullptr;
    }

    FakeSystem system;
};

TEST_F(ProgramSetup, ChecksTheFieldsInTheirOrder) {
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

TEST_F(ProgramSetup, StoresEffectsAndHideModeWithOkAlone) {
    for (const bool recent : {true, false}) {
        Global_IsWinXP = recent;
        Global_UseTransparency = false;
        Global_Autohide_SelectedHideMode = 4;
        Global_DateFormat = u"mm/dd/yyyy"_s;
        EXPECT_TRUE(The<QRadioButton>(u"Hide: System tray Icon"_s)->isChecked());
        QTest::mouseClick(The<ChkBox>(u"Use Transparency"_s), Qt::LeftButton);
        The<QRadioButton>(u"Auto"_s)->click();
        EXPECT_EQ(The<QLabel>(u"(Windows Xp Only)"_s) == nullptr ||
                      !The<QLabel>(u"(Windows Xp Only)"_s)->isVisible(),
                  recent);
        EXPECT_EQ(Global_Autohide_SelectedHideMode, 4);
        EXPECT_TRUE(Press_Ok());
        EXPECT_EQ(Global_UseTransparency, recent) << "an old system has no effects";
        EXPECT_EQ(Global_Autohide_SelectedHideMode, -1);
    }
    Global_Autohide_SelectedHideMode = 77; // shows as none, and none is the automatic choice
    EXPECT_TRUE(Press_Ok());
    EXPECT_EQ(Global_Autohide_SelectedHideMode, -1);
}

TEST_F(ProgramSetup, TheRunKeyHoldsTheProgramsPathOrNothing) {
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

    EXPECT_EQ(Run_Command(u"/opt/my apps"_s, u"tockly"_s, Program_Ending(u"/opt/tockly"_s)),
              QDir::toNativeSeparators(u"/opt/my apps/tockly"_s));
    EXPECT_EQ(Run_Command(u"C:/T"_s, u"tockly"_s, Program_Ending(u"C:/T/TOCKLY.EXE"_s)),
              QDir::toNativeSeparators(u"C:/T/tockly.exe"_s));
}

} // namespace
