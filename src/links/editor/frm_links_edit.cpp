#include "links/editor/frm_links_edit.h"

#include "accessories/help/help.h"
#include "controls/icons.h"
#include "controls/metrics.h"
#include "controls/program_end.h"
#include "controls/tooltip_picture.h"
#include "controls/wb_button.h"
#include "links/editor/links_editor.h"
#include "links/editor/links_list.h"
#include "links/editor/property_panel.h"
#include "links/store/links_data.h"
#include "platform/dialogs.h"
#include "platform/files.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPointer>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int FormWidth = 616;
constexpr int FormHeight = 424;
constexpr int Margin = 8;
constexpr int ListWidth = 324;
constexpr int RightLeft = Margin + ListWidth + 16;
constexpr int ButtonHeight = 24;
constexpr int TooltipList = 53;
constexpr int TooltipPanel = 54;

const QString HelpPage = u"lnk_LinksSetup.html"_s;

QPointer<frmLinksEdit> linksWindow;

} // namespace

frmLinksEdit::frmLinksEdit() {
    setWindowTitle(u"'My Links' menu setup"_s);
    setFixedSize(FormWidth, FormHeight);
    Global_LinkArray.resize(Link_Count(Global_LinkArray));
    QLabel* heading = Add_Label(u"My Links:"_s, Margin, Margin + 2);
    QFont bold = Small_Font();
    bold.setBold(true);
    heading->setFont(bold);
    heading->adjustSize();
    list = new LinksList(this);
    list->setGeometry(Margin, 28, ListWidth, 324);
    heading->setBuddy(list);
    new TooltipPicture(TooltipList, Margin + ListWidth - 16, Margin, this);
    panel = new PropertyPanel(this);
    panel->move(RightLeft, 28);
    new TooltipPicture(TooltipPanel, FormWidth - Margin - 16, Margin, this);
    Build_Buttons();
    connect(list, &LinksList::Row_Selected, this, &frmLinksEdit::Select_Row);
    connect(list, &LinksList::Row_Dragged, this, &frmLinksEdit::Drag_Row);
    connect(list, &LinksList::File_Dropped, this, &frmLinksEdit::Drop_File);
    connect(panel, &PropertyPanel::Browse, this, &frmLinksEdit::Browse);
    savedCopy = Global_LinkArray;
    Load_Global_LinksArray_To_List(-1);
    list->setFocus();
}

wbButton* frmLinksEdit::Add_Button(const QString& caption, IconName icon, const QRect& place,
                                   std::function<void()> click) {
    auto* button = new wbButton(this);
    button->Set_Caption(caption);
    button->Set_Picture(Load_Icon(icon), {16, 16});
    button->Set_ImageLEFT(6);
    button->Set_ImageTOP((place.height() - 16) / 2);
    button->setGeometry(place);
    connect(button, &wbButton::Click, this, std::move(click));
    return button;
}

void frmLinksEdit::Build_Buttons() {
    const int half = (FormWidth - Margin - RightLeft - 4) / 2;
    const auto right = [&](int column, int row) {
        return QRect(RightLeft + column * (half + 4), 254 + row * (ButtonHeight + 4), half,
                     ButtonHeight);
    };
    // wbButton8, 11, 3, 4, 5, 6, 7, 9 in the order of the tab key.
    Add_Button(u"     Add link"_s, IconName::NewItem, right(0, 0),
               [this] { Add_NewLink(u"http://"_s, {}); });
    Add_Button(u"     Add category"_s, IconName::Category, right(1, 0),
               [this] { Add_NewCategory(); });
    Add_Button(u"     Move Up"_s, IconName::MoveUp, right(0, 1),
               [this] { Move(MoveDirection::Up); });
    Add_Button(u"     Move Down"_s, IconName::MoveDown, right(1, 1),
               [this] { Move(MoveDirection::Down); });
    Add_Button(u"     Move Left"_s, IconName::MoveLeft, right(0, 2),
               [this] { Run(Needs::Row, Move_Category_Left); });
    Add_Button(u"     Move Right"_s, IconName::MoveRight, right(1, 2),
               [this] { Run(Needs::Row, Move_Category_Right); });
    Add_Button(u"     Delete"_s, IconName::DeleteItem, right(0, 3), [this] { Delete_Selected(); });
    Add_Button(u"     Undo"_s, IconName::Undo, right(1, 3), [this] { Undo(); });
    const int bottom = FormHeight - Margin - ButtonHeight;
    const auto below = [&](int column) {
        return QRect(FormWidth - Margin - (3 - column) * 94 + 4, bottom, 90, ButtonHeight);
    };
    // wbButton2, wbButton10 and help.
    wbButton* ok = Add_Button(u"Ok"_s, IconName::Tick, below(0), [this] { Ok(); });
    ok->Set_ToolTipTextLabel(u"Store the properties in the list"_s);
    wbButton* apply = Add_Button(u"     Apply"_s, IconName::Apply, below(1), [this] { Apply(); });
    apply->Set_ToolTipTextLabel(u"Show the list in the menu"_s);
    Add_Button(u"     Help"_s, IconName::Help, below(2), [] { Show_HelpPage(HelpPage); });
}

