#include "core_test.h"
#include "support/fake_files.h"

#include <QDir>
#include <QTemporaryDir>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

const QString dataFile = u"/user/reminders.dat"_s;
const QString exampleFile = u"/program/examplereminders.dat"_s;
const std::string emptyFile = "RSaveFile001" + std::string(4, '\0');

std::vector<std::int32_t> Used_Ids() {
    std::vector<std::int32_t> ids;
    for (const ReminderSlot& slot : Global_Reminders) {
        if (slot.Used)
            ids.push_back(slot.Reminder->rs_ID);
    }
    return ids;
}

} // namespace

using ReminderStore = CoreTest;

TEST_F(ReminderStore, AnEmptyTableIsSixteenBytesAndAFileOfItsOwn) {
    EXPECT_EQ(Global_Reminders.size(), 51U);
    ASSERT_TRUE(Save_Reminders(dataFile));
    EXPECT_EQ(files.content[dataFile], emptyFile);
    files.content[exampleFile] = "anything";
    EXPECT_EQ(Load_AccountReminders(u"/user"_s, exampleFile), AccountLoad::Loaded);
    EXPECT_EQ(Global_Reminders.size(), 21U);
}

TEST_F(ReminderStore, ANewAccountGetsTheExamplesWhateverTheyAre) {
    EXPECT_EQ(Load_AccountReminders(u"/user"_s, exampleFile), AccountLoad::NoFile);
    EXPECT_EQ(Global_Reminders.size(), 51U);
    Add_Reminder(4).rs_DateType_Used = DateType::ExactDate; // and no date: for the first day
    ReminderClass& yearly = Add_Reminder(5);
    yearly.rs_DateType_Used = DateType::ExactDate;
    yearly.rs_SRDay = 24;
    yearly.rs_SRMonth = 12;
    ASSERT_TRUE(Save_Reminders(exampleFile));
    EXPECT_EQ(Load_AccountReminders(u"/user"_s, exampleFile), AccountLoad::Examples);
    EXPECT_EQ(Used_Ids(), (std::vector<std::int32_t>{4, 5}));
    EXPECT_EQ(Global_Reminders[1].Reminder->rs_SRYear, 0);
    EXPECT_EQ(Global_Reminders[1].Reminder->GetNext_RunDate(), DateToDay(24, 12, 2026));
    EXPECT_EQ(Global_Reminders[1].Reminder->rs_SRLongday, DateToDay(24, 12, 2026));
    EXPECT_EQ(Global_Reminders[0].Reminder->GetNext_RunDate(), DateToDay(2, 3, 2026));
    EXPECT_EQ(Global_Reminders[0].Reminder->rs_SRYear, 2026);
    files.content[exampleFile] = "broken";
    EXPECT_EQ(Load_AccountReminders(u"/user"_s, exampleFile), AccountLoad::Examples);
    EXPECT_EQ(Global_Reminders.size(), 21U);
    EXPECT_TRUE(Save_Reminders(dataFile));
    EXPECT_EQ(files.content.size(), 2U) << "no backup, nothing damaged of the account";
}

TEST_F(ReminderStore, WhatCouldNotBeLoadedIsKeptBesideTheSavedFile) {
    const std::pair<std::string, AccountLoad> cases[] = {
        {"RSaveFile002" + std::string(4, '\0'), AccountLoad::UnknownVersion},
        {"RSaveFile001" + From_Hex("01 00 00 00") + "rObj000", AccountLoad::UnknownVersion},
        {"something else", AccountLoad::InvalidFile},
        {"", AccountLoad::InvalidFile}};
    QString copy = dataFile + u".damaged"_s;
    int number = 1;
    for (const auto& [bytes, result] : cases) {
        files.content[dataFile] = bytes;
        EXPECT_EQ(Load_AccountReminders(u"/user"_s, exampleFile), result);
        ASSERT_TRUE(Save_Reminders(dataFile));
        EXPECT_EQ(files.content[copy], bytes);
        EXPECT_EQ(files.content[dataFile], emptyFile);
        ASSERT_TRUE(Save_Reminders(dataFile));
        copy = dataFile + u".damaged-"_s + QString::number(++number);
        EXPECT_FALSE(files.Exists(copy)) << "kept once";
    }
}

