// What the links editor does to the user's links, without its window: the selected row, the
// commands, the way back, and what Apply and a refused save do.
#pragma once

#include "links/editor/link_operations.h"
#include "links/editor/link_undo.h"

#include <functional>

// Works on Global_LinkArray itself. The commands return whether the list has changed.
class LinkEdit {
public:
    // Takes what the menu shows as the saved copy; rows behind the end of the list go.
    LinkEdit();

    const LinkRows& Rows() const { return Global_LinkArray; }
    int Count() const { return static_cast<int>(Global_LinkArray.size()); }
    // -1 = none.
    int Selected() const { return selected; }
    void Select(int row);
    // nullptr without a selection.
    const LinkRec* Selected_Row() const;
    bool Is_Dirty() const { return dirty; }
    void Mark_Changed() { dirty = true; }

    // The selected row as the property panel has it now, as a step of its own for Undo or as part
    // of the command that comes next: its Undo keeps what was typed. Should that command change
    // nothing, it is a step of its own after all.
    enum class Step { OfItsOwn, OfNextCommand };
    bool Store_Row(const LinkRec& row, Step step = Step::OfItsOwn);
    // An empty title: the usual one.
    bool Add_Link(const QString& target, const QString& title = {});
    // Without a change: it would stand too deep.
    bool Add_Category();
    bool Move(MoveDirection direction);
    bool Move_Left();
    bool Move_Right();
    bool Drag(int row, int target);
    bool Delete();
    bool Undo();

    // The list counts as saved.
    void Apply();
    // The list as it was when last applied; nothing when that is what it is.
    void Restore_Saved();

private:
    // Runs the operation; one that gives a row changed the list, and the row is selected.
    bool Do(const std::function<int(LinkRows&)>& operation);

    LinkRows saved;
    UndoRing undo;
    int selected = -1;
    bool dirty = false;
    bool storedForCommand = false; // the last snapshot is that of a row stored for the next one
};