void frmLinksEdit::Load_Global_LinksArray_To_List(int row) {
    selectedRow = row >= 0 && row < static_cast<int>(Global_LinkArray.size()) ? row : -1;
    list->Load_Global_LinksArray_To_List(selectedRow);
    Show_Panel();
}

void frmLinksEdit::Show_Panel() {
    panel->Show_Row(selectedRow < 0 ? nullptr
                                    : &Global_LinkArray[static_cast<std::size_t>(selectedRow)]);
}

void frmLinksEdit::Store_Panel() {
    if (selectedRow < 0 || selectedRow >= static_cast<int>(Global_LinkArray.size()) ||
        !panel->Store_Row(Global_LinkArray[static_cast<std::size_t>(selectedRow)]))
        return;
    dirty = true;
    list->Update_Row(selectedRow);
}

void frmLinksEdit::Select_Row(int row) {
    Store_Panel();
    selectedRow = row;
    Show_Panel();
}

void frmLinksEdit::Run(Needs needs, const Command& command) {
    if (needs == Needs::Row && selectedRow < 0)
        return;
    Store_Panel();
    undo.Take_Snapshot(Global_LinkArray);
    const int row = command(Global_LinkArray, selectedRow);
    if (row == NothingMoved)
        return;
    dirty = true;
    Load_Global_LinksArray_To_List(row);
}

void frmLinksEdit::Add_NewLink(const QString& target, const QString& title) {
    Run(Needs::Nothing, [&](LinkRows& rows, int selected) {
        const int row = Add_Link(rows, selected, target);
        if (!title.isEmpty())
            rows[static_cast<std::size_t>(row)].LinkName = title;
        return row;
    });
    panel->Focus_Title();
}

void frmLinksEdit::Add_NewCategory() {
    Store_Panel();
    LinkRows rows = Global_LinkArray;
    if (!Add_Category(rows, selectedRow)) {
        platform::Dialogs::Get().Message(u"Only 8 sub Categories are supported"_s,
                                         platform::BoxStyle::Exclamation);
        return;
    }
    Run(Needs::Nothing, [](LinkRows& all, int selected) {
        return Add_Category(all, selected).value_or(NothingMoved);
    });
    panel->Focus_Title();
}

void frmLinksEdit::Move(MoveDirection direction) {
    Run(Needs::Row,
        [direction](LinkRows& rows, int selected) { return MoveLink(rows, selected, direction); });
}

// One command, of as many single moves as it takes; a category goes past one at a time.
void frmLinksEdit::Drag_Row(int from, int to) {
    if (from != selectedRow)
        return;
    Run(Needs::Row, [to](LinkRows& rows, int selected) {
        const MoveDirection direction = to < selected ? MoveDirection::Up : MoveDirection::Down;
        int row = selected;
        while (direction == MoveDirection::Up ? row > to : row < to) {
            const int moved = MoveLink(rows, row, direction);
            if (moved == NothingMoved)
                break;
            row = moved;
        }
        return row == selected ? NothingMoved : row;
    });
}