TEST_F(ReminderStore, ASaveIsRefusedWhenTheDamagedFileCannotBeKept) {
    files.content[dataFile] = "damaged";
    EXPECT_EQ(Load_Reminders(dataFile), -1);
    files.refused.insert(dataFile + u".damaged"_s);
    files.refused.insert(dataFile + u".damaged-2"_s);
    files.refused.insert(dataFile);
    EXPECT_FALSE(Save_Reminders(dataFile));
    EXPECT_EQ(files.content[dataFile], "damaged");
    files.refused.remove(dataFile);
    EXPECT_TRUE(Save_Reminders(dataFile));
    EXPECT_EQ(files.content[dataFile + u".damaged-3"_s], "damaged");
}

TEST_F(ReminderStore, WhatAnotherProgramWroteIsKeptBesideTheSavedFile) {
    ASSERT_TRUE(Save_Reminders(dataFile));
    TableFile& file = Reminders_File();
    EXPECT_EQ(file.Save_Changed(dataFile, emptyFile), SaveResult::Same);
    EXPECT_EQ(file.Save_Changed(dataFile, "ours"), SaveResult::Written);
    EXPECT_EQ(file.Take_OtherCopy(), QString());
    files.content[dataFile] = "theirs";
    files.refused.insert(dataFile + u".other"_s);
    EXPECT_EQ(file.Save_Changed(dataFile, "theirs"), SaveResult::Same) << "nothing is lost by it";
    EXPECT_EQ(file.Save_Changed(dataFile, "ours"), SaveResult::Written);
    EXPECT_EQ(files.content[dataFile + u".other-2"_s], "theirs");
    EXPECT_EQ(file.Take_OtherCopy(), dataFile + u".other-2"_s);
    EXPECT_EQ(file.Save_Changed(dataFile, "ours again"), SaveResult::Written);
    EXPECT_EQ(file.Take_OtherCopy(), QString());
    EXPECT_EQ(files.content.size(), 2U);

    files.content[dataFile] = emptyFile;
    ASSERT_EQ(Load_Reminders(dataFile), 0);
    files.content[dataFile] = "came after the load";
    ASSERT_TRUE(Save_Reminders(dataFile));
    EXPECT_EQ(files.content[file.Take_OtherCopy()], "came after the load");
}

TEST_F(ReminderStore, ATableThatChangesWhileItIsEncodedComesOutAsItStandsInTheEnd) {
    for (const bool keepsChanging : {false, true}) {
        Init_Reminders();
        for (std::int32_t id = 0; id < 30; ++id)
            Add_Reminder(id);
        RemindersEncoding encoding;
        EXPECT_FALSE(encoding.Step(20));
        Delete_ReminderSlot(3); // those behind it move under the step that is next
        Global_Reminders[5].Pending = true;
        while (!encoding.Step(7))
            if (keepsChanging)
                Add_Reminder(100);
        ASSERT_TRUE(Save_Reminders(dataFile));
        EXPECT_EQ(encoding.Take_Bytes(), files.content[dataFile]);
    }
}

TEST_F(ReminderStore, ASaveThatFailsLeavesTheOldFile) {
    FakeFiles disk;
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"reminders.dat"_s);
    Add_Reminder(1);
    ASSERT_TRUE(Save_Reminders(path));
    const std::optional<std::string> before = disk.Read(path);
    Add_Reminder(2);
    disk.bytesLeft = static_cast<std::int64_t>(before->size());
    EXPECT_FALSE(Save_Reminders(path));
    EXPECT_EQ(disk.Read(path), before);
    disk.bytesLeft = -1;
    disk.refusedWrites = {u"reminders.dat"_s};
    EXPECT_FALSE(Save_Reminders(path));
    EXPECT_EQ(disk.Read(path), before);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{u"reminders.dat"_s});
}

