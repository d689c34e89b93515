#include "links/editor/frm_links_edit.h"

#include "accessories/help/help.h"
#include "controls/field_word.h"
#include "controls/help_topic.h"
#include "controls/icons.h"
#include "controls/metrics.h"
#include "controls/one_window.h"
#include "controls/the_screen.h"
#include "controls/tooltip_picture.h"
#include "controls/wb_button.h"
#include "links/editor/links_editor.h"
#include "links/editor/links_list.h"
#include "links/editor/property_panel.h"
#include "links/menu/links_menu.h"
#include "platform/desktop.h"
#include "platform/dialogs.h"
#include "platform/files.h"

#include <QKeyEvent>
#include <QLabel>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int FormWidth = 616;
constexpr int FormHeight = 424;
constexpr int Margin = 8;
constexpr int BodyTop = 30;
constexpr int ListWidth = 324;
constexpr int RightLeft = Margin + ListWidth + 16;
constexpr int ButtonHeight = 24;
constexpr int ButtonStep = ButtonHeight + 4;
constexpr int ButtonWidth = 128;
constexpr int CommandsTop = 260;
constexpr int BottomTop = FormHeight - Margin - ButtonHeight;
constexpr int PictureSize = 16;
constexpr int TipList = 53;
constexpr qsizetype ShownName = 500; // characters of a name or path in a question

OneWindow<frmLinksEdit> linksWindow;

bool Ask(const QString& text) {
    return platform::Dialogs::Get().Question(text, false) == platform::Answer::Yes;
}

} // namespace

// All controls are made in the order of the Tab key.
frmLinksEdit::frmLinksEdit() {
    setWindowTitle(u"'My Links' menu setup"_s);
    Set_HelpTopic(*this, help_page::Links);
    setFixedSize(FormWidth, FormHeight);
    Build_List();
    panel = new PropertyPanel(this);
    panel->move(RightLeft, BodyTop - 2);
    connect(panel, &PropertyPanel::Browse, this, &frmLinksEdit::Browse);
    connect(panel, &PropertyPanel::Entered, this, &frmLinksEdit::wbButton2_Click);
    Build_Buttons();
    Load_Global_LinksArray_To_List();
    list->setFocus();
    const QRect screen = The_Screen();
    move(screen.left() + std::max((screen.width() - width()) / 2, 0),
         screen.top() + std::max((screen.height() - height()) / 2, 0));
}

void frmLinksEdit::Build_List() {
    QLabel* heading = Add_Label(u"My Links:"_s, Margin, Margin + 3);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    heading->adjustSize();
    new TooltipPicture(TipList, heading->geometry().right() + 6, Margin + 2, this);
    list = new LinksList(this);
    list->setGeometry(Margin, BodyTop, ListWidth, FormHeight - Margin - BodyTop);
    connect(list, &LinksList::Row_Selected, this, &frmLinksEdit::Row_Selected);
    connect(list, &LinksList::Row_Dragged, this,
            [this](int from, int to) { Run([&] { return edit.Drag(from, to); }); });
    connect(list, &LinksList::File_Dropped, this, &frmLinksEdit::Drop_File);
}

