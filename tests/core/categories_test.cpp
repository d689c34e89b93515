#include "core/categories.h"
#include "core_test.h"

using namespace Qt::StringLiterals;

namespace {

const QString file = u"/user/rcategories.txt"_s;

QString Listed() {
    QString text;
    for (const CategoryEntry& entry : Global_Categories) {
        if (entry.Name.isEmpty())
            break;
        text += entry.Name + u'=' + entry.Icon + u' ';
    }
    return text.trimmed();
}

} // namespace

using Categories = CoreTest;

TEST_F(Categories, Lines_Of_Two_Parts_Are_Read_And_Others_Skipped) {
    const std::pair<std::string, QString> cases[] = {
        {"Work;Write\r\nTV;TV\r\n", u"Work=Write TV=TV"_s},
        {"a;b;c\r\nMisc;\r\nplain\r\n;Icon\r\n\r\nTV;TV", u"Misc= TV=TV"_s},
        {"Work;Write\nTV;TV\n", u"Work=Write TV=TV"_s},
        {"Caf\xE9;G\r\n\xEF\xBB\xBF\xE6\x97\xA5;H\r\n", u"Caf\u00E9=G \u65E5=H"_s}};
    for (const auto& [bytes, listed] : cases) {
        files.content[file] = bytes;
        Load_Categories(file);
        EXPECT_EQ(Listed(), listed) << bytes;
    }
    Save_Categories(file);
    EXPECT_EQ(files.content[file], "Caf\xE9;G\r\n\xEF\xBB\xBF\xE6\x97\xA5;H\r\n");
}

TEST_F(Categories, Without_Entries_The_Defaults_Stand) {
    const QString defaults = u"Work=Write Hobbies=Laptop Birthdays=Gift Family=Home TV=TV "
                             "Appointments=Planner Phone Calls=Mobile Misc="_s;
    Load_Categories(file);
    EXPECT_EQ(Listed(), defaults);
    for (const char* bytes : {"", "\r\n", "no category\r\n", ";;\r\n"}) {
        files.content[file] = bytes;
        Load_Categories(file);
        EXPECT_EQ(Listed(), defaults) << bytes;
    }
    files.content[file] = "Mine;Icon";
    files.refused.insert(file);
    Load_Categories(file);
    EXPECT_EQ(Listed(), defaults);
    Save_Categories(file);
    EXPECT_EQ(files.content[file], "Mine;Icon");
}

TEST_F(Categories, A_Name_That_A_Line_Cannot_Hold_Leaves_The_Others_Whole) {
    Global_Categories[0] = {u"One"_s, u"A"_s};
    Global_Categories[1] = {u"Bread;butter"_s, u"B"_s};
    Global_Categories[2] = {u"Two\r\nlines"_s, u"C"_s};
    Global_Categories[3] = {u"Four"_s, u"x;y"_s};
    Global_Categories[4] = {u"Five"_s, QString()};
    Save_Categories(file);
    EXPECT_EQ(files.content[file], "One;A\r\nFive;\r\n");
}

TEST_F(Categories, Reminders_Bring_Their_Categories_Along) {
    Load_Categories(file);
    const QString before = Listed();
    const std::pair<QString, QString> used[] = {{u"Garden"_s, u"Tree"_s},
                                                {u"GARDEN"_s, u"Spade"_s},
                                                {QString(), u"Gift"_s},
                                                {u"work"_s, u"Gift"_s}};
    for (const auto& [name, icon] : used) {
        ReminderClass& reminder = Add_Reminder();
        reminder.rs_Category = name;
        reminder.rs_Icon = icon;
    }
    Sync_CategoriesFromReminders();
    EXPECT_EQ(Listed(), before + u" Garden=Tree"_s);
    for (int index = 0; index < 30; ++index)
        Add_Reminder().rs_Category = u"C%1"_s.arg(index);
    Sync_CategoriesFromReminders();
    EXPECT_EQ(Find_Category(u"c29"_s), 9 + 29);
    EXPECT_EQ(Find_Category(u"WORK"_s), 0);
    EXPECT_EQ(Find_Category(u"none"_s), -1);
    EXPECT_EQ(Global_Categories.size() % 10, 1U);
}

TEST_F(Categories, A_Deleted_Category_Leaves_The_Table_And_The_Reminders) {
    Load_Categories(file);
    ReminderClass& reminder = Add_Reminder();
    reminder.rs_Category = u" work "_s;
    reminder.rs_Icon = u"Write"_s;
    const std::size_t size = Global_Categories.size();
    Delete_Category(u" WORK"_s);
    EXPECT_TRUE(reminder.rs_Category.isEmpty());
    EXPECT_EQ(reminder.rs_Icon, u"Write"_s);
    EXPECT_TRUE(Listed().startsWith(u"Hobbies=Laptop "_s));
    EXPECT_EQ(Global_Categories.size(), size);
    Delete_Category(u"unknown"_s);
    EXPECT_EQ(Find_Category(u"Misc"_s), 6);
}

TEST_F(Categories, What_Is_Typed_Into_A_Category_Box_Becomes_A_Name) {
    const QString typed[][2] = {{u"  my   own\twork "_s, u"My Own Work"_s},
                                {u"iPhone calls"_s, u"iPhone calls"_s},
                                {u" -- "_s, QString()},
                                {u"   "_s, QString()},
                                {u"7 dwarfs"_s, u"7 Dwarfs"_s}};
    for (const auto& row : typed)
        EXPECT_EQ(Category_FromText(row[0]), row[1]);
}
