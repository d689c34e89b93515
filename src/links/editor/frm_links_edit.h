// The editor of the user's links: the list as a tree of indented rows, the properties of the
// selected one, and commands that can be taken back.
#pragma once

#include "controls/form.h"
#include "links/editor/link_operations.h"
#include "links/editor/link_undo.h"

#include <functional>

class LinksList;
class PropertyPanel;
class wbButton;
enum class IconName;

class frmLinksEdit : public Form {
    Q_OBJECT
public:
    frmLinksEdit();

    // What stands in the panel goes to its row.
    void Store_Panel();
    bool Is_Dirty() const { return dirty; }

protected:
    bool Query_Unload(UnloadMode mode) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    // Does its work on the rows and the selected one; returns the row to select, or NothingMoved.
    using Command = std::function<int(LinkRows& rows, int selected)>;
    enum class Needs { Row, Nothing };

    wbButton* Add_Button(const QString& caption, IconName icon, const QRect& place,
                         std::function<void()> click);
    void Build_Buttons();
    void Run(Needs needs, const Command& command);
    void Load_Global_LinksArray_To_List(int selectedRow);
    void Show_Panel();
    void Select_Row(int row);

    void Add_NewLink(const QString& target, const QString& title);
    void Add_NewCategory();
    void Move(MoveDirection direction);
    void Drag_Row(int from, int to);
    void Delete_Selected();
    void Undo();
    void Apply();
    void Ok();
    void Browse();
    void Drop_File(const QString& path);

    LinksList* list = nullptr;
    PropertyPanel* panel = nullptr;
    int selectedRow = -1; // whose properties stand in the panel
    bool dirty = false;   // since the last save
    LinkRows savedCopy;
    UndoRing undo;
};
