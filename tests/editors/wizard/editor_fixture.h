// What the tests of both dialogs for new reminders stand on: fresh tables, Monday 2 March 2026 at
// nine, and a toolbar that writes down what is asked.
#pragma once

#include "controls/program_end.h"
#include "controls/unload_queue.h"
#include "controls/wb_button.h"
#include "core/categories.h"
#include "core/date_text.h"
#include "core/reminder_store.h"
#include "support/fake_system.h"
#include "support/fake_toolbar.h"
#include "support/form_driver.h"

#include <QLabel>
#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

constexpr Day Monday = 9558; // 26 years of 365 days, 7 leap days before, 59 days, the 2nd

class EditorTest : public testing::Test {
protected:
    EditorTest() {
        system.clock.Set(2026, 3, 2, 9, 0);
        Init_TimeRoutines();
        Init_DateText();
        Init_Reminders();
        Init_Categories();
        Global_Categories[0] = {u"Work"_s, u"Write"_s};
        Global_DateFormat = u"dd/mm/yyyy"_s;
    }
    ~EditorTest() override {
        Set_Program_Ending(false);
        Unload_PendingForms();
        Global_DateFormat = u"mm/dd/yyyy"_s;
    }
    void Click(const QString& name) { Click_On<QWidget>(name, window); }
    void Type(const QString& name, const QString& text) {
        Type_Into(Find<QWidget>(name, window), text);
    }
    QString Text_Of(const QString& field) { return Find<QLineEdit>(field, window)->text(); }
    // A sentence that is on view.
    bool Says(const QString& text) { return Find<QLabel>(text, window)->isVisible(); }
    static std::size_t Used_Slots() {
        return static_cast<std::size_t>(
            std::count_if(Global_Reminders.begin(), Global_Reminders.end(),
                          [](const ReminderSlot& slot) { return slot.Used; }));
    }
    static const ReminderClass& Made(std::size_t slot) {
        return Global_Reminders[slot].Reminder.Peek();
    }
    // Start minutes of the hour setups, "1080 -1".
    static QString Hours(const ReminderClass& reminder) {
        QStringList starts;
        for (std::int32_t i = 0; i <= reminder.HourSetupList_Size(); ++i)
            starts << QString::number(reminder.GetHourSetup(i).StartMinute);
        return starts.join(u' ');
    }

    FakeSystem system;
    FakeToolbar toolbar;
    QWidget* window = nullptr;
};
