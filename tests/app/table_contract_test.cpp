// What holds for the file of every table: a damaged one is refused whole, and nothing that anybody
// may still want is lost by a load or a save.
#include "core/categories.h"
#include "core/remind_again.h"
#include "core/reminder_store.h"
#include "links/store/link_rec.h"
#include "notes/notes_store.h"
#include "support/fake_clock.h"
#include "support/fake_files.h"
#include "support/memory_files.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::string_literals;

namespace {

struct Refused {
    std::size_t at;
    std::string bytes;
    TableLoad result = TableLoad::Invalid;
};

struct Table {
    const char* name;
    void (*fill)(); // with what stands there when a load has failed
    TableLoad (*load)(const QString&);
    bool (*save)(const QString&);
    TableFile& (*file)();
    std::vector<Refused> refused;
};

const std::string NoCount[] = {"\xFF\xFF\xFF\x7F"s, "\xFE\xFF\xFF\xFF"s, "\0\0\0\x80"s};

void Fill_Reminders() {
    Init_Reminders();
    for (std::size_t slot : {0, 1}) {
        Global_Reminders[slot] = {true, false, std::make_unique<ReminderClass>()};
        Global_Reminders[slot].Reminder->SetDefaultValues();
    }
}

const Table tables[] = {
    {"reminders.dat",
     Fill_Reminders,
     Load_Reminders,
     Save_Reminders,
     Reminders_File,
     {{0, "r"},
      {11, "2", TableLoad::UnknownVersion},
      {16, "rObj000", TableLoad::UnknownVersion},
      {16, "rObJ003"}}},
    {"rareminders.dat",
     [] {
         Init_RA_Reminders();
         Add_RA_Reminder(1, 2, 3, 4);
         Add_RA_Reminder(5, 6, 7, 8);
     },
     Load_RA_Reminders,
     Save_RA_Reminders,
     RA_File,
     {{0, "r"}, {12, NoCount[0]}, {12, NoCount[1]}, {12, NoCount[2]}}},
    {"links.dat",
     [] {
         Global_LinkArray = {{u"0http://a"_s, u"Name"_s, {}, 2},
                             {u"@0Category"_s, u"C"_s, u"d"_s, 0}};
     },
     Load_Links_File,
     Save_Links_File,
     Links_File,
     {{0, "l"},
      {15, "2", TableLoad::UnknownVersion},
      {16, NoCount[0]},
      {16, NoCount[1]},
      {20, "\xFF\xFF"s}}},
    {"notes.dat",
     [] {
         Init_Notes();
         Notes_Build_Example();
     },
     Load_Notes_File,
     Save_Notes_File,
     Notes_File,
     {{0, "n"}, {13, "000", TableLoad::UnknownVersion}}},
};

class TableContract : public testing::Test {
protected:
    TableContract() { Init_TimeRoutines(); }

    // A program in which the table stands, and has been loaded from a sound file.
    void Begin(const Table& table) {
        file = u"/user/"_s + QLatin1String(table.name);
        table.fill();
        files.content.clear();
        ASSERT_TRUE(table.save(file));
        whole = files.content[file];
        ASSERT_EQ(table.load(file), TableLoad::Loaded);
    }
    // What a save writes after a load that failed: of the reminders nothing, of the others what
    // stood there before.
    std::string Standing(const Table& table) const {
        return table.file == Reminders_File ? "RSaveFile001" + std::string(4, '\0') : whole;
    }
    void Expect_Refused(const Table& table, const std::string& bytes,
                        TableLoad result = TableLoad::Invalid) {
        files.content = {{file, bytes}};
        EXPECT_EQ(table.load(file), result);
        ASSERT_TRUE(table.save(file));
        EXPECT_TRUE(files.content[file].starts_with(Standing(table)));
        EXPECT_EQ(files.content[file + u".damaged"_s], bytes);
        EXPECT_EQ(files.content.size(), 2U);
        ASSERT_EQ(table.load(file), TableLoad::Loaded);
    }

    FakeClock clock;
    MemoryFiles files;
    QString file;
    std::string whole;
};

} // namespace

TEST_F(TableContract, A_Damaged_File_Is_Refused_Whole_And_Kept) {
    for (const Table& table : tables) {
        SCOPED_TRACE(table.name);
        Begin(table);
        for (const Refused& row : table.refused) {
            std::string bytes = whole;
            bytes.replace(row.at, row.bytes.size(), row.bytes);
            Expect_Refused(table, bytes, row.result);
        }
        for (std::size_t size = 0; size < whole.size(); ++size) {
            SCOPED_TRACE(size);
            Begin(table);
            Expect_Refused(table, whole.substr(0, size));
        }
    }
}

