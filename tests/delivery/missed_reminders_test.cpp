#include "core/date_text.h"
#include "delivery/frm_missed_reminders.h"
#include "window_fixture.h"

#include <QLabel>
#include <QListWidget>

using namespace Qt::StringLiterals;

namespace {

// Monday 2 March 2026.
constexpr Day Today = 26 * 365 + 7 + 31 + 28 + 2;
constexpr Serial TodaySerial = Today + 36525;

class Missed : public WindowTest {
protected:
    Missed() {
        Init_DateText();
        Global_DateFormat = u"dd.mm.yyyy"_s;
    }
    ~Missed() override { Unload_MissedReminders(); }
    // Fires at 10:00.
    ReminderClass& Add(const QString& text, DateType type) {
        ReminderClass& reminder = Reminder(Add_Reminder(text));
        reminder.rs_Enabled = true;
        reminder.rs_DateType_Used = type;
        reminder.rs_REveryDay = true;
        reminder.rs_DayCreated = 1;
        reminder.rs_LastExecutedDate = ReminderClass::NeverExecuted;
        reminder.AddNewHourSetup({-1, 600, 0, 0});
        return reminder;
    }
    QString Rows(int hour, int minute) {
        clock.Set(2026, 3, 2, hour, minute);
        QStringList rows;
        for (const MissedEntry& entry : List_MissedReminders(Read_Moment()))
            rows << entry.Text;
        return rows.join(u'|');
    }
    static frmMissedReminders* Window() {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* found = qobject_cast<frmMissedReminders*>(window))
                return found;
        return nullptr;
    }
};

TEST_F(Missed, What_Was_And_What_Was_Not_Run_While_The_Program_Was_Closed) {
    struct Case {
        const char* name;
        Day created;
        std::int32_t lastExecuted;
        int hour; // of the start
        QString rows;
    };
    const std::int32_t never = ReminderClass::NeverExecuted;
    const Case cases[] = {
        {"closed for an hour over its time", 1, TodaySerial - 1, 12, u"Today: A"_s},
        {"closed for an hour before its time", 1, TodaySerial - 1, 9, QString()},
        {"fired today already", 1, TodaySerial, 12, QString()},
        {"closed for a day, never fired: it is offered for yesterday", Today - 9, never, 9,
         u"Yesterday: A"_s},
        {"closed for a day, fired before: a serial is above any day", 1, TodaySerial - 2, 9,
         QString()},
        {"closed for three weeks, offered by a list then", 1, Today - 21, 9, u"Yesterday: A"_s},
        {"offered by a list today", 1, Today, 12, QString()},
        {"created after the missed day", Today, never, 9, QString()},
        {"created on the missed day", Today - 1, never, 9, u"Yesterday: A"_s}};
    for (const Case& row : cases) {
        Start_Afresh(9, 0, 0);
        ReminderClass& reminder = Add(u"A"_s, DateType::EveryDay);
        reminder.rs_DayCreated = row.created;
        reminder.rs_LastExecutedDate = row.lastExecuted;
        EXPECT_EQ(Rows(row.hour, 0), row.rows) << row.name;
        EXPECT_EQ(Rows(row.hour, 0), QString()) << row.name << ", at a second start";
    }
    for (int which = 0; which < 3; ++which) {
        Start_Afresh(9, 0, 0);
        ReminderClass& reminder = Add(u"A"_s, DateType::EveryDay);
        reminder.rs_Enabled = which != 0;
        Global_Reminders[0].Pending = which == 1;
        reminder.rs_REveryDay = which != 2;
        EXPECT_EQ(Rows(12, 0), QString()) << which;
    }
}

TEST_F(Missed, Rows_Stand_Newest_First_And_In_The_Order_Of_The_Table_Within_A_Day) {
    ReminderClass& old = Add(u"once\r\nlong ago"_s, DateType::ExactDate);
    old.rs_SRLongday = Today - 21;
    old.rs_SRDay = 9;
    old.rs_SRMonth = 2;
    old.rs_SRYear = 2026;
    Add(u"B"_s, DateType::EveryDay).SetHourSetup(0, {-1, 1200, 0, 0});
    Add(u"C"_s, DateType::EveryDay);
    Add(u"D"_s, DateType::EveryDay).SetHourSetup(0, {-1, 1200, 0, 0});
    EXPECT_EQ(Rows(12, 0), u"Today: C|Yesterday: B|Yesterday: D|09.02.2026: once - long ago"_s);
    EXPECT_EQ(Reminder(0).rs_LastExecutedDate, Today);
    EXPECT_EQ(Reminder(2).rs_LastExecutedDate, TodaySerial);
}

