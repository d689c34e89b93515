// Reminder files as bytes put together by the tests themselves, field by field.
#pragma once

#include <QByteArray>

#include <cstdint>
#include <vector>

struct TestReminder {
    std::int32_t id = 0;
    std::uint8_t type = 0; // inside the toolbar, next to it, centred
    QByteArray text = "Test";
    bool sound = false;
    QByteArray soundPath = "";
    std::int16_t startMinute = -1; // at start-up
    std::int16_t endMinute = 1439;
    std::int16_t everyMinutes = 1439;
};

inline void Put(QByteArray& bytes, std::int64_t value, int size) {
    for (int i = 0; i < size; ++i) {
        bytes.append(static_cast<char>(value >> (8 * i) & 0xFF));
    }
}

inline void Put_Text(QByteArray& bytes, const QByteArray& text) {
    Put(bytes, text.size(), 4);
    bytes += text;
}

// An enabled reminder of every day, version 003.
inline QByteArray Record_Of(const TestReminder& reminder) {
    QByteArray bytes = "rObj003";
    Put(bytes, -1, 2); // enabled
    Put(bytes, reminder.id, 4);
    Put(bytes, 1000 + reminder.id, 4);
    Put(bytes, reminder.type, 1);
    Put(bytes, 0, 2);  // no minimising
    Put(bytes, 0, 1);  // kind: every day
    Put(bytes, 0, 4);  // not disabled for a day
    Put(bytes, -1, 2); // every day
    Put(bytes, 0, 8);  // weekdays
    Put_Text(bytes, "Title");
    Put_Text(bytes, reminder.text);
    Put(bytes, 0, 6);     // every weeks, months, days
    Put(bytes, 0, 4);     // first run
    Put(bytes, 0, 4);     // day, month, year
    Put(bytes, 0, 4 * 4); // exact day, start date, last month, last week
    Put(bytes, reminder.sound ? -1 : 0, 2);
    Put_Text(bytes, reminder.soundPath);
    Put(bytes, 0, 4 * 8); // four empty functions
    Put(bytes, 0, 4);     // last index of the hours
    Put(bytes, -1, 2);
    Put(bytes, reminder.startMinute, 2);
    Put(bytes, reminder.endMinute, 2);
    Put(bytes, reminder.everyMinutes, 2);
    Put_Text(bytes, {});
    Put_Text(bytes, {});
    Put(bytes, 36526, 4); // ran long ago
    Put(bytes, 0, 4);
    Put(bytes, 1, 4); // created
    Put(bytes, 0, 4);
    return bytes;
}

inline QByteArray Reminder_File(const std::vector<TestReminder>& reminders) {
    QByteArray bytes = "RSaveFile001";
    Put(bytes, static_cast<std::int64_t>(reminders.size()), 4);
    for (const auto& reminder : reminders) {
        bytes += Record_Of(reminder);
    }
    return bytes;
}
