// The setup wizard and the toolbar that it holds.
#include "accessories/setup/frm_wizard.h"
#include "accessories/setup/run_key.h"
#include "accessories/setup/setup.h"
#include "controls/chk_box.h"
#include "controls/program_end.h"
#include "controls/timers.h"
#include "controls/unload_queue.h"
#include "controls/wb_button.h"
#include "core/date_text.h"
#include "settings/global_settings.h"
#include "support/fake_system.h"
#include "support/fake_toolbar.h"
#include "support/form_driver.h"

#include <QLabel>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

const QString Guard = QStringLiteral("The Hide/Minimize are disabled during the setup Wizard");

class SetupWizard : public testing::Test {
protected:
    SetupWizard() {
        Global_Autohide_WaitTime = 7000;
        Global_Autohide_Enabled = true;
        Global_Autohide_SelectedHideMode = 2;
        Show_SetupWizard();
    }
    ~SetupWizard() override {
        Set_Program_Ending(false);
        Release_Forms();
    }
    static frmWizard* Window() { return Open_Window<frmWizard>(); }
    static void Choose(const QString& option) { Find<QRadioButton>(option)->click(); }
    QPoint Place() const { return {toolbar.bounds.Left, toolbar.bounds.Top}; }

    FakeSystem system;
    FakeToolbar toolbar;
};

TEST_F(SetupWizard, All_pages_are_stored_at_the_end_only) {
    for (int page = 1; page < 6; ++page)
        Click_On<wbButton>(u"Next >"_s);
    EXPECT_TRUE(Find<QLabel>(u"6- Save new settings"_s)->font().bold());
    Find<ChkBox>(u"Load Tockly on startup"_s)->Toggle();
    Find<ChkBox>(u"Enable AutoHide"_s)->Toggle();
    Choose(u"System tray:"_s);
    Choose(u"Top-right"_s);
    Find<QLineEdit>(u"Please insert the date format used to display dates:"_s)->setText(u"dd/mm"_s);
    EXPECT_TRUE(Global_Autohide_Enabled);
    system.dialogs.Expect_Message(
        u"Invalid Date Format: dd/mm\r\n\r\nThe default system format will be used."_s);
    system.dialogs.whileOpen = [](const auto&) {
        EXPECT_EQ(Global_Autohide_WaitTime, 10000) << "all is stored before the box";
        Click_On<wbButton>(u"Finish"_s); // a second one changes nothing
    };
    Click_On<wbButton>(u"Finish"_s);
    EXPECT_EQ(Window(), nullptr);
    EXPECT_EQ(Global_DateFormat, u"dd/mm/yyyy"_s);
    EXPECT_FALSE(Global_Autohide_Enabled);
    EXPECT_EQ(Global_Autohide_SelectedHideMode, 4) << "stored although AutoHide is off";
    EXPECT_TRUE(Read_RunKey());
    EXPECT_EQ(Place(), QPoint(1280 - 333, 0)) << "the toolbar stays where it was put";
    EXPECT_TRUE(toolbar.guard.isEmpty());
}

TEST_F(SetupWizard, It_moves_the_toolbar_at_once_and_puts_it_back_when_it_is_closed) {
    Window()->close();
    toolbar.bounds = {400, 200, 733, 220};
    Show_SetupWizard();
    EXPECT_EQ(toolbar.guard, Guard);
    for (const auto& [option, place] : {std::pair(u"Top-left"_s, QPoint(0, 0)),
                                        {u"Top-right"_s, QPoint(947, 0)},
                                        {u"Manual:"_s, QPoint(400, 200)},
                                        {u"Top-center"_s, QPoint(473, 0)}}) {
        Choose(option);
        EXPECT_EQ(Place(), place) << option.toStdString();
    }
    QTest::keyClick(Window(), Qt::Key_Escape);
    EXPECT_EQ(Place(), QPoint(400, 200));
    EXPECT_TRUE(toolbar.guard.isEmpty());
    EXPECT_EQ(Global_Autohide_WaitTime, 7000);
    EXPECT_EQ(Global_Autohide_SelectedHideMode, 2);
}

TEST_F(SetupWizard, The_hide_test_lifts_the_guard_for_its_time_only) {
    const auto isOver = [this] {
        EXPECT_EQ(toolbar.guard.isEmpty(), !Find<wbButton>(u"Next >"_s)->isEnabled());
        return toolbar.guard == Guard && Find<wbButton>(u"Test"_s)->isEnabled();
    };
    for (const auto& [label, step] :
         {std::pair(u"Click the tray icon to show the toolbar."_s, u"hide 4"_s),
          {u"The toolbar will shrink on the same location, clicking on "
           "it will set it back to its normal size."_s,
           u"hide 2"_s}}) {
        QTest::mouseClick(Find<QLabel>(label), Qt::LeftButton);
        toolbar.steps.clear();
        Window()->TestHideButton_Click();
        system.clock.Advance(2499);
        EXPECT_FALSE(isOver());
        system.clock.Advance(1);
        EXPECT_TRUE(isOver());
        EXPECT_EQ(toolbar.steps, QStringList({step, u"show"_s}));
    }
    Window()->TestHideButton_Click();
    toolbar.AutoHide_ShowProc(false);
    system.clock.Advance(10);
    EXPECT_TRUE(isOver()) << "somebody who brings the toolbar back has seen enough";
}

TEST_F(SetupWizard, It_may_be_closed_or_ended_in_the_middle_of_the_test) {
    for (const bool isEnd : {false, true}) {
        Show_SetupWizard();
        toolbar.Move_To(10, 20);
        Window()->TestHideButton_Click();
        system.clock.Advance(100);
        Set_Program_Ending(isEnd);
        isEnd ? Drop_SetupWizard() : void(Window()->close());
        Unload_PendingForms();
        system.clock.Advance(3000);
        EXPECT_TRUE(toolbar.visible);
        EXPECT_TRUE(toolbar.guard.isEmpty());
        EXPECT_EQ(Place(), QPoint(400, 0)) << "its place is what the settings keep";
    }
}

TEST_F(SetupWizard, It_comes_by_itself_at_the_first_start_only) {
    for (const int firstTime : {0, 1}) {
        Window()->close();
        Unload_PendingForms();
        ASSERT_EQ(Window(), nullptr);
        Timers timers;
        FirstTime = firstTime;
        Connect_RunWizard(timers);
        EXPECT_EQ(timers.Is_Enabled(TimerName::RunWizard_Timer), firstTime != 0);
        timers.Tick(TimerName::RunWizard_Timer);
        EXPECT_FALSE(timers.Is_Enabled(TimerName::RunWizard_Timer)) << "once";
        EXPECT_NE(Window(), nullptr);
    }
}

} // namespace
