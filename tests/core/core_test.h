// The ground that the tests of the core stand on: a clock set by hand, files in memory, fresh
// tables.
#pragma once

#include "core/categories.h"
#include "core/date_text.h"
#include "core/record_stream.h"
#include "core/reminder_store.h"
#include "support/fake_clock.h"
#include "support/memory_files.h"

#include <QDate>
#include <gtest/gtest.h>

#include <string>

class CoreTest : public testing::Test {
protected:
    CoreTest() {
        clock.Set(2026, 3, 2, 9, 0);
        Init_TimeRoutines();
        Init_DateText();
        Init_Reminders();
        Init_Categories();
    }
    static ReminderClass& Add_Reminder(std::int32_t id = 0) {
        ReminderSlot& slot = Global_Reminders[static_cast<std::size_t>(Take_FreeReminderSlot())];
        slot = {true, false, std::make_unique<ReminderClass>()};
        slot.Reminder->rs_ID = id;
        return *slot.Reminder;
    }
    static std::string Record_Bytes(const ReminderClass& reminder) {
        RecordWriter stream;
        reminder.SaveData_To_File(stream);
        return stream.Bytes();
    }

    FakeClock clock;
    MemoryFiles files;
};

inline Moment Moment_At(QDate date, int minute) {
    return Moment_Of({date.year(), date.month(), date.day(), minute / 60, minute % 60, 0, 0});
}

// Counts from the first day of the calendar; right until the end of February 2100.
inline Day Counted_Day(QDate date) {
    return static_cast<Day>(QDate(2000, 1, 1).daysTo(date)) + 1;
}

inline std::string From_Hex(const char* hex) {
    return QByteArray::fromHex(hex).toStdString();
}
