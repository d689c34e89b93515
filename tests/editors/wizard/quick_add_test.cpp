#include "controls/chk_box.h"
#include "controls/combo_box.h"
#include "controls/timers.h"
#include "delivery/deliver.h"
#include "delivery/near_placement.h"
#include "delivery/show_windows.h"
#include "editor_fixture.h"
#include "editors/calendar/frm_calendar.h"
#include "editors/list/frm_reminder_edit.h"
#include "editors/wizard/frm_quick_add_reminder.h"

using namespace Qt::StringLiterals;

class QuickAddTest : public EditorTest {
protected:
    QuickAddTest() {
        Global_Timers = &timers;
        Init_MessageWinRoutines();
        Add_Other();
        Show_QuickAdd();
        window = Open_Window<frmQuickAddReminder>();
    }
    ~QuickAddTest() override {
        Release_Forms();
        Unload_ReminderWindows();
        Global_Timers = nullptr;
    }
    void Add_Other() {
        Global_Reminders[0] = {true, false, std::make_unique<ReminderClass>()};
        Global_Reminders[0].Reminder->rs_Title = u"Other"_s;
    }
    static const ReminderClass& Made(std::size_t slot = 1) {
        return Global_Reminders[slot].Reminder.Peek();
    }
    void Expect_Warning(const QString& text, const QString& button) {
        system.dialogs.Expect_Message(text);
        Click(button);
        EXPECT_TRUE(window->isVisible());
    }
    // Start minutes of the hour setups, "1080 -1".
    static QString Hours(const ReminderClass& reminder) {
        QStringList starts;
        for (std::int32_t i = 0; i <= reminder.HourSetupList_Size(); ++i)
            starts << QString::number(reminder.GetHourSetup(i).StartMinute);
        return starts.join(u' ');
    }

    Timers timers;
};