void frmLinksEdit::Build_Buttons() {
    const QString store = u"Store the properties in the list"_s;
    const QString apply = u"Show the list in the menu"_s;
    const struct {
        wbButton*& Button;
        QString Caption; // behind its picture
        QString Tip;
        IconName Icon;
        int Column;
        int Top;
        void (frmLinksEdit::*Click)();
    } rows[] = {
        {wbButton8, u"Add link"_s, {}, IconName::Link, 0, 0, &frmLinksEdit::wbButton8_Click},
        {wbButton11,
         u"Add category"_s,
         {},
         IconName::Category,
         1,
         0,
         &frmLinksEdit::wbButton11_Click},
        {wbButton3, u"Move Up"_s, u"Alt+Up"_s, IconName::MoveUp, 0, ButtonStep,
         &frmLinksEdit::wbButton3_Click},
        {wbButton4, u"Move Down"_s, u"Alt+Down"_s, IconName::MoveDown, 1, ButtonStep,
         &frmLinksEdit::wbButton4_Click},
        {wbButton5, u"Move Left"_s, u"Alt+Left"_s, IconName::MoveLeft, 0, 2 * ButtonStep,
         &frmLinksEdit::wbButton5_Click},
        {wbButton6, u"Move Right"_s, u"Alt+Right"_s, IconName::MoveRight, 1, 2 * ButtonStep,
         &frmLinksEdit::wbButton6_Click},
        {wbButton7, u"Delete"_s, u"Del"_s, IconName::DeleteItem, 0, 3 * ButtonStep,
         &frmLinksEdit::wbButton7_Click},
        {wbButton9, u"Undo"_s, u"Ctrl+Z"_s, IconName::Undo, 1, 3 * ButtonStep,
         &frmLinksEdit::wbButton9_Click},
        {wbButton2, u"Ok"_s, store, IconName::Tick, 0, BottomTop - CommandsTop,
         &frmLinksEdit::wbButton2_Click},
        {wbButton10, u"Apply"_s, apply, IconName::Apply, 1, BottomTop - CommandsTop,
         &frmLinksEdit::wbButton10_Click},
        {wbButton14,
         {},
         u"Help (F1)"_s,
         IconName::Help,
         2,
         BottomTop - CommandsTop,
         &frmLinksEdit::Show_Help},
    };
    for (const auto& row : rows) {
        auto* button = new wbButton(this);
        button->setGeometry(RightLeft + row.Column * (ButtonWidth + 4), CommandsTop + row.Top,
                            ButtonWidth, ButtonHeight);
        button->Set_Caption(row.Caption.isEmpty() ? QString() : u"     "_s + row.Caption);
        button->setAccessibleName(row.Caption.isEmpty() ? row.Tip : row.Caption);
        button->Set_ToolTipTextLabel(row.Tip);
        button->Set_Picture(Load_Icon(row.Icon), {PictureSize, PictureSize});
        button->Set_ImageLEFT(8);
        button->Set_ImageTOP((ButtonHeight - PictureSize) / 2);
        connect(button, &wbButton::Click, this, row.Click);
        row.Button = button;
    }
    wbButton14->setGeometry(FormWidth - Margin - 28, BottomTop, 28, ButtonHeight);
    wbButton14->Set_CenterImage(true);
    for (wbButton* button : {wbButton2, wbButton10})
        button->resize((ButtonWidth * 2 + 4 - 28 - 8) / 2, ButtonHeight);
    wbButton10->move(wbButton2->geometry().right() + 5, BottomTop);
}

// After a box: the program may be at its end.
bool frmLinksEdit::Is_Here() const {
    return !Is_Unloading() && !Program_Is_Ending();
}

void frmLinksEdit::Load_Global_LinksArray_To_List() {
    list->Load_Global_LinksArray_To_List(edit.Selected());
    panel->Show_Row(edit.Selected_Row());
}

LinkRec frmLinksEdit::Panel_Row() const {
    LinkRec row = *edit.Selected_Row();
    panel->Store_Row(row);
    return row;
}

void frmLinksEdit::Store_Panel(LinkEdit::Step step) {
    if (edit.Selected_Row() != nullptr && edit.Store_Row(Panel_Row(), step))
        list->Update_Row(edit.Selected());
}

void frmLinksEdit::Row_Selected(int row) {
    Store_Panel();
    edit.Select(row);
    panel->Show_Row(edit.Selected_Row());
}

bool frmLinksEdit::Run(const std::function<bool()>& command) {
    Store_Panel(LinkEdit::Step::OfNextCommand);
    const bool changed = command();
    if (changed)
        Load_Global_LinksArray_To_List();
    return changed;
}

void frmLinksEdit::Add_Link(const QString& target, const QString& title) {
    Run([&] { return edit.Add_Link(target, title); });
    panel->Focus_Title();
}

void frmLinksEdit::wbButton11_Click() {
    if (Run([this] { return edit.Add_Category(); }))
        panel->Focus_Title();
    else
        platform::Dialogs::Get().Message(u"Only 8 sub Categories are supported"_s,
                                         platform::BoxStyle::Exclamation);
}

void frmLinksEdit::wbButton3_Click() {
    Run([this] { return edit.Move(MoveDirection::Up); });
}

void frmLinksEdit::wbButton4_Click() {
    Run([this] { return edit.Move(MoveDirection::Down); });
}

void frmLinksEdit::wbButton5_Click() {
    Run([this] { return edit.Move_Left(); });
}