void frmLinksEdit::Delete_Selected() {
    Store_Panel();
    if (selectedRow < 0)
        return;
    const LinkRec row = Global_LinkArray[static_cast<std::size_t>(selectedRow)];
    if (Is_Category(row)) {
        const QPointer<frmLinksEdit> alive(this);
        const auto answer = platform::Dialogs::Get().Question(
            u"Are you sure you want to delete the category:\r\n"_s + row.LinkName + u" ?"_s, false,
            {u"Tockly"_s, platform::BoxStyle::Question, platform::Answer::No});
        if (answer != platform::Answer::Yes || !alive || Program_Is_Ending() || selectedRow < 0 ||
            Global_LinkArray[static_cast<std::size_t>(selectedRow)] != row)
            return;
    }
    Run(Needs::Row, [](LinkRows& rows, int selected) {
        Delete_Row(rows, selected);
        return std::min(selected, static_cast<int>(rows.size()) - 1);
    });
}

void frmLinksEdit::Undo() {
    if (undo.Undo(Global_LinkArray)) {
        dirty = true;
        Load_Global_LinksArray_To_List(
            std::min(selectedRow, static_cast<int>(Global_LinkArray.size()) - 1));
    }
}

void frmLinksEdit::Ok() {
    Store_Panel();
    dirty = true;
}

void frmLinksEdit::Apply() {
    Store_Panel();
    savedCopy = Global_LinkArray;
    dirty = false;
    Load_Global_LinksArray();
}

void frmLinksEdit::Browse() {
    const QPointer<frmLinksEdit> alive(this);
    const int row = selectedRow;
    const auto chosen =
        platform::Dialogs::Get().Open_File(u"Open File"_s, {}, u"All Files (*.*)"_s);
    if (!chosen || !alive || Program_Is_Ending())
        return;
    if (!platform::Files::Get().Exists(chosen->Path))
        platform::Dialogs::Get().Message(u"Can't open file: "_s + chosen->Path,
                                         platform::BoxStyle::Critical);
    else if (row == selectedRow)
        panel->Set_Path(chosen->Path);
}

void frmLinksEdit::Drop_File(const QString& path) {
    const QPointer<frmLinksEdit> alive(this);
    const auto answer =
        platform::Dialogs::Get().Question(u"Add link to file ?\r\n"_s + path, false);
    if (answer == platform::Answer::Yes && alive && !Program_Is_Ending())
        Add_NewLink(path, path.mid(path.lastIndexOf(u'/') + 1));
}

bool frmLinksEdit::Query_Unload(UnloadMode mode) {
    Store_Panel();
    // The end of the program takes the list as it stands.
    if (!dirty || mode == UnloadMode::Ending)
        return true;
    const QPointer<frmLinksEdit> alive(this);
    const auto answer = platform::Dialogs::Get().Question(u"Save new list ?"_s, false);
    if (!alive || Program_Is_Ending())
        return true;
    if (answer == platform::Answer::Yes) {
        Apply();
        return true;
    }
    Global_LinkArray = savedCopy;
    dirty = false;
    return true;
}

void frmLinksEdit::keyPressEvent(QKeyEvent* event) {
    const bool alt = event->modifiers().testFlag(Qt::AltModifier);
    const int key = event->key();
    if (key == Qt::Key_F1)
        Show_HelpPage(HelpPage);
    else if (key == Qt::Key_Insert)
        Add_NewLink(u"http://"_s, {});
    else if (key == Qt::Key_Delete)
        Delete_Selected();
    else if (key == Qt::Key_Z && event->modifiers() == Qt::ControlModifier)
        Undo();
    else if (alt && key == Qt::Key_Up)
        Move(MoveDirection::Up);
    else if (alt && key == Qt::Key_Down)
        Move(MoveDirection::Down);
    else if (alt && key == Qt::Key_Left)
        Run(Needs::Row, Move_Category_Left);
    else if (alt && key == Qt::Key_Right)
        Run(Needs::Row, Move_Category_Right);
    else
        Form::keyPressEvent(event);
}

void Show_LinksEditor() {
    if (Program_Is_Ending())
        return;
    if (linksWindow == nullptr || linksWindow->Is_Unloading())
        linksWindow = new frmLinksEdit;
    Update_HelpTopic(HelpPage);
    linksWindow->Present();
}

void Store_OpenLinksPanel() {
    if (linksWindow != nullptr && !linksWindow->Is_Unloading())
        linksWindow->Store_Panel();
}
