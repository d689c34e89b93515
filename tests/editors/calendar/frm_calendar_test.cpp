#include "controls/unload_queue.h"
#include "controls/wb_button.h"
#include "core/date_text.h"
#include "editors/calendar/day_grid.h"
#include "editors/calendar/frm_calendar.h"
#include "support/fake_system.h"
#include "support/form_driver.h"

#include <QComboBox>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest/QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

class CalendarTest : public testing::Test {
protected:
    CalendarTest() {
        system.clock.Set(2026, 3, 2);
        Init_TimeRoutines();
        Init_DateText();
        Global_DateFormat = u"dd/mm/yyyy"_s;
        calendar = new frmCalendar(nullptr);
        calendar->show();
    }
    ~CalendarTest() override {
        Unload_PendingForms();
        delete calendar.data();
        Global_DateFormat = u"mm/dd/yyyy"_s;
    }
    QPushButton* Cell(int cell) {
        return calendar->findChild<QPushButton*>(u"DaysLabel%1"_s.arg(cell));
    }
    // "2:28": cells 2 and on with 28 days.
    QString Shown() {
        int first = -1;
        int count = 0;
        for (int i = 0; i < 42; ++i)
            if (Cell(i)->isVisible()) {
                first = first == -1 ? i : first;
                ++count;
                EXPECT_EQ(Cell(i)->text(), QString::number(i - first + 1));
            }
        return u"%1:%2"_s.arg(first).arg(count);
    }
    void Type_Year(const QString& year) {
        QComboBox* box = calendar->findChildren<QComboBox*>()[1];
        box->setEditText(year);
        QTest::keyClick(box, Qt::Key_Return);
    }
    void Press_Ok() { Click_On<wbButton>(u"Ok"_s, calendar); }

    FakeSystem system;
    QPointer<frmCalendar> calendar;
};

TEST_F(CalendarTest, ShowsThePresentMonthAndTurnsToAnotherByItsBoxes) {
    EXPECT_EQ(Shown(), u"6:31"_s); // 1 March 2026 is a Sunday: the sixth row is needed
    EXPECT_TRUE(Cell(36)->isVisible());
    QComboBox* months = calendar->findChildren<QComboBox*>()[0];
    QTest::keyClick(months, Qt::Key_Up);
    EXPECT_EQ(Shown(), u"6:28"_s);
    Type_Year(u"2008"_s);
    EXPECT_EQ(Shown(), u"4:29"_s); // 1 February 2008 was a Friday
    Type_Year(u"1999"_s);
    EXPECT_EQ(Shown(), u"4:29"_s);
    Type_Year(u"2100"_s);
    EXPECT_EQ(Shown(), u"4:29"_s);
    calendar->UpdateCalendar(13, 2010);
    EXPECT_EQ(Shown(), u"4:29"_s);
    calendar->Show_DateText(u"15/01/2100"_s); // only typing is limited
    EXPECT_EQ(Shown(), u"4:31"_s);
    QTest::keyClick(months, Qt::Key_Down);
    EXPECT_EQ(Shown(), u"0:29"_s);
}

TEST_F(CalendarTest, HandsBackTheDayThatWasClickedAndGoesAway) {
    QSignalSpy chosen(calendar, &frmCalendar::DateSelected);
    QTest::mouseClick(Cell(6), Qt::LeftButton);
    QTest::mouseClick(Cell(10), Qt::LeftButton);
    Press_Ok();
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen[0][0].toString(), u"05/03/2026"_s);
    EXPECT_TRUE(calendar->isHidden());
}

TEST_F(CalendarTest, AMonthThatIsTurnedTakesTheSelectionOffAndOkAsksForADay) {
    QSignalSpy chosen(calendar, &frmCalendar::DateSelected);
    calendar->Show_Date(31, 1, 2026);
    Type_Year(u"2027"_s);
    system.dialogs.Expect_Message(u"Please select a day"_s);
    Press_Ok();
    EXPECT_EQ(chosen.count(), 0);
    EXPECT_TRUE(calendar->isVisible());
}

TEST_F(CalendarTest, TheArrowKeysMoveTheDayWithinTheMonthAndEnterTakesIt) {
    QSignalSpy chosen(calendar, &frmCalendar::DateSelected);
    calendar->Show_DateText(u"29/01/2026"_s);
    const auto press = [this](Qt::Key key) {
        QWidget* focus = calendar->focusWidget();
        ASSERT_NE(focus, nullptr);
        QTest::keyClick(focus, key);
    };
    calendar->findChild<DayGrid*>()->Focus_Day();
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    press(Qt::Key_Right); // the 31st is the last
    press(Qt::Key_Up);
    press(Qt::Key_Left);
    EXPECT_EQ(Spoken_Name(calendar->focusWidget()), u"Friday, 23 January 2026"_s);
    press(Qt::Key_Return);
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen[0][0].toString(), u"23/01/2026"_s);
}

TEST_F(CalendarTest, EscapeGoesWithoutADateAndATextThatIsNoDateShowsThePresentMonth) {
    QSignalSpy chosen(calendar, &frmCalendar::DateSelected);
    calendar->Show_DateText(u"31/02/2008"_s);
    EXPECT_EQ(Shown(), u"6:31"_s);
    QTest::keyClick(Cell(20), Qt::Key_Escape);
    EXPECT_EQ(chosen.count(), 0);
    EXPECT_TRUE(calendar->isHidden());
}