TEST_F(Missed, The_Window_Stands_Beside_The_Toolbar_And_On_The_Screen) {
    struct Case {
        const char* name;
        int rows, widest;
        ToolbarRect toolbar;
        QSize screen;
        MissedPlace place;
    };
    const Case cases[] = {
        {"one row", 1, 50, {100, 0, 433, 20}, {1024, 768}, {100, 35, 220, 72}},
        {"nine rows and one to spare", 9, 300, {100, 0, 433, 20}, {1024, 768}, {100, 35, 340, 200}},
        {"more rows than it shows", 500, 300, {100, 0, 433, 20}, {1024, 768}, {100, 35, 340, 200}},
        {"above a toolbar at the bottom", 1, 50, {0, 580, 333, 600}, {800, 600}, {0, 493, 220, 72}},
        {"at the right edge", 1, 400, {467, 0, 800, 20}, {800, 600}, {360, 35, 440, 72}},
        {"wider than the screen", 1, 90000, {467, 0, 800, 20}, {800, 600}, {0, 35, 800, 72}},
        {"toolbar off the screen", 1, 50, {-50, 900, 283, 920}, {800, 600}, {0, 528, 220, 72}}};
    for (const Case& row : cases)
        EXPECT_EQ(Place_MissedWindow(row.rows, row.widest, 20, row.toolbar, {QPoint(), row.screen}),
                  row.place)
            << row.name;
}

TEST_F(Missed, A_Row_Is_Delivered_By_A_Double_Click_And_By_Enter) {
    desktop.screen = {800, 600};
    LoadAndShow_MissedReminders();
    ASSERT_NE(Window(), nullptr);
    EXPECT_FALSE(Window()->isVisible()); // nothing was missed
    for (const QString& text : {u"one"_s, u"two"_s, u"<b>three</b>"_s})
        Add(text, DateType::EveryDay).rs_Reminder_Type = ReminderType::InsideToolbar;
    LoadAndShow_MissedReminders();
    ASSERT_TRUE(Window()->isVisible());
    auto* list = Window()->findChild<QListWidget*>();
    const auto* label = Window()->findChild<QLabel*>();
    EXPECT_EQ(label->geometry().bottom() + 1 + 2, Window()->height());
    EXPECT_LE(list->geometry().bottom(), label->geometry().top());
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(Global_ToolbarMessages[0].Text, u"two"_s);
    const QPoint lastRow = list->visualItemRect(list->item(2)).center();
    const auto Double_Click = [&] {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, lastRow);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, lastRow);
    };
    Double_Click();
    EXPECT_EQ(Global_ToolbarMessages[1].Text, u"<b>three</b>"_s);
    EXPECT_TRUE(list->item(2)->toolTip().contains("&lt;b&gt;three"_L1));
    Delete_ReminderSlot(2);
    Double_Click();
    EXPECT_FALSE(Global_ToolbarMessages[2].Active);
    EXPECT_EQ(list->count(), 3);
    QTest::keyClick(list, Qt::Key_Escape);
    EXPECT_FALSE(Window()->isVisible());
}

TEST_F(Missed, What_A_Sleep_Swallowed_Is_Listed_Once_And_Not_Again_At_The_Next_Start) {
    Add(u"daily"_s, DateType::EveryDay);
    const auto Shown = [] {
        QStringList rows;
        const auto* list = Window()->findChild<QListWidget*>();
        for (int row = 0; row < list->count(); ++row)
            rows << list->item(row)->text();
        return rows.join(u'|');
    };
    const auto At = [](int day, int minute) {
        return Moment_Of({2026, 3, day, minute / 60, minute % 60, 0, 0});
    };
    Show_SwallowedReminders(At(1, 601), At(2, 540));
    EXPECT_EQ(Window(), nullptr) << "nothing was due";
    Show_SwallowedReminders(At(1, 540), At(2, 540));
    EXPECT_EQ(Shown(), u"Yesterday: daily"_s);
    EXPECT_EQ(Rows(9, 0), QString()) << "the next start";
    Show_SwallowedReminders(At(2, 541), At(2, 700));
    EXPECT_EQ(Shown(), u"Today: daily|Yesterday: daily"_s) << "the open window gets the row";
    EXPECT_EQ(Rows(12, 0), QString());
    Window()->close();
    Show_SwallowedReminders(At(2, 900), At(3, 700));
    EXPECT_EQ(Shown(), u"Today: daily"_s) << "the others have been seen";
}

} // namespace
