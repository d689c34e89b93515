#include "controls/chk_box.h"
#include "controls/combo_box.h"
#include "controls/timers.h"
#include "delivery/deliver.h"
#include "delivery/important_rwin.h"
#include "delivery/near_windows.h"
#include "editor_fixture.h"
#include "editors/calendar/frm_calendar.h"
#include "editors/list/frm_reminder_edit.h"
#include "editors/wizard/frm_quick_add_reminder.h"

namespace {

class QuickAddTest : public EditorTest {
protected:
    QuickAddTest() {
        Global_Timers = &timers;
        Init_MessageWinRoutines();
        Global_Reminders[0] = {true, false, std::make_unique<ReminderClass>()};
        Open();
    }
    ~QuickAddTest() override {
        Release_Forms();
        Unload_ReminderWindows();
        Global_Timers = nullptr;
    }
    void Open() {
        Show_QuickAdd();
        window = Open_Window<frmQuickAddReminder>();
    }
    void Click_Time(qsizetype number) {
        QTest::mouseClick(window->findChildren<ChkBox*>()[3 + number], Qt::LeftButton);
    }

    Timers timers;
};

TEST_F(QuickAddTest, What_becomes_of_each_choice_and_of_what_cannot_be_read) {
    struct Case {
        std::function<void(QuickAddState&)> change;
        BadValues bad;
        QString error, hours; // of the first setup, which stays, and the new ones
        Day day;
        QString title, category;
    };
    const auto report = BadValues::Report;
    const Case cases[] = {
        {[](auto&) {}, report, {}, u"7 1080"_s, Monday, u"New Reminder"_s, u"Work"_s},
        {[](auto& s) { s.When = DayChoice::Tomorrow, s.AtStartUp = true, s.At[2] = true; },
         report,
         {},
         u"7 -1 1080 1320"_s,
         Monday + 1,
         u"New Reminder"_s,
         u"Work"_s},
        {[](auto& s) { s.When = DayChoice::Date, s.Date = u"12/5"_s; }, report,
         u"Invalid date: \r\n12/5"_s, u"7 8"_s, 0, u"before"_s, u"Before"_s},
        {[](auto& s) { s.When = DayChoice::Date, s.Date = u"12/5"_s; },
         BadValues::Skip,
         {},
         u"7 1080"_s,
         0,
         u"New Reminder"_s,
         u"Work"_s},
        {[](auto& s) { s.Times[0] = u"8pm"_s; }, report, u"Invalid time: 8pm"_s, u"7"_s, Monday,
         u"New Reminder"_s, u"Before"_s},
        {[](auto& s) { s.Times[0] = u"8pm"_s; },
         BadValues::Skip,
         {},
         u"7"_s,
         Monday,
         u"New Reminder"_s,
         u"Work"_s},
        {[](auto& s) { s.Times[2] = u"8pm"_s; },
         report,
         {},
         u"7 1080"_s,
         Monday,
         u"New Reminder"_s,
         u"Work"_s}};
    for (const Case& row : cases) {
        SCOPED_TRACE(&row - cases);
        QuickAddState state = New_QuickAddState(Read_Moment());
        state.Category = u"work"_s;
        row.change(state);
        ReminderClass reminder;
        reminder.rs_Title = u"before"_s;
        reminder.rs_Category = u"Before"_s;
        for (const std::int16_t minute : {std::int16_t{7}, std::int16_t{8}})
            reminder.AddNewHourSetup({-1, minute, 0, 0});
        EXPECT_EQ(Apply_ToReminder(state, reminder, row.bad, Read_Moment()), row.error);
        EXPECT_EQ(Hours(reminder), row.hours);
        EXPECT_EQ(reminder.rs_SRLongday, row.day);
        EXPECT_EQ(reminder.rs_Title, row.title);
        EXPECT_EQ(reminder.rs_Category, row.category);
        EXPECT_EQ(reminder.rs_Icon, row.category == u"Work"_s ? u"Write"_s : QString());
    }
}

TEST_F(QuickAddTest, The_pending_reminder_is_in_the_table_from_the_start_and_Ok_keeps_it) {
    ASSERT_TRUE(Global_Reminders[1].Used);
    EXPECT_TRUE(Global_Reminders[1].Pending);
    EXPECT_EQ(Made(1).rs_ID, 1);
    EXPECT_EQ(Made(1).rs_DayCreated, Monday);
    Give_Focus(window);
    auto* title = Find<QLineEdit>(u"Title"_s, window);
    Type_Into(title, u"Call"_s);
    QFocusEvent elsewhere(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(title, &elsewhere);
    QTest::keyClicks(title, u" Ann"_s);
    auto* text = Find<QPlainTextEdit>(u"Text"_s, window);
    text->setFocus();
    EXPECT_EQ(text->toPlainText(), u"Call Ann"_s);
    auto* category = window->findChild<ComboBox*>();
    EXPECT_EQ(category->itemText(1), u"Work"_s);
    Type_Into(category, u"wo"_s); // and nothing more
    Click(u"Very Important"_s);
    Click(u"Tomorrow"_s);
    Click(u"Tomorrow"_s); // stays
    Click_Time(1);        // the last condition stays
    Click(u"At Start up"_s);
    Type(u"Time 3"_s, u"21:30"_s);
    Click(u"Ok"_s);
    EXPECT_TRUE(window->isHidden());
    ASSERT_TRUE(Global_Reminders[1].Used);
    EXPECT_FALSE(Global_Reminders[1].Pending);
    EXPECT_EQ(Made(1).rs_Title + u'|' + Made(1).rs_Text, u"Call Ann|Call Ann"_s);
    EXPECT_EQ(Made(1).rs_Category, u"Wo"_s);
    EXPECT_NE(Find_Category(u"Wo"_s), -1);
    EXPECT_EQ(Made(1).rs_Reminder_Type, ReminderType::Centered);
    EXPECT_EQ(Made(1).rs_DateType_Used, DateType::ExactDate);
    EXPECT_EQ(Made(1).rs_SRLongday, Monday + 1);
    EXPECT_EQ(Hours(Made(1)), u"-1 1080 1290"_s);
}

TEST_F(QuickAddTest, Cancel_close_and_the_end_of_the_program_leave_no_trace) {
    Click(u"Cancel"_s);
    EXPECT_EQ(Used_Slots(), 1U);
    for (const bool ending : {false, true}) {
        Open();
        EXPECT_EQ(Used_Slots(), 2U);
        EXPECT_EQ(Made(1).rs_ID, 1); // free again
        Set_Program_Ending(ending);
        window->close();
        EXPECT_EQ(Used_Slots(), 1U);
    }
}

TEST_F(QuickAddTest, A_test_warns_or_shows_the_reminder_once_and_its_first_time_stays) {
    Click(u"Important"_s);
    Type(u"Time 2"_s, u"8pm"_s);
    system.dialogs.Expect_Message(u"Invalid time: 8pm"_s);
    Click(u"Test the reminder"_s);
    EXPECT_TRUE(window->isVisible());
    Type(u"Time 2"_s, u"20:00"_s);
    Click_Time(2);
    Click(u"Test the reminder"_s);
    Click(u"Test the reminder"_s);
    EXPECT_EQ(std::count_if(Global_NearWindows.begin(), Global_NearWindows.end(),
                            [](const NearWindowEntry& entry) { return entry.Used; }),
              1);
    EXPECT_TRUE(Global_Reminders[1].Pending);
    Type(u"Time 1"_s, u"19:00"_s);
    Click(u"Ok"_s);
    EXPECT_EQ(Hours(Made(1)), u"1080 1140"_s);
}

TEST_F(QuickAddTest,
       Finds_its_reminder_after_another_was_deleted_and_makes_it_anew_when_it_is_gone) {
    Delete_ReminderSlot(0);
    Type(u"Title"_s, u"Moved"_s);
    Click(u"Ok"_s);
    EXPECT_EQ(Made(0).rs_Title, u"Moved"_s);
    EXPECT_FALSE(Global_Reminders[0].Pending);
    Open();
    Delete_ReminderSlot(1);
    Type(u"Title"_s, u"Again"_s);
    Click(u"Ok"_s);
    EXPECT_EQ(Made(1).rs_Title, u"Again"_s);
    EXPECT_EQ(Used_Slots(), 2U);
}

TEST_F(QuickAddTest, The_calendar_answers_to_the_date_and_the_full_editor_takes_the_reminder_over) {
    Type(u"Date"_s, u"31/1/2027"_s);
    Click(u"Today"_s);
    Click(u"Open calendar..."_s);
    EXPECT_TRUE(Find<ChkBox>(u"On a date"_s, window)->Is_Ticked());
    EXPECT_FALSE(Find<ChkBox>(u"Today"_s, window)->Is_Ticked());
    Click_On<wbButton>(u"Ok"_s, Open_Window<frmCalendar>());
    EXPECT_EQ(Text_Of(u"Date"_s), u"31/01/2027"_s);
    Type(u"Time 1"_s, u"soon"_s); // skipped without a word
    Click(u"More..."_s);
    EXPECT_TRUE(window->isHidden());
    ASSERT_NE(Open_Window<frmReminderEdit>(), nullptr);
    EXPECT_EQ(Open_Window<frmReminderEdit>()->Selected_Reminder(), &Made(1));
    EXPECT_FALSE(Global_Reminders[1].Pending);
    EXPECT_EQ(Made(1).rs_SRYear, 2027);
}

} // namespace
