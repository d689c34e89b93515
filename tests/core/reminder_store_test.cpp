#include "core_test.h"

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

TEST_F(ReminderStore, An_Empty_Table_Is_Sixteen_Bytes_And_A_File_Of_Its_Own) {
    EXPECT_EQ(Global_Reminders.size(), 51U);
    ASSERT_TRUE(Save_Reminders(dataFile));
    EXPECT_EQ(files.content[dataFile], emptyFile);
    files.content[exampleFile] = "anything";
    EXPECT_EQ(Load_AccountReminders(u"/user"_s, exampleFile), TableLoad::Loaded);
    EXPECT_EQ(Global_Reminders.size(), 21U);
    // The backup is of the last one that could be loaded.
    const std::pair<const char*, TableLoad> cases[] = {{"RSaveFile002", TableLoad::UnknownVersion},
                                                       {"else", TableLoad::Invalid}};
    for (const auto& [bytes, result] : cases) {
        files.content[dataFile] = bytes;
        EXPECT_EQ(Load_AccountReminders(u"/user"_s, exampleFile), result);
        EXPECT_EQ(files.content[u"/user/reminders.bak"_s], emptyFile);
        EXPECT_EQ(Global_Reminders.size(), 21U);
    }
}

TEST_F(ReminderStore, A_New_Account_Gets_The_Examples_Whatever_They_Are) {
    EXPECT_EQ(Load_AccountReminders(u"/user"_s, exampleFile), TableLoad::NoFile);
    EXPECT_EQ(Global_Reminders.size(), 51U);
    Add_Reminder(4).rs_DateType_Used = DateType::ExactDate; // and no date: for the first day
    ReminderClass& yearly = Add_Reminder(5);
    yearly.rs_DateType_Used = DateType::ExactDate;
    yearly.rs_SRDay = 24;
    yearly.rs_SRMonth = 12;
    ASSERT_TRUE(Save_Reminders(exampleFile));
    EXPECT_EQ(Load_AccountReminders(u"/user"_s, exampleFile), TableLoad::NoFile);
    EXPECT_EQ(Used_Ids(), (std::vector<std::int32_t>{4, 5}));
    EXPECT_EQ(Global_Reminders[1].Reminder->rs_SRYear, 0);
    EXPECT_EQ(Global_Reminders[1].Reminder->GetNext_RunDate(), DateToDay(24, 12, 2026));
    EXPECT_EQ(Global_Reminders[1].Reminder->rs_SRLongday, DateToDay(24, 12, 2026));
    EXPECT_EQ(Global_Reminders[0].Reminder->GetNext_RunDate(), DateToDay(2, 3, 2026));
    EXPECT_EQ(Global_Reminders[0].Reminder->rs_SRYear, 2026);
    files.content[exampleFile] = "broken";
    EXPECT_EQ(Load_AccountReminders(u"/user"_s, exampleFile), TableLoad::NoFile);
    EXPECT_EQ(Global_Reminders.size(), 21U);
    EXPECT_TRUE(Save_Reminders(dataFile));
    EXPECT_EQ(files.content.size(), 2U) << "no backup, nothing damaged of the account";
}

TEST_F(ReminderStore, A_Table_That_Changes_While_It_Is_Encoded_Comes_Out_As_It_Stands_In_The_End) {
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

TEST_F(ReminderStore, A_Pending_Reminder_Is_Not_Saved_And_A_Too_Long_Text_Saves_Nothing) {
    Add_Reminder(1);
    Add_Reminder(2);
    Global_Reminders[0].Pending = true;
    ASSERT_TRUE(Save_Reminders(dataFile));
    const std::string before = files.content[dataFile];
    Global_Reminders[1].Reminder->SetFuncion(
        0, {true, FunctionType::OpenFile, 0, QString(70000, u'x'), {}});
    EXPECT_FALSE(Save_Reminders(dataFile));
    EXPECT_EQ(files.content[dataFile], before);
    ASSERT_EQ(Load_Reminders(dataFile), TableLoad::Loaded);
    EXPECT_EQ(Used_Ids(), (std::vector<std::int32_t>{2}));
}

TEST_F(ReminderStore, A_Freed_Number_Is_Given_Again) {
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

TEST_F(ReminderStore, Deleted_Slots_Close_Up_In_Order_And_The_Table_Grows_By_Twenty) {
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
