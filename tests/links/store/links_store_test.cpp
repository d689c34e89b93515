#include "links/store/link_rec.h"
#include "links/store/links_data.h"
#include "support/fake_system.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::string_literals;

namespace {

class LinksStore : public testing::Test {
protected:
    LinksStore() {
        Global_LinkArray.clear();
        Global_DefaultLinkArray.clear();
    }
    ~LinksStore() override {
        Global_LinkArray.clear();
        Global_DefaultLinkArray.clear();
    }
    std::string Saved() {
        EXPECT_TRUE(Save_Links_File(file));
        return system.files.Read(file).value_or("no such file");
    }
    TableLoad Load(const std::string& bytes) {
        EXPECT_TRUE(system.files.Replace(file, bytes));
        return Load_Links_File(file);
    }
    // "a, b, Category(c)": the links of a level, then its categories.
    static QString Text_Of(const LinksData& level) {
        QStringList parts;
        for (std::int32_t index = 0; index <= level.Get_TotalLinks(); ++index) {
            QString url, name, description;
            std::int32_t visited = 0;
            std::uint8_t size = 0;
            level.Get_LinkData(index, url, name, description, visited, size);
            parts << url;
        }
        for (std::int32_t index = 0; index <= level.Get_TotalCategories(); ++index) {
            QString name;
            std::int32_t serial = -1;
            std::shared_ptr<LinksData> below;
            level.Get_CategoryData(index, name, serial, below);
            parts << u"%1#%2("_s.arg(name).arg(serial) + Text_Of(*below) + u')';
        }
        return parts.join(u", "_s);
    }
    static QString Tree_Of(const QStringList& urls) {
        Global_LinkArray.clear();
        for (const QString& url : urls)
            Global_LinkArray.push_back({url, u"C"_s, {}});
        Load_Global_LinksArray();
        return Text_Of(*Global_LinksRoot);
    }

    FakeSystem system;
    QTemporaryDir folder;
    QString file = folder.filePath(u"links.dat"_s);
};

const std::string Start = "LinksSaveFile001";
// Two rows: "0http://a" "Name" "" 2, and "@0Category" "C" "d" 0. The index of the last row is 1.
const std::string TwoRows = Start + "\x01\0\0\0"s + "\x09\0"s + "0http://a" + "\x04\0"s + "Name" +
                            "\0\0\x02"s + "\x0A\0"s + "@0Category" + "\x01\0"s + "C" + "\x01\0"s +
                            "d" + "\0"s;

TEST_F(LinksStore, A_list_is_stored_row_by_row_up_to_the_first_empty_address) {
    EXPECT_EQ(Saved(), Start + "\xFF\xFF\xFF\xFF");
    EXPECT_EQ(Load(Start + "\xFF\xFF\xFF\xFF"), TableLoad::Loaded);
    EXPECT_TRUE(Global_LinkArray.empty());
    const std::vector<LinkRec> rows = {{u"0http://a"_s, u"Name"_s, {}, 2},
                                       {u"@0Category"_s, u"C"_s, u"d"_s, 0}};
    Global_LinkArray = rows;
    Global_LinkArray.push_back({{}, u"behind the end"_s, {}});
    Global_LinkArray.push_back({u"0never"_s, {}, {}});
    Build_Program_Links();
    Load_Global_LinksArray(); // the program's own rows are in the tree only
    EXPECT_EQ(Saved(), TwoRows);
    EXPECT_EQ(Load(TwoRows), TableLoad::Loaded);
    EXPECT_EQ(Global_LinkArray, rows);
}

TEST_F(LinksStore, The_tree_takes_any_list) {
    const struct {
        const char* Name;
        QStringList URLs;
        QString Tree;
    } cases[] = {
        {"an empty one", {}, {}},
        {"categories in categories",
         {u"0a"_s, u"@0Category"_s, u"1b"_s, u"@1Category"_s, u"2c"_s, u"1d"_s, u"@0Category"_s,
          u"1e"_s, u"0f"_s},
         u"a, f, C#0(b, d, C#1(c)), C#2(e)"_s},
        {"nothing behind the end", {u"0a"_s, {}, u"0b"_s}, u"a"_s},
        {"a row without a depth", {u"http"_s, u"@"_s, u"1a"_s, u"\u00E91"_s}, u"ttp, 1, C#0(a)"_s},
        {"a jump of levels",
         {u"5a"_s, u"@0Category"_s, u"9b"_s, u"@7Category"_s, u"9c"_s},
         u"a, C#0(b, C#1(c))"_s},
        {"a level that was left",
         {u"@0Category"_s, u"@1Category"_s, u"@0Category"_s, u"2a"_s, u"1b"_s},
         u"C#0(C#1(a)), C#2(b)"_s},
        {"the deepest category",
         {u"@0"_s, u"@1"_s, u"@2"_s, u"@3"_s, u"@4"_s, u"@5"_s, u"@6"_s, u"@7"_s, u"@8"_s, u"@9"_s,
          u"@9"_s, u"9a"_s},
         u"C#0(C#1(C#2(C#3(C#4(C#5(C#6(C#7(C#8(a, C#9(), C#10())))))))))"_s},
    };
    for (const auto& one : cases)
        EXPECT_EQ(Tree_Of(one.URLs), one.Tree) << one.Name;
    EXPECT_EQ(LinksData().Get_TotalLinks(), -1);
    QString url, name, description;
    std::int32_t visited = 0;
    std::uint8_t size = 0;
    LinksData().Get_LinkData(0, url, name, description, visited, size);
    EXPECT_EQ(url + name + description, u"- Error - - Error - - Error - "_s);
}

} // namespace