TEST_F(ReminderStore, ANameThatIsNoReadableFileIsInvalidAndRefused) {
    FakeFiles disk;
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"reminders.dat"_s);
    ASSERT_TRUE(QDir().mkpath(path + u"/inside"_s));
    EXPECT_EQ(Load_AccountReminders(folder.path(), exampleFile), AccountLoad::InvalidFile);
    EXPECT_FALSE(Save_Reminders(path));
    EXPECT_TRUE(QDir(path + u"/inside"_s).exists());

    ASSERT_TRUE(QDir(path).removeRecursively());
    ASSERT_TRUE(disk.Replace(path, emptyFile));
    disk.refusedReads = {u"reminders.dat"_s};
    EXPECT_EQ(Load_AccountReminders(folder.path(), exampleFile), AccountLoad::InvalidFile);
    EXPECT_FALSE(Save_Reminders(path));
    disk.refusedReads.clear();
    EXPECT_EQ(disk.Read(path), emptyFile);
}

TEST_F(ReminderStore, APendingReminderIsNotSavedAndATooLongTextSavesNothing) {
    Add_Reminder(1);
    Add_Reminder(2);
    Global_Reminders[0].Pending = true;
    ASSERT_TRUE(Save_Reminders(dataFile));
    const std::string before = files.content[dataFile];
    Global_Reminders[1].Reminder->SetFuncion(
        0, {true, FunctionType::OpenFile, 0, QString(70000, u'x'), {}});
    EXPECT_FALSE(Save_Reminders(dataFile));
    EXPECT_EQ(files.content[dataFile], before);
    ASSERT_EQ(Load_Reminders(dataFile), 0);
    EXPECT_EQ(Used_Ids(), (std::vector<std::int32_t>{2}));
}

TEST_F(ReminderStore, AFreedNumberIsGivenAgain) {
    const std::int32_t ids[] = {0,
                                1,
                                3,
                                3,
                                -7,
                                std::numeric_limits<std::int32_t>::max(),
                                std::numeric_limits<std::int32_t>::min()};
    for (const std::int32_t id : ids)
        Add_Reminder(id);
    clock.Set_Milliseconds(-5);
    std::int32_t id2 = 0;
    EXPECT_EQ(Get_NewReminderID(id2), 2);
    EXPECT_EQ(id2, -5);
    Global_Reminders[0].Reminder->rs_ID2 = 9;
    EXPECT_EQ(Find_ReminderIndex(0, 9), 0);
    EXPECT_EQ(Find_ReminderIndex(0, 0), -1);
    Delete_ReminderSlot(0);
    EXPECT_EQ(Get_NewReminderID(id2), 0);
    EXPECT_EQ(Find_ReminderIndex(0, 9), -1);
    EXPECT_EQ(Find_ReminderIndex(3, 0), 1) << "the first of two";
}

TEST_F(ReminderStore, DeletedSlotsCloseUpInOrderAndTheTableGrowsByTwenty) {
    for (std::int32_t id = 0; id < 51; ++id)
        Add_Reminder(id);
    EXPECT_EQ(Take_FreeReminderSlot(), 51);
    EXPECT_EQ(Global_Reminders.size(), 71U);
    Global_Reminders[30] = {};
    Delete_ReminderSlot(10);
    Delete_ReminderSlot(49);
    Delete_ReminderSlot(-1);
    Delete_ReminderSlot(1000);
    std::vector<std::int32_t> expected;
    for (std::int32_t id = 0; id < 51; ++id) {
        if (id != 10 && id != 30)
            expected.push_back(id);
    }
    EXPECT_EQ(Used_Ids(), expected);
    EXPECT_EQ(Take_FreeReminderSlot(), 49);
}

TEST_F(ReminderStore, ANewReminderStartsWithItsDefaults) {
    ReminderClass reminder;
    reminder.SetDefaultValues();
    EXPECT_TRUE(reminder.rs_Enabled && reminder.rs_REveryDay && reminder.rs_PlaySound);
    EXPECT_EQ(reminder.rs_Title + u'/' + reminder.rs_Text, u"Reminder/Insert text here"_s);
    EXPECT_EQ(reminder.GetHourSetup(0), (HourSetup{-1, 1200, 0, 0}));
    EXPECT_EQ(reminder.rs_Reminder_Type, ReminderType::NextToToolbar);
    EXPECT_EQ(reminder.rs_DayCreated, Counted_Day(QDate(2026, 3, 2)));
    EXPECT_EQ(reminder.GetFuncion(0).Title, u"Check E-mail"_s);
    EXPECT_FALSE(reminder.GetFuncion(0).Enabled);
}
