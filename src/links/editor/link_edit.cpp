#include "links/editor/link_edit.h"

#include <algorithm>
#include <utility>

LinkEdit::LinkEdit() {
    Global_LinkArray.resize(Link_Count(Global_LinkArray));
    saved = Global_LinkArray;
}

void LinkEdit::Select(int row) {
    selected = row >= 0 && row < Count() ? row : -1;
}

const LinkRec* LinkEdit::Selected_Row() const {
    return selected < 0 || selected >= Count() ? nullptr
                                               : &Rows()[static_cast<std::size_t>(selected)];
}

bool LinkEdit::Store_Row(const LinkRec& row, Step step) {
    storedForCommand = false;
    if (Selected_Row() == nullptr || *Selected_Row() == row)
        return false;
    Do([&](LinkRows& rows) {
        rows[static_cast<std::size_t>(selected)] = row;
        return selected;
    });
    storedForCommand = step == Step::OfNextCommand;
    return true;
}

bool LinkEdit::Do(const std::function<int(LinkRows&)>& operation) {
    const LinkRows before = Global_LinkArray;
    const int row = operation(Global_LinkArray);
    const bool stored = std::exchange(storedForCommand, false);
    if (row == NothingMoved)
        return false;
    // Fifty steps back are fifty commands back, however much was typed between them.
    if (stored)
        undo.Drop_Last();
    undo.Take_Snapshot(before);
    dirty = true;
    Select(row);
    return true;
}

bool LinkEdit::Add_Link(const QString& target, const QString& title) {
    return Do([&](LinkRows& rows) {
        const int row = ::Add_Link(rows, selected, target);
        if (!title.isEmpty())
            rows[static_cast<std::size_t>(row)].LinkName = title;
        return row;
    });
}

bool LinkEdit::Add_Category() {
    return Do(
        [&](LinkRows& rows) { return ::Add_Category(rows, selected).value_or(NothingMoved); });
}

bool LinkEdit::Move(MoveDirection direction) {
    return Do([&](LinkRows& rows) { return MoveLink(rows, selected, direction); });
}

bool LinkEdit::Move_Left() {
    return Do([&](LinkRows& rows) { return Move_Category_Left(rows, selected); });
}

bool LinkEdit::Move_Right() {
    return Do([&](LinkRows& rows) { return Move_Category_Right(rows, selected); });
}

bool LinkEdit::Drag(int row, int target) {
    return Do([&](LinkRows& rows) { return Move_Row_To(rows, row, target); });
}

bool LinkEdit::Delete() {
    if (Selected_Row() == nullptr)
        return false;
    return Do([&](LinkRows& rows) {
        Delete_Row(rows, selected);
        return std::min(selected, static_cast<int>(rows.size()) - 1);
    });
}

bool LinkEdit::Undo() {
    storedForCommand = false;
    if (!undo.Undo(Global_LinkArray))
        return false;
    dirty = true;
    Select(std::min(selected, Count() - 1));
    return true;
}

void LinkEdit::Apply() {
    saved = Global_LinkArray;
    dirty = false;
}

void LinkEdit::Restore_Saved() {
    if (dirty)
        Global_LinkArray = saved;
    dirty = false;
    Select(selected);
}
