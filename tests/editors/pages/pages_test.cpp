// The two pages through events, with a host that selects one reminder.
#include "controls/chk_box.h"
#include "controls/tooltip_picture.h"
#include "controls/unload_queue.h"
#include "controls/wb_button.h"
#include "core/date_text.h"
#include "editors/calendar/frm_calendar.h"
#include "editors/pages/date_page.h"
#include "editors/pages/hour_list.h"
#include "editors/pages/hour_page.h"
#include "editors/pages/page_controls.h"
#include "support/fake_system.h"
#include "support/form_driver.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest/QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr std::int32_t Today = 26 * 365 + 7 + 31 + 28 + 2; // Monday 2 March 2026

class Pages : public testing::Test, public EditHost {
protected:
    Pages() { Init_DateText(); }
    ~Pages() override {
        window.reset();
        Global_PendingUnloads.clear();
    }

    template <class Page>
    Page& Open() {
        auto* page = new Page(*this, window.get());
        window->resize(page->size());
        window->show();
        QApplication::setActiveWindow(window.get());
        return *page;
    }
    template <class Control>
    Control* Named(const QString& name) {
        return Find<Control>(name, window.get());
    }
    static QWidget* Popup(const QString& title) {
        for (QWidget* form : QApplication::topLevelWidgets())
            if (form->windowTitle() == title && form->isVisible())
                return form;
        return nullptr;
    }
    static QWidget* Clock() { return Popup(u"Tockly Clock"_s); }
    // What the clock's two boxes say.
    static QString Clock_Time() {
        QString time;
        for (const QLineEdit* box : Clock()->findChildren<QLineEdit*>())
            time += box->text();
        return time;
    }
    QString Starts() const {
        QString starts;
        for (const HourRow& row : Rows_Of(reminder))
            starts += row.Start;
        return starts;
    }
    void Click(const QString& box) { Click_On<ChkBox>(box, window.get()); }
    void Press(const QString& button) { Click_On<wbButton>(button, window.get()); }
    void Type(const QString& field, const QString& text) {
        Type_Into(Named<QLineEdit>(field), text);
    }
    DatePage& Open_DatePage() {
        auto& page = Open<DatePage>();
        QObject::connect(&page, &DatePage::NextRun_Changed, &page,
                         [this](Day day) { nextRun = day; });
        page.Load(reminder);
        return page;
    }
    void Open_HourPage() {
        hours = &Open<HourPage>();
        hours->Load(reminder);
    }

    ReminderClass* Selected_Reminder() override { return selected; }
    bool Save_View_To_Reminder(CategoryOnSave) override {
        const bool saved = hours->Store(reminder).isEmpty();
        if (goesOnSave)
            selected = nullptr;
        return saved;
    }

    FakeSystem system;
    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    ReminderClass reminder;
    ReminderClass* selected = &reminder;
    HourPage* hours = nullptr;
    bool goesOnSave = false; // the reminder is deleted while events are handled
    Day nextRun = -9;
};

TEST_F(Pages, The_next_run_follows_every_click_and_the_record_only_the_save) {
    reminder.rs_REveryDay = true;
    DatePage& page = Open_DatePage();
    EXPECT_EQ(nextRun, Today);
    Click(u"Each: Wednesday"_s);
    EXPECT_EQ(nextRun, Today + 2);
    EXPECT_TRUE(Named<QLabel>(u"Next run on: 03/04/2026"_s)->isVisible());
    QTest::keyClick(Named<ChkBox>(u"Each: Wednesday"_s), Qt::Key_Space);
    Click(u"Exact date: On:"_s);
    Type(u"Exact date"_s, u"03/20/2026"_s);
    EXPECT_EQ(nextRun, Today + 18);
    Type(u"Exact date"_s, u"13/20/2026"_s);
    EXPECT_EQ(nextRun, Today + 18); // cannot be read: nothing changes
    EXPECT_TRUE(reminder.rs_REveryDay);
    EXPECT_EQ(page.Store(reminder), u"Invalid (Days setup) Exact date: \r\n13/20/2026"_s);
    page.Mark_Fault();
    auto* field = Named<QLineEdit>(u"Exact date"_s);
    EXPECT_TRUE(field->hasFocus());
    const QPoint beside = field->geometry().topLeft() - QPoint(1, 1);
    EXPECT_EQ(page.grab().toImage().pixelColor(beside), QColor(255, 0, 0));
    system.clock.Set(2026, 3, 4, 9, 0);
    Click(u"Exact date: Tuesday"_s); // has passed
    EXPECT_EQ(page.Store(reminder), u"Selected (Days setup->Exact date) day is invalid"_s);
    page.Mark_Fault();
    EXPECT_TRUE(Named<ChkBox>(u"Exact date: Tuesday"_s)->hasFocus());
}

