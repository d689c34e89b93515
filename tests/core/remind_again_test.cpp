#include "core/remind_again.h"
#include "core/reminder_ref.h"
#include "core_test.h"

using namespace Qt::StringLiterals;

namespace {

const QString optionsFile = u"/program/runagain.txt"_s;
const QString queueFile = u"/user/rareminders.dat"_s;

// 2 March 2026, 09:00.
constexpr Day Today = 26 * 365 + 7 + 31 + 28 + 2;

class RemindAgain : public CoreTest {
protected:
    RemindAgain() { Init_RA_Reminders(); }
    // The first numbers of the reminders that one pass delivers.
    std::vector<std::int32_t> Check() {
        std::vector<std::int32_t> delivered;
        Check_RA_Reminders([&](const ReminderRef& due) { delivered.push_back(due.Get()->rs_ID); });
        return delivered;
    }
};

const char defaultText[] = "// List of options in the \"Remind me again\" menu\r\n//\r\n"
                           "// This values are in minutes\r\n\r\n"
                           "5\r\n10\r\n15\r\n30\r\n45\r\n60\r\n90\r\n120\r\n";
const std::vector<std::int32_t> defaults{5, 10, 15, 30, 45, 60, 90, 120};

std::string Numbers(int count) {
    std::string text;
    for (int number = 1; number <= count; ++number)
        text += std::to_string(number) + ",";
    return text;
}

} // namespace

TEST_F(RemindAgain, The_Choices_Are_The_Numbers_Of_The_File) {
    const std::pair<std::string, std::vector<std::int32_t>> cases[] = {
        {"1\r\n 20\t\r\n300", {1, 20, 300}},
        {"// a, 7, b\n0\n15 minutes\n3,,4\r5", {7, 3, 4, 5}},
        {"1e999\nnan\ninf\n99999999999\n-8\n2.6\n", {-8, 3}},
        {std::string("\0\xFF,9,", 5), {9}}};
    for (const auto& [text, options] : cases) {
        files.content[optionsFile] = text;
        Load_RA_Options(optionsFile);
        EXPECT_EQ(Global_RA_Options, options) << text;
        EXPECT_EQ(files.content[optionsFile], text);
    }
    files.content[optionsFile] = Numbers(101);
    Load_RA_Options(optionsFile);
    EXPECT_EQ(Global_RA_Options.size(), 101U);
}

TEST_F(RemindAgain, A_File_Without_Choices_Is_Written_Anew_And_One_With_Too_Many_Stays) {
    Load_RA_Options(optionsFile);
    EXPECT_EQ(files.content[optionsFile], defaultText);
    Load_RA_Options(optionsFile);
    EXPECT_EQ(Global_RA_Options, defaults);
    for (const std::string& text : {std::string(), std::string("// 5\r\n//\r\n0\r\n")}) {
        Global_RA_Options = {1};
        files.content[optionsFile] = text;
        Load_RA_Options(optionsFile);
        EXPECT_EQ(Global_RA_Options, defaults);
        EXPECT_EQ(files.content[optionsFile], defaultText);
    }
    Global_RA_Options = {1};
    files.content[optionsFile] = Numbers(102);
    Load_RA_Options(optionsFile);
    EXPECT_EQ(Global_RA_Options, defaults);
    EXPECT_EQ(files.content[optionsFile], Numbers(102));
    files.refused.insert(optionsFile);
    Load_RA_Options(optionsFile);
    EXPECT_EQ(files.content[optionsFile], Numbers(102));
}

TEST_F(RemindAgain, Captions_Read_As_The_Menu_Shows_Them) {
    const std::pair<std::int32_t, QString> cases[] = {{1, u"1 minute"_s},
                                                      {5, u"5 minutes"_s},
                                                      {59, u"59 minute"_s},
                                                      {60, u"1 hour "_s},
                                                      {61, u"1 hour and 1 minutes"_s},
                                                      {90, u"1 hour and 30 minutes"_s},
                                                      {119, u"1 hour and 59 minute"_s},
                                                      {120, u"2 hours "_s},
                                                      {135, u"2 hours and 15 minutes"_s}};
    for (const auto& [minutes, caption] : cases)
        EXPECT_EQ(RA_Caption(minutes), caption);
}