TEST_F(QuickAddTest, ThePendingReminderIsInTheTableFromTheStartAndAcceptKeepsIt) {
    ASSERT_TRUE(Global_Reminders[1].Used);
    EXPECT_TRUE(Global_Reminders[1].Pending);
    EXPECT_EQ(Made().rs_ID, 1);
    EXPECT_EQ(Made().rs_DayCreated, Monday);
    Give_Focus(window);
    Type(u"Text1"_s, u"Call"_s);
    QFocusEvent elsewhere(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(Find(u"Text1"_s), &elsewhere);
    QTest::keyClicks(Find(u"Text1"_s), u" Ann"_s);
    Find(u"Text3"_s)->setFocus();
    EXPECT_EQ(Find<QPlainTextEdit>(u"Text3"_s)->toPlainText(), u"Call Ann"_s);
    EXPECT_EQ(Find<QComboBox>(u"Combo1"_s)->itemText(1), u"Work"_s);
    Type(u"Combo1"_s, u"wo"_s); // and nothing more
    Click(u"Option1_2"_s);
    Click(u"p2ChkImage_5"_s);
    Click(u"p2ChkImage_5"_s); // stays
    Click(u"p2ChkImage_1"_s); // the last condition stays
    Click(u"p2ChkImage_0"_s);
    Type(u"hText3"_s, u"21:30"_s);
    Click(u"wbButton3"_s);
    EXPECT_TRUE(window->isHidden());
    ASSERT_TRUE(Global_Reminders[1].Used);
    EXPECT_FALSE(Global_Reminders[1].Pending);
    EXPECT_EQ(Made().rs_Title + u'|' + Made().rs_Text, u"Call Ann|Call Ann"_s);
    EXPECT_EQ(Made().rs_Category, u"Wo"_s);
    EXPECT_NE(Find_Category(u"Wo"_s), -1);
    EXPECT_EQ(Made().rs_Reminder_Type, ReminderType::Centered);
    EXPECT_EQ(Made().rs_DateType_Used, DateType::ExactDate);
    EXPECT_EQ(Made().rs_SRLongday, Monday + 1);
    EXPECT_EQ(Hours(Made()), u"-1 1080 1290"_s);
}

TEST_F(QuickAddTest, CancelCloseAndTheEndOfTheProgramLeaveNoTrace) {
    Click(u"wbButton4"_s);
    EXPECT_EQ(Used_Slots(), 1U);
    for (const bool ending : {false, true}) {
        Show_QuickAdd();
        window = Open_Window<frmQuickAddReminder>();
        EXPECT_EQ(Used_Slots(), 2U);
        EXPECT_EQ(Made().rs_ID, 1); // free again
        Set_Program_Ending(ending);
        window->close();
        EXPECT_EQ(Used_Slots(), 1U);
    }
}

TEST_F(QuickAddTest, WarnsOfABadDateAndABadTimeAndKeepsTheLaterFields) {
    Type(u"Text1"_s, u"Later"_s);
    Type(u"Text5"_s, u"12/5"_s); // without a year
    Expect_Warning(u"Invalid date: \r\n12/5"_s, u"wbButton3"_s);
    EXPECT_EQ(Made().rs_Title, u"New Reminder"_s);
    Type(u"Text5"_s, u"12/5/26"_s);
    Type(u"hText2"_s, u"8pm"_s);
    Type(u"Combo1"_s, u"Work"_s);
    Expect_Warning(u"Invalid time: 8pm"_s, u"wbButton10"_s);
    EXPECT_EQ(Made().rs_Title, u"Later"_s);
    EXPECT_EQ(Made().rs_Category, QString());
    EXPECT_TRUE(Global_Reminders[1].Pending);
}

TEST_F(QuickAddTest, ATestShowsTheReminderOnceAndItsFirstTimeStays) {
    Click(u"Option1_1"_s);
    Click(u"wbButton10"_s);
    Click(u"wbButton10"_s);
    EXPECT_EQ(std::count_if(Global_NearWindows.begin(), Global_NearWindows.end(),
                            [](const NearWindowEntry& entry) { return entry.Used; }),
              1);
    EXPECT_TRUE(Global_Reminders[1].Pending);
    EXPECT_EQ(Hours(Made()), u"1080 1080"_s);
    Type(u"hText1"_s, u"19:00"_s);
    Click(u"wbButton3"_s);
    EXPECT_EQ(Hours(Made()), u"1080 1140"_s);
}

TEST_F(QuickAddTest, FindsItsReminderAfterAnotherWasDeletedAndMakesItAnewWhenItIsGone) {
    Delete_ReminderSlot(0);
    Type(u"Text1"_s, u"Moved"_s);
    Click(u"wbButton3"_s);
    EXPECT_EQ(Made(0).rs_Title, u"Moved"_s);
    EXPECT_FALSE(Global_Reminders[0].Pending);
    Show_QuickAdd();
    window = Open_Window<frmQuickAddReminder>();
    Delete_ReminderSlot(1);
    Type(u"Text1"_s, u"Again"_s);
    Click(u"wbButton3"_s);
    EXPECT_EQ(Made(1).rs_Title, u"Again"_s);
    EXPECT_EQ(Used_Slots(), 2U);
}

TEST_F(QuickAddTest, TheCalendarAnswersToTheDateBoxAndTheFullEditorTakesTheReminderOver) {
    Type(u"Text5"_s, u"31/1/2027"_s);
    Click(u"p2ChkImage_4"_s);
    Click(u"wbButton2"_s);
    EXPECT_TRUE(Find<ChkBox>(u"p2ChkImage_6"_s)->Is_Ticked());
    EXPECT_FALSE(Find<ChkBox>(u"p2ChkImage_4"_s)->Is_Ticked());
    auto* calendar = Open_Window<frmCalendar>();
    ASSERT_NE(calendar, nullptr);
    QTest::mouseClick(calendar->findChild<wbButton*>(), Qt::LeftButton);
    EXPECT_EQ(Find<QLineEdit>(u"Text5"_s)->text(), u"31/01/2027"_s);
    Type(u"hText1"_s, u"soon"_s); // skipped without a word
    Click(u"wbButton1"_s);
    EXPECT_TRUE(window->isHidden());
    EXPECT_NE(Open_Window<frmReminderEdit>(), nullptr);
    EXPECT_FALSE(Global_Reminders[1].Pending);
    EXPECT_EQ(Made().rs_SRYear, 2027);
}