TEST_F(Pages, A_start_date_beside_an_exact_date_is_refused_with_a_beep) {
    Open_DatePage();
    Click(u"Exact date: Today"_s);
    nextRun = -9;
    Click(u"Start: Tomorrow"_s);
    EXPECT_EQ(system.desktop.beeps, 1);
    EXPECT_FALSE(Named<ChkBox>(u"Start: Tomorrow"_s)->Is_Ticked());
    EXPECT_TRUE(Named<ChkBox>(u"Start: Always active"_s)->Is_Ticked());
    EXPECT_TRUE(
        Named<QLabel>(u"You can't use a start date with an Exact date reminder."_s)->isVisible());
    Press(u"Set start date"_s);
    EXPECT_EQ(system.desktop.beeps, 2);
    EXPECT_EQ(Popup(u"Calendar"_s), nullptr);
    EXPECT_EQ(nextRun, -9);
}

TEST_F(Pages, This_and_Next_are_chosen_by_mouse_and_by_keyboard) {
    system.clock.Set(2026, 3, 4, 9, 0); // Wednesday
    DatePage& page = Open_DatePage();
    const QList<QRadioButton*> options = page.findChildren<QRadioButton*>();
    ASSERT_EQ(options.size(), 4);
    QTest::mouseClick(options[0], Qt::LeftButton, {}, {6, 8});
    EXPECT_TRUE(Named<ChkBox>(u"Exact date: Tuesday"_s)->Is_Blocked());
    options[0]->setFocus();
    QTest::keyClick(options[0], Qt::Key_Right);
    EXPECT_TRUE(options[1]->isChecked());
    EXPECT_FALSE(Named<ChkBox>(u"Exact date: Tuesday"_s)->Is_Blocked());
    Click(u"Exact date: Tuesday"_s);
    EXPECT_EQ(nextRun, Today + 8);
    page.Load(reminder);
    EXPECT_FALSE(options[1]->isChecked());
}

TEST_F(Pages, The_calendar_gives_its_date_to_the_field_that_asked) {
    Open_DatePage();
    Click(u"Exact date: On:"_s);
    Type(u"Exact date"_s, u"04/05/----"_s);
    Click(u"Exact date: Every year"_s);
    Press(u"Set exact date"_s);
    auto* calendar = qobject_cast<frmCalendar*>(Popup(u"Calendar"_s));
    ASSERT_NE(calendar, nullptr);
    QTest::mouseClick(calendar->findChild<wbButton*>(), Qt::LeftButton);
    EXPECT_EQ(Named<QLineEdit>(u"Exact date"_s)->text(), u"04/05/----"_s); // without its year
    EXPECT_EQ(Popup(u"Calendar"_s), nullptr);
    Click(u"Remind me: Every Day"_s);
    Press(u"Set start date"_s);
    calendar = qobject_cast<frmCalendar*>(Popup(u"Calendar"_s));
    ASSERT_NE(calendar, nullptr);
    calendar->Show_Date(7, 6, 2027);
    QTest::mouseClick(calendar->findChild<wbButton*>(), Qt::LeftButton);
    EXPECT_EQ(Named<QLineEdit>(u"Start date"_s)->text(), u"06/07/2027"_s);
    EXPECT_TRUE(Named<ChkBox>(u"Start: On:"_s)->Is_Ticked());
}

TEST_F(Pages, The_clock_follows_its_cell_and_the_cell_its_clock) {
    reminder.AddNewHourSetup({-1, 600, 840, 90});
    Open_HourPage();
    QTest::mouseClick(Named<QLineEdit>(u"Row 1: every"_s), Qt::LeftButton);
    EXPECT_EQ(Clock(), nullptr);
    QTest::mouseClick(Named<QLineEdit>(u"Row 1: until"_s), Qt::LeftButton);
    QWidget* clock = Clock();
    ASSERT_NE(clock, nullptr);
    EXPECT_EQ(Clock_Time(), u"1400"_s);
    Type(u"Row 1: until"_s, u"15:20"_s);
    EXPECT_EQ(Clock_Time(), u"1520"_s);
    auto* hourBox = clock->findChild<QLineEdit*>();
    hourBox->selectAll();
    QTest::keyClicks(hourBox, u"16"_s);
    EXPECT_EQ(Named<QLineEdit>(u"Row 1: until"_s)->text(), u"16:20"_s);
    QTest::mouseClick(Named<QLineEdit>(u"At"_s), Qt::LeftButton);
    EXPECT_EQ(Clock_Time(), u"2030"_s);
    Type(u"At"_s, u"07:45"_s);
    EXPECT_EQ(Clock_Time(), u"0745"_s);
    QTest::keyClick(Named<QLineEdit>(u"At"_s), Qt::Key_Escape);
    EXPECT_EQ(Clock(), nullptr);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(hours->internalWinId(), 0U); // no native window of its own for the clock's sake
    EXPECT_EQ(Named<QLineEdit>(u"Row 1: until"_s)->text(), u"16:20"_s);
}

