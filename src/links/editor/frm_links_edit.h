// The editor of the user's links: the list as a tree of indented rows, the properties of the
// selected one, and commands that can be taken back.
#pragma once

#include "controls/form.h"
#include "links/editor/link_edit.h"

#include <functional>

class LinksList;
class PropertyPanel;
class wbButton;

class frmLinksEdit : public Form {
    Q_OBJECT
public:
    frmLinksEdit();

    // What stands in the panel goes to its row; no window is drawn for it.
    void Store_Panel(LinkEdit::Step step = LinkEdit::Step::OfItsOwn);

protected:
    bool Query_Unload(UnloadMode mode) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Build_List();
    void Build_Buttons();
    bool Is_Here() const;
    // The selected row as the panel has it; one must be selected.
    LinkRec Panel_Row() const;

    // Stores the panel, runs the command and, if it has changed something, shows the list anew.
    bool Run(const std::function<bool()>& command);
    void Load_Global_LinksArray_To_List();
    void Row_Selected(int row);

    void Add_Link(const QString& target, const QString& title);
    void wbButton8_Click() { Add_Link(QStringLiteral("http://"), {}); }
    void wbButton11_Click();
    void wbButton3_Click();
    void wbButton4_Click();
    void wbButton5_Click();
    void wbButton6_Click();
    void wbButton7_Click();
    void wbButton9_Click();
    void wbButton10_Click();
    void wbButton2_Click();
    void Show_Help();
    void Browse();
    void Drop_File(const QString& path);
    bool Ask_Delete();

    LinkEdit edit;
    LinksList* list = nullptr;
    PropertyPanel* panel = nullptr;
    wbButton* wbButton8 = nullptr;  // add link
    wbButton* wbButton11 = nullptr; // add category
    wbButton* wbButton3 = nullptr;  // up
    wbButton* wbButton4 = nullptr;  // down
    wbButton* wbButton5 = nullptr;  // left
    wbButton* wbButton6 = nullptr;  // right
    wbButton* wbButton7 = nullptr;  // delete
    wbButton* wbButton9 = nullptr;  // undo
    wbButton* wbButton2 = nullptr;  // ok
    wbButton* wbButton10 = nullptr; // apply
    wbButton* wbButton14 = nullptr; // help
};