void frmLinksEdit::wbButton6_Click() {
    Run([this] { return edit.Move_Right(); });
}

void frmLinksEdit::wbButton7_Click() {
    if (edit.Selected_Row() != nullptr && (!Is_Category(*edit.Selected_Row()) || Ask_Delete()))
        Run([this] { return edit.Delete(); });
}

bool frmLinksEdit::Ask_Delete() {
    const LinkRec row = *edit.Selected_Row();
    const QPointer<frmLinksEdit> alive(this);
    return Ask(u"Are you sure you want to delete the category:\r\n"_s +
               Panel_Row().LinkName.left(ShownName) + u" ?"_s) &&
           alive && Is_Here() && edit.Selected_Row() != nullptr && *edit.Selected_Row() == row;
}

void frmLinksEdit::wbButton9_Click() {
    Run([this] { return edit.Undo(); });
}

void frmLinksEdit::wbButton10_Click() {
    Store_Panel();
    edit.Apply();
    Update_LinksMenu();
    Say_AtField(wbButton10, u"The menu shows the list now."_s);
}

void frmLinksEdit::wbButton2_Click() {
    Store_Panel();
    if (edit.Selected() >= 0)
        edit.Mark_Changed();
}

void frmLinksEdit::Show_Help() {
    Show_HelpPage(help_page::Links);
}

void frmLinksEdit::Browse() {
    platform::Dialogs::Get().Open_File(
        this, u"Open File"_s, {}, u"All Files (*.*)"_s, [this](const platform::ChosenFile& chosen) {
            if (!platform::Files::Get().Exists(chosen.Path) || !panel->Set_Path(chosen.Path))
                platform::Dialogs::Get().Message(u"Can't open file: "_s +
                                                     chosen.Path.left(ShownName),
                                                 platform::BoxStyle::Critical);
        });
}

void frmLinksEdit::Drop_File(const QString& path) {
    const QPointer<frmLinksEdit> alive(this);
    // The window may have been closed since the file fell on it.
    if (!Is_Here())
        return;
    if (Ask(u"Add link to file ?\r\n"_s + path.left(ShownName)) && alive && Is_Here())
        Add_Link(path, path.section(u'/', -1, -1, QString::SectionSkipEmpty));
}

bool frmLinksEdit::Query_Unload(UnloadMode mode) {
    Store_Panel();
    // The end of the program takes the list as it stands.
    if (!edit.Is_Dirty() || mode == UnloadMode::Ending)
        return true;
    const QPointer<frmLinksEdit> alive(this);
    const bool save = Ask(u"Save new list ?"_s);
    if (!alive || Program_Is_Ending())
        return true;
    if (save)
        wbButton10_Click();
    edit.Restore_Saved();
    return true;
}

void frmLinksEdit::keyPressEvent(QKeyEvent* event) {
    const struct {
        int Key;
        Qt::KeyboardModifiers With;
        void (frmLinksEdit::*Command)();
    } keys[] = {
        {Qt::Key_Insert, Qt::NoModifier, &frmLinksEdit::wbButton8_Click},
        {Qt::Key_Z, Qt::ControlModifier, &frmLinksEdit::wbButton9_Click},
        {Qt::Key_Up, Qt::AltModifier, &frmLinksEdit::wbButton3_Click},
        {Qt::Key_Down, Qt::AltModifier, &frmLinksEdit::wbButton4_Click},
        {Qt::Key_Left, Qt::AltModifier, &frmLinksEdit::wbButton5_Click},
        {Qt::Key_Right, Qt::AltModifier, &frmLinksEdit::wbButton6_Click},
    };
    const Qt::KeyboardModifiers with = event->modifiers() & ~Qt::KeypadModifier;
    for (const auto& key : keys)
        if (event->key() == key.Key && with == key.With)
            return (this->*key.Command)();
    // A button that has the focus must not delete a row.
    if (event->key() == Qt::Key_Delete && list->hasFocus())
        return wbButton7_Click();
    Form::keyPressEvent(event);
}

void Show_LinksEditor() {
    frmLinksEdit* window = linksWindow.Open_OrMake();
    if (window == nullptr)
        return;
    Update_HelpTopic(help_page::Links);
    window->Present();
}

void Store_OpenLinksPanel() {
    if (frmLinksEdit* window = linksWindow.Open())
        window->Store_Panel();
}
