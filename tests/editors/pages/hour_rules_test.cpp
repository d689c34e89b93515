#include "editors/pages/hour_rules.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// The texts alone.
std::vector<HourRow> Shown(const ReminderClass& reminder) {
    std::vector<HourRow> rows = Rows_Of(reminder);
    for (HourRow& row : rows)
        row.Stored.reset();
    return rows;
}

HourRow Row(HourRowType type, const QString& start, const QString& until, const QString& period) {
    return {type, true, start, until, period, std::nullopt};
}

TEST(HourRules, Each_kind_of_row_goes_to_texts_and_back) {
    struct Case {
        HourSetup setup;
        HourRow row;
    };
    const Case cases[] = {
        {{-1, -1, 0, 0}, Row(HourRowType::AtStartUp, {}, {}, {})},
        {{-1, 0, 0, 0}, Row(HourRowType::At, u"00:00"_s, {}, {})},
        {{-1, 600, 840, 90}, Row(HourRowType::EveryFromTo, u"10:00"_s, u"14:00"_s, u"1h30m"_s)},
        {{-1, 1, 1439, 60}, Row(HourRowType::EveryFromTo, u"00:01"_s, u"23:59"_s, u"1h"_s)},
        {{-1, -1, 840, 5}, Row(HourRowType::EveryFromStartUp, {}, u"14:00"_s, u"5m"_s)}};
    ReminderClass reminder;
    std::vector<HourRow> rows;
    for (const Case& row : cases) {
        reminder.AddNewHourSetup(row.setup);
        rows.push_back(row.row);
    }
    EXPECT_EQ(Shown(reminder), rows);
    rows[1].Enabled = false;
    EXPECT_FALSE(Save_HourRows(rows, reminder));
    EXPECT_EQ(Shown(reminder), rows);
    EXPECT_EQ(reminder.GetHourSetup(1), (HourSetup{0, 0, 0, 0}));
    EXPECT_TRUE(Rows_Of(ReminderClass()).empty());
    // What no field takes when it is typed stays as the record has it.
    const HourSetup stored[] = {{-1, 2000, 0, 0}, {-1, 840, 600, -5}, {-1, -1, 1500, 2000}};
    ReminderClass odd;
    for (const HourSetup& setup : stored)
        odd.AddNewHourSetup(setup);
    rows = Rows_Of(odd);
    EXPECT_FALSE(Save_HourRows(rows, odd));
    for (std::int32_t index = 0; index < 3; ++index)
        EXPECT_EQ(odd.GetHourSetup(index), stored[index]) << index;
    rows[1].Until = u"11:00"_s; // before its start
    EXPECT_EQ(Save_HourRows(rows, odd)->Row, 1);
    rows[0].Start = u"33:21"_s;
    EXPECT_EQ(Save_HourRows(rows, odd)->Row, 0);
}

TEST(HourRules, A_bad_row_stops_the_save_and_leaves_those_before_it) {
    using enum HourRowType;
    struct Case {
        HourRow row;
        QString message;
    };
    const QString invalid = u"Invalid time: \r\n"_s;
    const QString order = u"'Starting at' value is greater than 'until' value"_s;
    const Case cases[] = {
        {Row(At, u"24:00"_s, {}, {}), invalid + u"24:00"_s},
        {Row(At, QString(), {}, {}), invalid},
        {Row(EveryFromTo, u"x"_s, u"y"_s, u"90"_s), invalid + u"90"_s}, // the first of three
        {Row(EveryFromTo, u"x"_s, u"y"_s, u"1h"_s), invalid + u"x"_s},
        {Row(EveryFromTo, u"10:00"_s, u"y"_s, u"1h"_s), invalid + u"y"_s},
        {Row(EveryFromTo, u"10:00"_s, u"10:00"_s, u"1h"_s), order},
        {Row(EveryFromTo, u"10:00"_s, u"10:01"_s, u"1h"_s), {}},
        {Row(EveryFromStartUp, {}, u"25:00"_s, u"5m"_s), invalid + u"25:00"_s},
        {Row(EveryFromStartUp, {}, u"00:00"_s, u"5m"_s), {}}};
    for (const Case& row : cases) {
        ReminderClass reminder;
        reminder.AddNewHourSetup({-1, 1, 2, 3});
        const auto fault = Save_HourRows(
            {Row(AtStartUp, {}, {}, {}), row.row, Row(AtStartUp, {}, {}, {})}, reminder);
        EXPECT_EQ(fault ? fault->Message : QString(), row.message);
        EXPECT_EQ(reminder.HourSetupList_Size(), fault ? 0 : 2);
        EXPECT_EQ(reminder.GetHourSetup(0), (HourSetup{-1, -1, 0, 0}));
        EXPECT_EQ(fault ? fault->Row : 1, 1);
    }
}

TEST(HourRules, Conditions_join_the_record_and_keep_what_is_typed_in_other_rows) {
    struct Case {
        const char* name;
        Condition condition;
        ConditionFields fields;
        QString message;
        std::optional<HourSetup> added;
    };
    const ConditionFields good{u"20:30"_s, u"1h30m"_s, u"10:00"_s, u"09:00"_s, true};
    const ConditionFields fromStart{{}, u"1h30m"_s, u"10:00"_s, u"09:00"_s, false};
    const ConditionFields badStart{{}, u"1h30m"_s, u"soon"_s, u"09:00"_s, false};
    const ConditionFields allBad{u"8"_s, u"9"_s, u"10"_s, u"11"_s, true};
    const QString invalid = u"Invalid time: \r\n"_s;
    const Case cases[] = {
        {"at start up", Condition::AtStartUp, allBad, {}, HourSetup{-1, -1, 0, 0}},
        {"at start up, a second time", Condition::AtStartUp, good, {}, std::nullopt},
        {"at", Condition::At, good, {}, HourSetup{-1, 1230, 0, 0}},
        {"at no time", Condition::At, allBad, invalid + u"8"_s, std::nullopt},
        {"until lies before start", Condition::Every, good, {}, HourSetup{-1, 600, 540, 90}},
        {"from the program's start", Condition::Every, fromStart, {}, HourSetup{-1, -1, 540, 90}},
        {"an unused start is read as well", Condition::Every, badStart, invalid + u"soon"_s,
         std::nullopt},
        {"no period", Condition::Every, allBad, invalid + u"9"_s, std::nullopt}};
    ReminderClass reminder;
    reminder.AddNewHourSetup({-1, 600, 0, 0});
    std::vector<HourRow> rows = Rows_Of(reminder);
    rows[0].Start = u"typed"_s;
    for (const Case& row : cases) {
        const std::int32_t before = reminder.HourSetupList_Size();
        EXPECT_EQ(Add_Condition(row.condition, row.fields, rows, reminder), row.message)
            << row.name;
        EXPECT_EQ(reminder.HourSetupList_Size(), before + (row.added ? 1 : 0)) << row.name;
        EXPECT_EQ(rows.size(), static_cast<std::size_t>(reminder.HourSetupList_Size() + 1));
        if (row.added) {
            EXPECT_EQ(reminder.GetHourSetup(before + 1), *row.added) << row.name;
            EXPECT_EQ(rows.back(), Row_Of(*row.added)) << row.name;
        }
    }
    EXPECT_EQ(rows[0].Start, u"typed"_s);
}

} // namespace
