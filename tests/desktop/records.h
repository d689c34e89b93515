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
    std::int32_t lastRun = 36526; // as a run leaves it; 1: missed since the year 2000
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
    Put(bytes, reminder.lastRun, 4);
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

// What a saved record says, read field by field by the tests themselves.
struct SavedReminder {
    bool enabled = false;
    std::int32_t id = 0;
    std::uint8_t type = 0;
    std::uint8_t kind = 0;
    bool everyDay = false;
    QByteArray weekdays; // eight bytes
    QByteArray title;
    QByteArray text;
    std::int16_t reDays = 0;
    std::uint8_t day = 0;
    std::uint8_t month = 0;
    std::int16_t year = 0;
    std::int32_t startDay = 0;
    std::int32_t disabledForToday = 0;
    QByteArray sound;
    struct Hour {
        std::int16_t enabled, start, end, every;
    };
    std::vector<Hour> hours;
    QByteArray category;
    QByteArray icon;
    std::int32_t dayOfMonth = 0;
};

class RecordBytes {
public:
    explicit RecordBytes(const QByteArray& file) : bytes(file) {}

    std::int64_t Number(int size) {
        std::uint64_t value = 0;
        for (int i = 0; i < size && at < bytes.size(); ++i) {
            value |= std::uint64_t{static_cast<unsigned char>(bytes[at++])} << (8 * i);
        }
        const int unused = 64 - 8 * size;
        return static_cast<std::int64_t>(value << unused) >> unused;
    }
    QByteArray Take(std::int64_t size) {
        const QByteArray part = bytes.mid(at, size);
        at += part.size();
        return part;
    }
    QByteArray Text(int countSize) {
        const auto mask = (std::int64_t{1} << (8 * countSize)) - 1;
        return Take(Number(countSize) & mask);
    }

private:
    QByteArray bytes;
    qsizetype at = 0;
};

inline SavedReminder Read_Record(RecordBytes& in) {
    SavedReminder out;
    const auto number = [&in](auto& field, int size) {
        field = static_cast<std::remove_reference_t<decltype(field)>>(in.Number(size));
    };
    if (in.Take(7) != "rObj003") {
        return out;
    }
    out.enabled = in.Number(2) != 0;
    number(out.id, 4);
    in.Number(4);
    number(out.type, 1);
    in.Number(2);
    number(out.kind, 1);
    number(out.disabledForToday, 4);
    out.everyDay = in.Number(2) != 0;
    out.weekdays = in.Take(8);
    out.title = in.Text(4);
    out.text = in.Text(4);
    in.Number(4);
    number(out.reDays, 2);
    in.Number(4);
    number(out.day, 1);
    number(out.month, 1);
    number(out.year, 2);
    in.Number(4);
    number(out.startDay, 4);
    in.Take(8 + 2);
    out.sound = in.Text(4);
    for (int k = 0; k < 4; ++k) {
        in.Take(3);
        in.Text(2);
        in.Number(1);
        in.Text(2);
    }
    for (std::int64_t last = in.Number(4); last >= 0; --last) {
        SavedReminder::Hour hour{};
        number(hour.enabled, 2);
        number(hour.start, 2);
        number(hour.end, 2);
        number(hour.every, 2);
        out.hours.push_back(hour);
    }
    out.category = in.Text(4);
    out.icon = in.Text(4);
    in.Number(4);
    number(out.dayOfMonth, 4);
    in.Take(8);
    return out;
}

inline std::vector<SavedReminder> Saved_Reminders(const QByteArray& file) {
    RecordBytes in(file);
    std::vector<SavedReminder> all;
    if (in.Take(12) != "RSaveFile001") {
        return all;
    }
    for (std::int64_t count = in.Number(4); count > 0 && count < 100000; --count) {
        all.push_back(Read_Record(in));
    }
    return all;
}
