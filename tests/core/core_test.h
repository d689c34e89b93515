// The ground that the tests of the core stand on: a clock set by hand, files in memory, fresh
// tables.
#pragma once

#include "core/categories.h"
#include "core/date_text.h"
#include "core/record_stream.h"
#include "core/reminder_store.h"
#include "platform/files.h"
#include "support/fake_clock.h"
#include "support/provided.h"

#include <QDate>
#include <QSet>
#include <gtest/gtest.h>

#include <map>
#include <string>

class MemoryFiles : public Provided<platform::Files> {
public:
    std::map<QString, std::string> content;
    QSet<QString> refused; // may be neither read nor written, although they exist

    bool Exists(const QString& path) override {
        return content.contains(path) || refused.contains(path);
    }
    std::optional<std::string> Read(const QString& path) override {
        if (refused.contains(path) || !content.contains(path))
            return std::nullopt;
        return content[path];
    }
    bool Replace(const QString& path, const std::string& bytes) override {
        if (refused.contains(path))
            return false;
        content[path] = bytes;
        return true;
    }
    bool Copy(const QString& from, const QString& to, bool overwrite) override {
        const auto bytes = Read(from);
        return bytes && (overwrite || !Exists(to)) && Replace(to, *bytes);
    }
    platform::FileStamp Stamp(const QString& path) override {
        const auto bytes = Read(path);
        return bytes ? platform::FileStamp{std::hash<std::string>()(*bytes),
                                           static_cast<std::int64_t>(bytes->size()), 0, 0}
                     : platform::FileStamp();
    }
    void Sweep(const QString&) override {}
    bool Make_Folder(const QString&) override { return true; }
    std::optional<QStringList> Empty_Files(const QString&) override { return {}; }
};

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
