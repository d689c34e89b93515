// The commands of the links editor against a second reading of their rules, kept as plain as can
// be: a list that is written anew by every command.
#include "links/editor/link_edit.h"
#include "links/store/links_data.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <sstream>

using namespace Qt::StringLiterals;

namespace {

LinkRec& At(LinkRows& list, int row) {
    return list[static_cast<std::size_t>(row)];
}
int Count(const LinkRows& list) {
    return static_cast<int>(list.size());
}
bool Cat(const LinkRec& row) {
    return row.URL[0] == u'@';
}
int Depth(const LinkRec& row) {
    return row.URL[Cat(row) ? 1 : 0].unicode() - '0';
}
void Set_Depth(LinkRec& row, int depth) {
    row.URL[Cat(row) ? 1 : 0] = QChar(u'0' + std::clamp(depth, 0, 9));
}
// The character that left and right go by.
int Number(const LinkRec& row) {
    return row.URL.size() > 1 && row.URL[1].isDigit() ? row.URL[1].unicode() - '0' : 0;
}
int Block(LinkRows& list, int row, int depth) {
    int end = row + 1;
    while (end < Count(list) && (!Cat(At(list, end)) || Depth(At(list, end)) > depth))
        ++end;
    return end;
}

void Plain_Move(LinkRows& list, int row, bool up) {
    const int step = up ? -1 : 1;
    const LinkRec moved = At(list, row);
    int other = row + step;
    while (Cat(moved) && other >= 0 && other < Count(list) &&
           !At(list, other).URL.startsWith(moved.URL.left(2)))
        other += step;
    if (other < 0 || other >= Count(list))
        return;
    if (Cat(moved)) {
        const int first = std::min(row, other), second = std::max(row, other);
        const int ends[] = {Block(list, first, Depth(moved)), Block(list, second, Depth(moved))};
        LinkRows made;
        for (const auto& [from, to] : {std::pair(0, first),
                                       {second, ends[1]},
                                       {ends[0], second},
                                       {first, ends[0]},
                                       {ends[1], Count(list)}})
            made.insert(made.end(), list.begin() + from, list.begin() + to);
        list = made;
        return;
    }
    std::swap(At(list, row), At(list, other));
    if (!Cat(At(list, row)))
        return;
    int depth = up ? 0 : Depth(At(list, row)) + 1;
    for (int above = 0; up && above <= row - 2; ++above)
        if (Cat(At(list, above)))
            depth = Depth(At(list, above)) + 1;
    Set_Depth(At(list, other), depth);
}

void Plain_Carry(LinkRows& list, int row, int place, int deeper) {
    const int end = Block(list, row, Number(At(list, row)));
    LinkRows made;
    for (int at = 0; at <= Count(list); ++at) {
        for (int carried = row; at == place && carried < end; ++carried) {
            made.push_back(At(list, carried));
            Set_Depth(made.back(), Depth(made.back()) + deeper);
        }
        if (at < Count(list) && (at < row || at >= end))
            made.push_back(At(list, at));
    }
    list = made;
}

void Plain_Left(LinkRows& list, int row) {
    const int number = Number(At(list, row));
    int parent = row - 1;
    while (parent >= 0 && !(Cat(At(list, parent)) && Depth(At(list, parent)) < number))
        --parent;
    if (number > 0 && parent >= 0)
        Plain_Carry(list, row, parent, -1);
}

void Plain_Right(LinkRows& list, int row) {
    const int number = Number(At(list, row));
    const auto fits = [&](int other) {
        return Cat(At(list, other)) && Depth(At(list, other)) == number;
    };
    int target = row + 1;
    while (target < Count(list) && !fits(target))
        ++target;
    if (target == Count(list))
        for (target = row - 1; target >= 0 && !fits(target);)
            --target;
    for (int inside = row; inside < Block(list, row, number); ++inside)
        if (Depth(At(list, inside)) == 9)
            return;
    if (target < 0 || number == 9)
        return;
    int place = target + 1;
    while (place < Count(list) && !Cat(At(list, place)))
        ++place;
    Plain_Carry(list, row, place, 1);
}

void Plain_Delete(LinkRows& list, int row) {
    const LinkRec gone = At(list, row);
    do
        list.erase(list.begin() + row);
    while (Cat(gone) && row < Count(list) && Depth(At(list, row)) > Depth(gone));
}

int Plain_Add(LinkRows& list, int selected, bool category, const QString& target) {
    int depth = 0;
    if (selected >= 0)
        depth = Depth(At(list, selected)) + (Cat(At(list, selected)) ? 1 : 0);
    if (category && depth >= 9)
        return selected;
    const int row = selected < 0 ? Count(list) : selected + 1;
    list.insert(list.begin() + row,
                category ? LinkRec{u"@0Category"_s, {}, u"---- Category ----"_s}
                         : LinkRec{u'0' + target, {}, u"Put the site's description here"_s});
    Set_Depth(At(list, row), depth);
    return row;
}

enum Kind { Add, AddCategory, Store, Up, Down, Left, Right, Delete, Undo, KindCount };
struct Step {
    int Row = 0; // selected before it
    Kind Command = Add;
    bool Typed = false; // in the panel, just before the command
};
const QString Targets[] = {u"http://"_s, u"-"_s, {}, u"1st.html"_s, u"3.exe"_s};

// Both lists side by side. What is wrong after the steps; empty when nothing is.
std::string Fault_Of(const std::vector<Step>& steps) {
    LinkRows plain;
    // A file may bring levels with nothing above them.
    for (const char16_t* url : {u"0a", u"@0Category", u"1b", u"@1C", u"5c", u"@8C", u"9d"})
        plain.push_back({QString::fromUtf16(url), QString::number(plain.size()), {}});
    Global_LinkArray = plain;
    LinkEdit edit;
    std::vector<LinkRows> history;
    int named = Count(plain);
    for (const Step& step : steps) {
        const LinkRows untyped = plain;
        int row = step.Row % (Count(plain) + 1) - 1;
        edit.Select(row);
        const bool typed = step.Typed && row >= 0 && step.Command != Store && step.Command != Undo;
        if (typed) {
            At(plain, row).StartSize ^= 1U;
            edit.Store_Row(At(plain, row), LinkEdit::Step::OfNextCommand);
        }
        const LinkRows before = plain;
        const QString name = row < 0 ? QString() : At(plain, row).LinkName;
        const QString& target = Targets[step.Row % 5];
        bool changed = false;
        if (step.Command <= AddCategory) {
            row = Plain_Add(plain, row, step.Command == AddCategory, target);
            changed = step.Command == Add ? edit.Add_Link(target) : edit.Add_Category();
            if (changed) // every row gets a name of its own
                Global_LinkArray.at(static_cast<std::size_t>(edit.Selected())).LinkName =
                    At(plain, row).LinkName = QString::number(named++);
        } else if (step.Command == Undo) {
            changed = edit.Undo();
            plain = history.empty() ? plain : history.back();
            if (changed)
                history.pop_back();
        } else if (row < 0) {
            changed = edit.Move(MoveDirection::Up) || edit.Move_Right() || edit.Delete();
        } else if (step.Command == Store) {
            At(plain, row).StartSize = static_cast<std::uint8_t>(step.Row % 3);
            changed = edit.Store_Row(At(plain, row));
        } else if (step.Command == Delete) {
            Plain_Delete(plain, row);
            changed = edit.Delete();
        } else if (step.Command <= Down) {
            Plain_Move(plain, row, step.Command == Up);
            changed = edit.Move(step.Command == Up ? MoveDirection::Up : MoveDirection::Down);
        } else {
            step.Command == Left ? Plain_Left(plain, row) : Plain_Right(plain, row);
            changed = step.Command == Left ? edit.Move_Left() : edit.Move_Right();
        }
        if (edit.Rows() != plain)
            return "not the same list";
        if (step.Command != Undo && changed != (plain != before))
            return "a change that was none, or the other way";
        std::set<QString> names;
        for (const LinkRec& one : plain)
            names.insert(one.LinkName);
        if (Count(plain) != static_cast<int>(names.size()))
            return "a row is there twice";
        if (step.Command >= Up && step.Command <= Right &&
            (plain.size() != before.size() ||
             (row >= 0 && At(plain, edit.Selected()).LinkName != name)))
            return "a row is lost, or another one selected";
        if (step.Command != Undo && (changed || typed))
            history.push_back(changed ? before : untyped);
        if (history.size() > 50)
            history.erase(history.begin());
        Load_Global_LinksArray();
    }
    for (; !history.empty(); history.pop_back())
        if (!edit.Undo() || edit.Rows() != history.back())
            return "Undo brings another list back";
    return edit.Undo() ? "more than fifty steps" : "";
}

// Leaves out what is not needed to fail.
std::string Shrunk(std::vector<Step> steps) {
    for (std::size_t at = 0; at < steps.size();) {
        auto fewer = steps;
        fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(at));
        if (Fault_Of(fewer).empty()) {
            ++at;
        } else {
            steps = fewer;
            at = 0;
        }
    }
    const char* const names[] = {"add link", "add category", "store",  "up",  "down",
                                 "left",     "right",        "delete", "undo"};
    std::ostringstream text;
    text << Fault_Of(steps) << " after";
    for (const Step& step : steps)
        text << "\n  selecting " << step.Row << (step.Typed ? ", typing, " : ", ")
             << names[step.Command];
    return text.str();
}

TEST(LinkOperations, Any_commands_do_what_a_second_reading_of_their_rules_does) {
    Global_DefaultLinkArray.clear();
    std::mt19937 random(20260301);
    for (int round = 0; round < 3000; ++round) {
        std::vector<Step> steps(round % 40 == 0 ? 130 : 15);
        for (Step& step : steps)
            step = {static_cast<int>(random() % 1000), static_cast<Kind>(random() % KindCount),
                    random() % 4 == 0};
        ASSERT_EQ(Fault_Of(steps), "") << Shrunk(steps);
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
        Load_Global_LinksArray();
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
