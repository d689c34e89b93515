#include "core/record_stream.h"
#include "editors/list/function_rules.h"
#include "list_fixture.h"

namespace {

class ListRules : public ListTest {};

TEST_F(ListRules, A_filter_shows_the_used_reminders_of_its_category_in_the_order_of_the_table) {
    for (const QString& category : {u"Work"_s, QString(), u"WORK"_s, u"Home"_s, u"Work"_s})
        Add(u"x"_s, category);
    Global_Reminders[4].Pending = true;
    const struct {
        QString filter;
        std::vector<std::int32_t> slots;
    } rows[] = {{u"-- (All)"_s, {0, 1, 2, 3}},
                {u"-- (all)"_s, {0, 1, 2, 3}},
                {u"-- (No category)"_s, {1}},
                {u"work"_s, {0, 2}},
                {u"Nothing in this one"_s, {}}};
    for (const auto& row : rows)
        EXPECT_EQ(Visible_Slots(row.filter), row.slots) << row.filter.toStdString();
}

TEST_F(ListRules, What_becomes_of_a_category_pasted_and_made_under_a_filter) {
    const QString filters[][3] = {{u"-- (All)"_s, QString(), u"-- (All)"_s},
                                  {u"-- (No category)"_s, QString(), QString()},
                                  {u"Work"_s, u"Work"_s, u"Work"_s}};
    for (const auto& row : filters) {
        EXPECT_EQ(Category_OfNew(row[0]), row[1]);
        EXPECT_EQ(Category_OfPasted(row[0]), row[2]);
    }
}

TEST_F(ListRules, A_text_that_was_not_edited_keeps_its_line_breaks) {
    const QString odd = u"a\nb\rc\r\nd\u2029e"_s;
    EXPECT_EQ(Text_ForBox(odd), u"a\nb\nc\nd\ne"_s);
    EXPECT_EQ(Text_ForRecord(Text_ForBox(odd), odd), odd);
    EXPECT_EQ(Text_ForRecord(u"a\nb"_s, odd), u"a\r\nb"_s);
}

TEST_F(ListRules, What_the_function_editor_stores) {
    const FunctionEntry before{true, FunctionType::OpenFile, 2, u"old"_s, u"Caption"_s};
    const struct {
        const char* name;
        FunctionBoxes boxes;
        QString page, file;
        FunctionType type;
        int mode;
        QString path;
    } rows[] = {
        {"an address without a scheme",
         {true, false, true},
         u" a.org "_s,
         u"f"_s,
         FunctionType::OpenPage,
         0,
         u"http://a.org"_s},
        {"one with a scheme",
         {true, false, false, true},
         u"ftp://a"_s,
         u"f"_s,
         FunctionType::OpenPage,
         1,
         u"ftp://a"_s},
        {"an emptied address", {true}, u" "_s, {}, FunctionType::OpenPage, 0, u"http://"_s},
        {"a file",
         {false, true, false, false, true},
         u"a"_s,
         u" c:\\a b "_s,
         FunctionType::OpenFile,
         2,
         u"c:\\a b"_s},
        {"neither", {false, false, true}, u"a"_s, u"b"_s, FunctionType::None, 0, {}},
    };
    for (const auto& row : rows) {
        const FunctionEntry stored = Function_FromView(before, row.boxes, row.page, row.file);
        EXPECT_EQ(stored, (FunctionEntry{true, row.type, static_cast<std::uint8_t>(row.mode),
                                         row.path, u"Caption"_s}))
            << row.name;
    }
    // Bytes of a damaged file tick nothing.
    EXPECT_EQ(Boxes_OfFunction({true, static_cast<FunctionType>(9), 7, {}, {}}), FunctionBoxes{});
    EXPECT_EQ(Boxes_OfFunction(before), (FunctionBoxes{false, true, false, false, true}));
}

TEST_F(ListRules, A_reminder_keeps_its_name_when_it_moves_and_loses_it_when_it_is_deleted) {
    Add(u"a"_s);
    Add(u"b"_s);
    const ReminderRef first = ReminderRef::Of_Slot(0);
    const ReminderRef second = ReminderRef::Of_Slot(1);
    Delete_ReminderSlot(0);
    EXPECT_EQ(first.Slot(), -1);
    EXPECT_EQ(second.Slot(), 0);
    EXPECT_EQ(second.Peek()->rs_Title, u"b"_s);
    clock.Advance(50);
    Add(u"c"_s); // gets the number of the first one, and may get its memory
    EXPECT_EQ(first.Get(), nullptr);
    EXPECT_FALSE(ReminderRef::Of_Slot(30).Is_Set());
}

TEST_F(ListRules, A_copy_survives_a_full_disk_and_a_damaged_one_is_not_pasted) {
    ReminderClass& source = Reminder(Add(u"source"_s, u"Work"_s));
    source.rs_DayCreated = 5;
    std::unique_ptr<ReminderClass> pasted;
    ASSERT_TRUE(files.Replace(paths.Program_Folder() + u"/temp.dat"_s, "rObj"));
    EXPECT_EQ(Read_CopyBuffer(pasted), PasteResult::Nothing); // of an earlier run
    ASSERT_TRUE(Write_CopyBuffer(source));
    source.rs_Title = u"later"_s;
    files.bytesLeft = 20;
    EXPECT_FALSE(Write_CopyBuffer(source));
    files.bytesLeft = -1;
    ASSERT_EQ(Read_CopyBuffer(pasted), PasteResult::Pasted);
    EXPECT_EQ(pasted->rs_Title, u"source"_s);
    EXPECT_EQ(pasted->rs_DayCreated, Monday);
    EXPECT_EQ(pasted->rs_ID, 1);
    ASSERT_TRUE(files.Replace(paths.Program_Folder() + u"/temp.dat"_s, "rObj003"));
    EXPECT_EQ(Read_CopyBuffer(pasted), PasteResult::Damaged);
}

} // namespace
