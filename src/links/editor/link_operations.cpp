#include "links/editor/link_operations.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

int Count(const LinkRows& rows) {
    return static_cast<int>(rows.size());
}

const LinkRec& At(const LinkRows& rows, int row) {
    return rows[static_cast<std::size_t>(row)];
}

LinkRec& At(LinkRows& rows, int row) {
    return rows[static_cast<std::size_t>(row)];
}

bool Is_Row(const LinkRows& rows, int row) {
    return row >= 0 && row < Count(rows);
}

LinkRows::iterator Place(LinkRows& rows, int row) {
    return rows.begin() + row;
}

int Digit(const QString& text, qsizetype at) {
    return text.size() > at ? std::max(text[at].digitValue(), 0) : 0;
}

QString Depth_Text(int depth) {
    return QString::number(std::clamp(depth, 0, DeepestRow));
}

// The number that left and right go by. In a link that character belongs to the target: that is
// meant.
int Second_Digit(const LinkRec& row) {
    return Digit(row.URL, 1);
}

// A row with all that follows it, down to the next category of this depth or a smaller one.
int Block_End(const LinkRows& rows, int row, int depth) {
    int end = row + 1;
    while (end < Count(rows) && !(Is_Category(At(rows, end)) && Row_Depth(At(rows, end)) <= depth))
        ++end;
    return end;
}

int Nearest_Category_Depth(const LinkRows& rows, int from) {
    for (int row = from; row >= 0; --row)
        if (Is_Category(At(rows, row)))
            return Row_Depth(At(rows, row));
    return -1;
}

int Move_SingleRow(LinkRows& rows, int row, int other) {
    const bool upward = other < row;
    const bool pastCategory = Is_Category(At(rows, other));
    const int categoryDepth = Row_Depth(At(rows, other));
    std::swap(At(rows, row), At(rows, other));
    if (pastCategory)
        Set_RowDepth(At(rows, other),
                     (upward ? Nearest_Category_Depth(rows, row - 2) : categoryDepth) + 1);
    return other;
}

// The row it changes places with; -1 = none. A category of the same depth under another parent will
// do: that is meant.
int Partner_Of(const LinkRows& rows, int row, MoveDirection direction) {
    const int step = direction == MoveDirection::Up ? -1 : 1;
    int other = row + step;
    if (Is_Category(At(rows, row)))
        while (Is_Row(rows, other) && !(Is_Category(At(rows, other)) &&
                                        Row_Depth(At(rows, other)) == Row_Depth(At(rows, row))))
            other += step;
    return Is_Row(rows, other) ? other : -1;
}

// Takes the block out, changes its depths, and puts it before the row that stood at "place".
int Carry_Block(LinkRows& rows, int start, int end, int place, int deeper) {
    LinkRows block(std::make_move_iterator(Place(rows, start)),
                   std::make_move_iterator(Place(rows, end)));
    for (LinkRec& row : block)
        Set_RowDepth(row, Row_Depth(row) + deeper);
    rows.erase(Place(rows, start), Place(rows, end));
    const int before = place <= start ? place : std::max(start, place - Count(block));
    rows.insert(Place(rows, before), std::make_move_iterator(block.begin()),
                std::make_move_iterator(block.end()));
    return before;
}

// First below, then above.
int Category_At_Depth(const LinkRows& rows, int row, int depth) {
    const auto fits = [&](int other) {
        return Is_Category(At(rows, other)) && Row_Depth(At(rows, other)) == depth;
    };
    for (int other = row + 1; other < Count(rows); ++other)
        if (fits(other))
            return other;
    for (int other = row - 1; other >= 0; --other)
        if (fits(other))
            return other;
    return -1;
}

int Insert_Row(LinkRows& rows, int selected, LinkRec row) {
    const int place = Is_Row(rows, selected) ? selected + 1 : Count(rows);
    rows.insert(Place(rows, place), std::move(row));
    return place;
}

// Of a row that is made behind the selected one.
int New_Depth(const LinkRows& rows, int selected) {
    if (!Is_Row(rows, selected))
        return 0;
    const LinkRec& row = At(rows, selected);
    return Row_Depth(row) + (Is_Category(row) ? 1 : 0);
}

} // namespace

bool Is_Category(const LinkRec& row) {
    return row.URL.startsWith(u'@');
}

bool Is_Separator(const LinkRec& row) {
    return !Is_Category(row) && Row_Target(row) == "-"_L1;
}

int Row_Depth(const LinkRec& row) {
    return Digit(row.URL, Is_Category(row) ? 1 : 0);
}

QString Row_Target(const LinkRec& row) {
    return Is_Category(row) ? QString() : row.URL.mid(1);
}

