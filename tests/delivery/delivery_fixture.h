// A toolbar and a line that write down what is asked of them, and fresh tables.
#pragma once

#include "controls/timers.h"
#include "core/remind_again.h"
#include "core/reminder_ref.h"
#include "delivery/deliver.h"
#include "delivery/message_line.h"
#include "delivery/message_queue.h"
#include "support/fake_clock.h"
#include "support/fake_toolbar.h"
#include "support/scripted_dialogs.h"

#include <QStringList>
#include <gmock/gmock.h>

struct FakeLine : MessageLine {
    QStringList puts; // every text that came onto the line
    int left = 0;
    bool cleared = false;
    mutable int measured = 0;

    int Line_Width() const override { return 10; }
    int Text_Width(const QString& text) const override { return ++measured, int(text.size()); }
    void Put_Text(const QString& text, int width, int newLeft) override {
        EXPECT_EQ(width, text.size());
        puts << text;
        left = newLeft;
        cleared = false;
    }
    void Move_Text(int newLeft) override { left = newLeft; }
    void Clear_Line() override { cleared = true; }
};

class DeliveryTest : public testing::Test {
protected:
    DeliveryTest() {
        Global_Timers = &timers;
        Global_MessageLine = &line;
        Start_Afresh(9, 0, 0);
    }
    void Start_Afresh(int hour, int minute, int second) {
        clock.Set(2026, 3, 2, hour, minute, second);
        Init_TimeRoutines();
        Init_Reminders();
        Init_RA_Reminders();
        Init_MessageWinRoutines();
        line.puts.clear();
    }
    // Slot of a new reminder.
    std::int32_t Add_Reminder(const QString& text) {
        const std::int32_t index = Take_FreeReminderSlot();
        ReminderSlot& slot = Global_Reminders[static_cast<std::size_t>(index)];
        slot = {true, false, std::make_unique<ReminderClass>()};
        slot.Reminder->rs_ID = index;
        slot.Reminder->rs_Text = text;
        return index;
    }
    static ReminderRef Ref(std::int32_t index) { return ReminderRef::Of_Slot(index); }
    ReminderClass& Reminder(std::int32_t index) {
        return *Global_Reminders[static_cast<std::size_t>(index)].Reminder;
    }

    FakeClock clock;
    ScriptedDialogs dialogs;
    Timers timers;
    FakeToolbar toolbar;
    FakeLine line;
};
