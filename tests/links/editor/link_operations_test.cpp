// The commands of the links editor.
#include "links/editor/link_edit.h"
#include "links/store/link_rec.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <array>
#include <random>
#include <set>

using namespace Qt::StringLiterals;

namespace {

// "a0 B1": a link on level 0, a category on level 1.
LinkRows Rows_Of(const QString& text) {
    LinkRows rows;
    for (const QString& row : text.split(u' '))
        rows.push_back(row[0].isUpper()
                           ? LinkRec{u'@' + row.mid(1) + u"Category"_s, row.left(1), {}}
                           : LinkRec{row.mid(1) + u"http://"_s, row.left(1), {}});
    return rows;
}

QString Text_Of(const LinkRows& rows) {
    QStringList text;
    for (const LinkRec& row : rows)
        text << row.LinkName.left(1) + row.URL[row.URL[0] == u'@' ? 1 : 0];
    return text.join(u' ');
}

using Command = bool (*)(LinkEdit&);
const Command Up = [](LinkEdit& edit) { return edit.Move(MoveDirection::Up); };
const Command Down = [](LinkEdit& edit) { return edit.Move(MoveDirection::Down); };
const Command Left = [](LinkEdit& edit) { return edit.Move_Left(); };
const Command Right = [](LinkEdit& edit) { return edit.Move_Right(); };
const Command Delete = [](LinkEdit& edit) { return edit.Delete(); };
const Command AddLink = [](LinkEdit& edit) { return edit.Add_Link(u"http://"_s); };
const Command AddCategory = [](LinkEdit& edit) { return edit.Add_Category(); };

TEST(LinkOperations, A_command_moves_its_row_with_all_that_is_in_it) {
    Global_DefaultLinkArray.clear();
    const QString list = u"a0 B0 b1 C1 c2 D1 d2 E0 e1 f0"_s;
    const struct {
        char16_t Row;
        Command Done;
        QString Result; // empty: nothing changes
    } cases[] = {
        {u'a', Up, {}},
        {u'a', Down, u"B0 a1 b1 C1 c2 D1 d2 E0 e1 f0"_s},
        {u'B', Up, {}},
        {u'B', Down, u"a0 E0 e1 f0 B0 b1 C1 c2 D1 d2"_s},
        {u'B', Left, {}},
        {u'B', Right, u"a0 E0 e1 f0 B1 b2 C2 c3 D2 d3"_s},
        {u'b', Up, u"a0 b0 B0 C1 c2 D1 d2 E0 e1 f0"_s},
        {u'b', Down, u"a0 B0 C1 b2 c2 D1 d2 E0 e1 f0"_s},
        {u'C', Up, {}},
        {u'C', Down, u"a0 B0 b1 D1 d2 C1 c2 E0 e1 f0"_s},
        {u'C', Left, u"a0 C0 c1 B0 b1 D1 d2 E0 e1 f0"_s},
        {u'C', Right, u"a0 B0 b1 D1 d2 C2 c3 E0 e1 f0"_s},
        {u'c', Up, u"a0 B0 b1 c1 C1 D1 d2 E0 e1 f0"_s},
        {u'c', Down, u"a0 B0 b1 C1 D1 c2 d2 E0 e1 f0"_s},
        {u'D', Up, u"a0 B0 b1 D1 d2 C1 c2 E0 e1 f0"_s},
        {u'D', Down, {}},
        {u'D', Left, u"a0 D0 d1 B0 b1 C1 c2 E0 e1 f0"_s},
        {u'D', Right, u"a0 B0 b1 C1 c2 D2 d3 E0 e1 f0"_s},
        {u'd', Up, u"a0 B0 b1 C1 c2 d2 D1 E0 e1 f0"_s},
        {u'd', Down, u"a0 B0 b1 C1 c2 D1 E0 d1 e1 f0"_s},
        {u'E', Up, u"a0 E0 e1 f0 B0 b1 C1 c2 D1 d2"_s},
        {u'E', Down, {}},
        {u'E', Left, {}},
        {u'E', Right, u"a0 B0 b1 E1 e2 f1 C1 c2 D1 d2"_s},
        {u'e', Up, u"a0 B0 b1 C1 c2 D1 d2 e2 E0 f0"_s},
        {u'e', Down, u"a0 B0 b1 C1 c2 D1 d2 E0 f0 e1"_s},
        {u'f', Up, u"a0 B0 b1 C1 c2 D1 d2 E0 f0 e1"_s},
        {u'f', Down, {}},
        {u'b', Delete, u"a0 B0 C1 c2 D1 d2 E0 e1 f0"_s},
        {u'B', Delete, u"a0 E0 e1 f0"_s},
        {u'D', Delete, u"a0 B0 b1 C1 c2 E0 e1 f0"_s},
        {u'c', Delete, u"a0 B0 b1 C1 D1 d2 E0 e1 f0"_s},
        {u'a', AddLink, u"a0 N0 B0 b1 C1 c2 D1 d2 E0 e1 f0"_s},
        {u'd', AddLink, u"a0 B0 b1 C1 c2 D1 d2 N2 E0 e1 f0"_s},
        {u'a', AddCategory, u"a0 N0 B0 b1 C1 c2 D1 d2 E0 e1 f0"_s},
    };
    for (const auto& one : cases) {
        Global_LinkArray = Rows_Of(list);
        LinkEdit edit;
        edit.Select(static_cast<int>(list.indexOf(one.Row)) / 3);
        const auto row = &one - cases;
        EXPECT_EQ(one.Done(edit), !one.Result.isEmpty()) << row;
        EXPECT_EQ(Text_Of(edit.Rows()), one.Result.isEmpty() ? list : one.Result) << row;
    }
}

TEST(LinkOperations, Fifty_changes_are_taken_back_one_by_one) {
    std::mt19937 random(20260301);
    for (int round = 0; round < 100; ++round) {
        Global_LinkArray = Rows_Of(u"a0 B0 b1 C1 c2 D1 d2 E0 e1 f0"_s);
        LinkEdit edit;
        std::vector<LinkRows> history;
        for (int step = 0; step < 90; ++step) {
            const LinkRows before = edit.Rows();
            edit.Select(static_cast<int>(random() % (before.size() + 1)) - 1);
            const bool changed = std::array{Up, Down, Left, Right}[random() % 4](edit);
            ASSERT_EQ(changed, edit.Rows() != before);
            if (changed)
                history.push_back(before);
        }
        for (std::size_t undone = 0; undone < std::min<std::size_t>(history.size(), 50); ++undone) {
            ASSERT_TRUE(edit.Undo());
            ASSERT_EQ(edit.Rows(), history[history.size() - 1 - undone]);
        }
        EXPECT_FALSE(edit.Undo());
    }
}

TEST(LinkOperations, Rows_as_any_file_may_bring_them_are_moved_without_loss) {
    const QString urls[] = {u"x"_s, u"@"_s,          u"@x"_s,      u"@5"_s,
                            u"9"_s, u"@9Category"_s, u"\u0665a"_s, u"-"_s};
    std::mt19937 random(7);
    for (int round = 0; round < 2000; ++round) {
        Global_LinkArray.clear();
        for (int row = 0; row < 9; ++row)
            Global_LinkArray.push_back({urls[random() % 8], QString::number(row), {}});
        LinkEdit edit;
        for (int step = 0; step < 12; ++step) {
            edit.Select(static_cast<int>(random() % 9));
            edit.Move(random() % 2 == 0 ? MoveDirection::Up : MoveDirection::Down);
            random() % 2 == 0 ? edit.Move_Left() : edit.Move_Right();
            edit.Drag(edit.Selected(), static_cast<int>(random() % 9));
        }
        std::set<QString> names;
        for (const LinkRec& row : edit.Rows())
            names.insert(row.LinkName);
        ASSERT_TRUE(names.size() == 9 && edit.Count() == 9) << "round " << round;
    }
}

TEST(LinkOperations, A_dragged_row_goes_as_far_as_the_row_it_is_dropped_on) {
    const struct {
        int Row, Target, Result;
        QString Names;
    } cases[] = {{0, 2, 2, u"BbAaC"_s}, {0, 3, 2, u"BbAaC"_s},    {0, 4, 3, u"BbCAa"_s},
                 {4, 1, 2, u"AaCBb"_s}, {4, 0, 0, u"CAaBb"_s},    {1, 4, 4, u"ABbCa"_s},
                 {3, 0, 0, u"bAaBC"_s}, {0, 1, -1000, u"AaBbC"_s}};
    for (const auto& one : cases) {
        LinkRows rows;
        for (const QChar name : u"AaBbC"_s)
            rows.push_back({name.isUpper() ? u"@0Category"_s : u"1x"_s, name, {}});
        EXPECT_EQ(Move_Row_To(rows, one.Row, one.Target), one.Result);
        QString names;
        for (const LinkRec& row : rows)
            names += row.LinkName;
        EXPECT_EQ(names, one.Names) << one.Row << " to " << one.Target;
    }
}

} // namespace