TEST_F(RemindAgain, A_Choice_Counts_From_Now_And_Loses_A_Minute_Over_Midnight) {
    struct Case {
        int hour, minute;
        std::int32_t minutes;
        RA_Time time;
    };
    const Case cases[] = {{9, 0, 30, {Today, 570}},
                          {23, 50, 9, {Today, 1439}},
                          {23, 50, 10, {Today + 1, 1}},
                          {23, 50, 30, {Today + 1, 21}},
                          {9, 0, 2880, {Today + 2, 542}},
                          {9, 0, -600, {Today, -60}},
                          {0, 0, 2147483647, {Today + 1492344, 631}}};
    for (const Case& row : cases) {
        clock.Set(2026, 3, 2, row.hour, row.minute);
        Global_RA_Options = {1, row.minutes};
        Init_RA_Reminders();
        Global_RA_Options = {1, row.minutes};
        ASSERT_TRUE(Choose_RA(1, 4, 5));
        EXPECT_EQ(Global_RA_Reminders[0], (RA_Entry{row.time.Day, row.time.Minute, 4, 5}))
            << row.minutes;
    }
    EXPECT_FALSE(Choose_RA(2, 4, 5) || Choose_RA(-1, 4, 5));
    EXPECT_EQ(Global_RA_Last, 0);
}

TEST_F(RemindAgain, A_Due_Entry_Is_Delivered_Once_On_Its_Own_Day_Only) {
    Add_Reminder(1);
    clock.Set(2026, 3, 2, 23, 50);
    Choose_RA(3, 1, 0); // 30 minutes
    clock.Set(2026, 3, 3, 0, 20);
    EXPECT_TRUE(Check().empty());
    clock.Set(2026, 3, 3, 0, 21, 59);
    EXPECT_EQ(Check(), std::vector{1});
    EXPECT_TRUE(Check().empty());
    for (const int day : {3, 4}) { // closed until late on its day, and until the day after
        Choose_RA(0, 1, 0);
        ASSERT_TRUE(Save_RA_Reminders(queueFile));
        Init_RA_Reminders();
        ASSERT_EQ(Load_RA_Reminders(queueFile), TableLoad::Loaded);
        clock.Set(2026, 3, day, 23, 0);
        EXPECT_EQ(Check(), day == 3 ? std::vector{1} : std::vector<std::int32_t>());
        EXPECT_EQ(Global_RA_Last, -1);
        clock.Set(2026, 3, 3, 1, 0);
    }
    Choose_RA(0, 2, 0); // of a deleted reminder
    clock.Advance(600000);
    EXPECT_TRUE(Check().empty());
    EXPECT_EQ(Global_RA_Last, -1);
}

TEST_F(RemindAgain, An_Entry_That_Moves_Waits_For_The_Next_Pass) {
    for (const std::int32_t id : {1, 2, 3, 4}) {
        Add_Reminder(id);
        Add_RA_Reminder(id, 0, Today, id == 2 ? 1439 : 540);
    }
    EXPECT_EQ(Check(), (std::vector{1, 3})); // 4 took the place of 1
    EXPECT_EQ(Check(), std::vector{4});
    EXPECT_EQ(Global_RA_Last, 0);
    EXPECT_EQ(Global_RA_Reminders[0].ID, 2);
    for (int number = 0; number < 150; ++number)
        Add_RA_Reminder(number, 0, Today, 1439);
    EXPECT_EQ(Global_RA_Reminders.size(), 151U);
    for (const std::int32_t index : {-1, 151, 150})
        Remove_RA_Reminder(index);
    EXPECT_EQ(Global_RA_Last, 149);
}

TEST_F(RemindAgain, The_File_Holds_The_Entries_And_Its_Old_Tail) {
    ASSERT_TRUE(Save_RA_Reminders(queueFile));
    const std::string header = "RA_Reminders";
    EXPECT_EQ(files.content[queueFile], header + From_Hex("FFFFFFFF"));
    Add_RA_Reminder(7, -2, 9558, 1201);
    Add_RA_Reminder(3, 4, 1, 2);
    ASSERT_TRUE(Save_RA_Reminders(queueFile));
    const std::string first = From_Hex("56250000 B1040000 07000000 FEFFFFFF");
    const std::string second = From_Hex("01000000 02000000 03000000 04000000");
    EXPECT_EQ(files.content[queueFile], header + From_Hex("01000000") + first + second);
    Remove_RA_Reminder(1);
    ASSERT_TRUE(Save_RA_Reminders(queueFile));
    EXPECT_EQ(files.content[queueFile], header + From_Hex("00000000") + first + second);
    Init_RA_Reminders();
    ASSERT_EQ(Load_RA_Reminders(queueFile), TableLoad::Loaded);
    EXPECT_EQ(Global_RA_Last, 0);
    EXPECT_EQ(Global_RA_Reminders, (std::vector{RA_Entry{9558, 1201, 7, -2}}));
}