TEST_F(Pages, The_clock_goes_when_the_user_is_elsewhere) {
    Open_HourPage();
    auto* field = Named<QLineEdit>(u"At"_s);
    auto* timer = window->findChild<QTimer*>(u"frmClockFocusTimer"_s);
    QSignalSpy ticks(timer, &QTimer::timeout);
    field->setFocus();
    QTest::mouseClick(field, Qt::LeftButton);
    EXPECT_NE(Clock(), nullptr);
    EXPECT_FALSE(timer->isActive()); // the user works in the field
    for (const auto& [title, stays] :
         {std::pair(u"Tockly Clock"_s, true), {u"Tockly Toolbar"_s, true}, {u"Mail"_s, false}}) {
        system.desktop.foregroundTitle = title;
        field->clearFocus();
        QCoreApplication::processEvents();
        QApplication::setActiveWindow(window.get());
        ASSERT_TRUE(ticks.wait());
        EXPECT_EQ(Clock() != nullptr, stays) << title.toStdString();
        EXPECT_EQ(timer->isActive(), stays);
    }
}

TEST_F(Pages, Rows_are_ticked_edited_and_deleted) {
    for (int hour = 1; hour <= 3; ++hour)
        reminder.AddNewHourSetup({-1, static_cast<std::int16_t>(hour * 60), 0, 0});
    Open_HourPage();
    Click(u"Row 2 enabled"_s);
    EXPECT_EQ(reminder.GetHourSetup(1).Enabled, 0);
    Click(u"Row 2 enabled"_s);
    EXPECT_EQ(reminder.GetHourSetup(1).Enabled, 0); // until the save
    Type(u"Row 3: at"_s, u"bad"_s);
    QTest::mouseClick(Named<HrDelLabel>(u"Delete row 1"_s), Qt::LeftButton);
    EXPECT_EQ(hours->findChild<HourList*>()->Row_Count(), 3);
    Type(u"Row 3: at"_s, u"04:00"_s);
    Named<HrDelLabel>(u"Delete row 1"_s)->setFocus();
    QTest::keyClick(Named<HrDelLabel>(u"Delete row 1"_s), Qt::Key_Space);
    EXPECT_EQ(Starts(), u"02:0004:00"_s);
    // A refused save leaves no row behind, and adding one brings none back to what it was.
    Type(u"Row 1: at"_s, u"bad"_s);
    EXPECT_EQ(hours->Store(reminder), u"Invalid time: \r\nbad"_s);
    Press(u"Add to list: At"_s);
    Type(u"Row 1: at"_s, u"01:30"_s);
    EXPECT_EQ(hours->Store(reminder), QString());
    EXPECT_EQ(Starts(), u"01:3004:0020:30"_s);
    goesOnSave = true;
    QTest::mouseClick(Named<HrDelLabel>(u"Delete row 1"_s), Qt::LeftButton);
    Click(u"Row 1 enabled"_s);
    Press(u"Add to list: At"_s);
    EXPECT_EQ(reminder.HourSetupList_Size(), 2);
}

TEST_F(Pages, A_list_without_end_scrolls_and_saves) {
    for (int row = 0; row < 30000; ++row)
        reminder.AddNewHourSetup({-1, static_cast<std::int16_t>(row % 1440), 0, 0});
    Open_HourPage();
    EXPECT_LT(hours->findChildren<HourRowView*>().size(), 20);
    auto* list = hours->findChild<HourList*>();
    list->Scroll_To(29999);
    Type(u"Row 30000: at"_s, u"11:11"_s);
    QTest::keyClick(Named<QLineEdit>(u"Row 30000: at"_s), Qt::Key_Up);
    EXPECT_EQ(Spoken_Name(QApplication::focusWidget()), u"Row 29999: at"_s);
    list->findChild<QScrollBar*>()->setValue(0); // the focus does not stay on another row
    EXPECT_EQ(QApplication::focusWidget(), list);
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(Spoken_Name(QApplication::focusWidget()), u"Row 1 enabled"_s);
    auto* label = Named<HrDelLabel>(u"Delete row 1"_s);
    QTest::mouseMove(label, label->rect().center());
    EXPECT_TRUE(label->Is_Hot());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !label->Is_Hot(); })); // the cursor is elsewhere
    EXPECT_EQ(hours->Store(reminder), QString());
    EXPECT_EQ(reminder.GetHourSetup(29999).StartMinute, 671);
}

} // namespace