void Set_RowDepth(LinkRec& row, int depth) {
    if (Is_Category(row))
        row.URL = u'@' + Depth_Text(depth) + row.URL.mid(2);
    else
        row.URL = Depth_Text(depth) + row.URL.mid(1);
}

int Subtree_End(const LinkRows& rows, int category) {
    int end = category + 1;
    while (end < Count(rows) && Row_Depth(At(rows, end)) > Row_Depth(At(rows, category)))
        ++end;
    return end;
}

int Add_Link(LinkRows& rows, int selected, const QString& target) {
    const QString url = Depth_Text(New_Depth(rows, selected)) + target;
    return Insert_Row(rows, selected,
                      {url, u"New Link"_s, u"Put the site's description here"_s, 0, 0});
}

std::optional<int> Add_Category(LinkRows& rows, int selected) {
    const int depth = New_Depth(rows, selected);
    if (depth >= DeepestRow)
        return std::nullopt;
    return Insert_Row(
        rows, selected,
        {u"@%1Category"_s.arg(depth), u"New Category"_s, u"---- Category ----"_s, 0, 0});
}

void Delete_Row(LinkRows& rows, int row) {
    if (!Is_Row(rows, row))
        return;
    const int end = Is_Category(At(rows, row)) ? Subtree_End(rows, row) : row + 1;
    rows.erase(Place(rows, row), Place(rows, end));
}

void Exchange_Category_Blocks(LinkRows& rows, int Row, int Found, int& NewRow) {
    const int first = std::min(Row, Found);
    const int second = std::max(Row, Found);
    const int depth = Row_Depth(At(rows, Row));
    const int firstEnd = Block_End(rows, first, depth);
    const int secondEnd = Block_End(rows, second, depth);
    // First the two and what stands between them as one block, then without the lower one.
    std::rotate(Place(rows, first), Place(rows, second), Place(rows, secondEnd));
    const int behindLower = first + (secondEnd - second);
    const int between = second - firstEnd;
    std::rotate(Place(rows, behindLower), Place(rows, behindLower + (firstEnd - first)),
                Place(rows, secondEnd));
    NewRow = Row == second ? first : behindLower + between;
}

int MoveLink(LinkRows& rows, int Row, MoveDirection Direction) {
    const int other = Is_Row(rows, Row) ? Partner_Of(rows, Row, Direction) : -1;
    if (other < 0)
        return NothingMoved;
    if (!Is_Category(At(rows, Row)))
        return Move_SingleRow(rows, Row, other);
    int newRow = Row;
    Exchange_Category_Blocks(rows, Row, other, newRow);
    return newRow;
}

int Move_Row_To(LinkRows& rows, int row, int target) {
    if (!Is_Row(rows, row))
        return NothingMoved;
    const auto direction = target < row ? MoveDirection::Up : MoveDirection::Down;
    int place = row;
    for (;;) {
        const int other = Partner_Of(rows, place, direction);
        if (other < 0 || (direction == MoveDirection::Up ? other < target : other > target))
            return place == row ? NothingMoved : place;
        place = MoveLink(rows, place, direction);
    }
}

int Move_Category_Left(LinkRows& rows, int row) {
    if (!Is_Row(rows, row))
        return NothingMoved;
    const int depth = Second_Digit(At(rows, row));
    for (int parent = row - 1; depth > 0 && parent >= 0; --parent)
        if (Is_Category(At(rows, parent)) && Row_Depth(At(rows, parent)) < depth)
            return Carry_Block(rows, row, Block_End(rows, row, depth), parent, -1);
    return NothingMoved;
}

int Move_Category_Right(LinkRows& rows, int row) {
    if (!Is_Row(rows, row))
        return NothingMoved;
    const int depth = Second_Digit(At(rows, row));
    const int end = Block_End(rows, row, depth);
    const int target = Category_At_Depth(rows, row, depth);
    const bool tooDeep = std::any_of(Place(rows, row), Place(rows, end), [](const LinkRec& one) {
        return Row_Depth(one) >= DeepestRow;
    });
    if (depth >= DeepestRow || target < 0 || tooDeep)
        return NothingMoved;
    int place = target + 1;
    while (place < Count(rows) && !Is_Category(At(rows, place)))
        ++place;
    return Carry_Block(rows, row, end, place, 1);
}

RowIcon Icon_Of(const LinkRec& row) {
    if (Is_Category(row))
        return RowIcon::Category;
    if (Is_Separator(row))
        return RowIcon::Separator;
    const QString target = Row_Target(row).toLower();
    if (target.startsWith("www."_L1) || target.startsWith("http"_L1) || target.startsWith("ftp"_L1))
        return RowIcon::Web;
    return target.endsWith(".exe"_L1) ? RowIcon::Program : RowIcon::Document;
}