TEST_F(TableContract, No_Changed_Byte_And_No_Count_Of_Nonsense_Loses_Anything) {
    for (const Table& table : tables) {
        Begin(table);
        std::vector<std::string> changed;
        for (std::size_t at = 0; at < whole.size(); ++at) {
            for (const int change : {0x01, 0x7F, 0x80, 0xFF}) {
                changed.push_back(whole);
                changed.back()[at] = static_cast<char>(whole[at] ^ change);
            }
            for (const std::string& count : NoCount) {
                changed.push_back(whole.substr(0, at) + count);
                changed.back() += whole.substr(std::min(changed.back().size(), whole.size()));
            }
        }
        for (const std::string& bytes : changed) {
            Begin(table);
            files.content = {{file, bytes}};
            const bool loaded = table.load(file) == TableLoad::Loaded;
            ASSERT_TRUE(table.save(file)) << table.name;
            EXPECT_EQ(files.content.size(), loaded ? 1U : 2U);
            EXPECT_EQ(files.content[file + u".damaged"_s], loaded ? "" : bytes);
            EXPECT_EQ(table.load(file), TableLoad::Loaded);
        }
    }
}

TEST_F(TableContract, Somebody_Elses_And_A_Damaged_File_Are_Kept_Once_Beside_Earlier_Copies) {
    for (const Table& table : tables) {
        SCOPED_TRACE(table.name);
        Begin(table);
        files.content[file] = "damaged";
        EXPECT_EQ(table.load(file), TableLoad::Invalid);
        for (const QString& copy : {u".damaged"_s, u".damaged-2"_s}) {
            files.refused.insert(file + copy);
        }
        files.refused.insert(file);
        EXPECT_FALSE(table.save(file));
        files.refused.remove(file);
        for (int saves = 0; saves < 2; ++saves) {
            ASSERT_TRUE(table.save(file));
            EXPECT_EQ(files.content[file + u".damaged-3"_s], "damaged");
            EXPECT_FALSE(files.Exists(file + u".damaged-4"_s)) << "kept once";
        }
        files.refused = {file + u".other"_s};
        files.content[file] = "theirs";
        ASSERT_TRUE(table.save(file));
        EXPECT_EQ(table.file().Take_OtherCopy(), file + u".other-2"_s);
        EXPECT_EQ(files.content[file + u".other-2"_s], "theirs");
        ASSERT_TRUE(table.save(file));
        EXPECT_EQ(table.file().Take_OtherCopy(), QString());
        files.refused.clear();
    }
    TableFile known;
    file += u"2"_s;
    EXPECT_EQ(known.Save_Changed(file, "ours"), SaveResult::Written);
    EXPECT_EQ(known.Save_Changed(file, "ours"), SaveResult::Same);
    files.content[file] = "theirs";
    EXPECT_EQ(known.Save_Changed(file, "theirs"), SaveResult::Same) << "nothing is lost by it";
    EXPECT_EQ(known.Take_OtherCopy(), QString());
}

TEST_F(TableContract, A_Save_That_Fails_Leaves_The_Old_File_And_What_Cannot_Be_Read_Stays) {
    FakeFiles disk;
    for (const Table& table : tables) {
        SCOPED_TRACE(table.name);
        const QTemporaryDir folder;
        const QString path = folder.filePath(QLatin1String(table.name));
        table.fill();
        ASSERT_TRUE(table.save(path));
        const auto before = disk.Read(path);
        disk.bytesLeft = static_cast<std::int64_t>(before->size()) - 1;
        EXPECT_FALSE(table.save(path));
        disk.bytesLeft = -1;
        for (QStringList* refused : {&disk.refusedWrites, &disk.refusedReads}) {
            refused->append(QLatin1String(table.name));
            EXPECT_EQ(table.load(path) == TableLoad::Loaded, refused == &disk.refusedWrites);
            EXPECT_FALSE(table.save(path));
            refused->clear();
            EXPECT_EQ(disk.Read(path), before);
        }
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 1);
        ASSERT_TRUE(QFile::remove(path));
        EXPECT_EQ(table.load(path), TableLoad::NoFile);
        ASSERT_TRUE(QDir().mkpath(path + u"/inside"_s));
        EXPECT_EQ(table.load(path), TableLoad::Invalid);
        EXPECT_FALSE(table.save(path));
        EXPECT_TRUE(QDir(path + u"/inside"_s).exists());
    }
}
