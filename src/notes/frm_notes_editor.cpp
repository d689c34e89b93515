// The controls of the window, and where they stand.
#include "notes/frm_notes_editor.h"

#include "accessories/help/help.h"
#include "controls/help_topic.h"
#include "controls/icons.h"
#include "controls/metrics.h"
#include "controls/one_window.h"
#include "controls/the_screen.h"
#include "controls/tooltip_picture.h"
#include "controls/wb_button.h"
#include "core/date_text.h"
#include "notes/card_column.h"
#include "notes/category_list.h"
#include "notes/open_note.h"
#include "platform/desktop.h"

#include <QLabel>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int Margin = 8;
constexpr int Gap = 6;
constexpr int ListWidth = 196;
constexpr int HeadTop = 8;
constexpr int ButtonHeight = 24;
constexpr int BodyTop = HeadTop + ButtonHeight + Gap;
constexpr int FootHeight = 26;
constexpr int HintHeight = 2 * SmallLineHeight;
constexpr int ColumnLeft = Margin + ListWidth + Margin;
constexpr QSize FirstSize(660, 440);
constexpr QSize LeastSize(560, 260);
constexpr int CategoriesTip = 58;
constexpr int NotesTip = 59;
constexpr int StatusTip = 60;
constexpr int TipSize = 16; // pixels, of the help pictures

OneWindow<frmNotesEditor> notesEditor;

QLabel* Make_Bold(QLabel* label) {
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    label->adjustSize();
    return label;
}

void Set_Icon(wbButton* button, IconName name) {
    button->Set_Picture(Load_Icon(name), QSize(TipSize, TipSize));
    button->Set_CenterImage(true);
}

} // namespace

frmNotesEditor::frmNotesEditor() {
    setWindowTitle(u"Notes"_s);
    Set_HelpTopic(*this, help_page::Notes);
    setMinimumSize(LeastSize);
    Build_Categories();
    Build_Notes();
    Build_Status();
    Connect_Controls();
    list->setFocus();
    const QRect screen = The_Screen();
    resize(FirstSize.boundedTo(screen.size()));
    move(Centered_In(screen, size()));
    Lay_Out();
    const int category = Is_NoteCategory(Global_LastNoteCategory) ? Global_LastNoteCategory : 0;
    Select_Category(Is_NoteCategory(category) ? category : NoCategory);
}

// Boxes that go away lose their focus first, and would ask the window that is gone to store them.
frmNotesEditor::~frmNotesEditor() {
    column->disconnect(this);
    list->disconnect(this);
}

wbButton* frmNotesEditor::Make_Button(const QString& tip) {
    auto* button = new wbButton(this);
    button->Set_Caption(QString());
    button->Set_ToolTipTextLabel(tip);
    button->setAccessibleName(tip);
    return button;
}

// All controls are made in the order of the Tab key.
void frmNotesEditor::Build_Categories() {
    const QLabel* heading = Make_Bold(Add_Label(u"Categories:"_s, Margin, HeadTop + 6));
    new TooltipPicture(CategoriesTip, heading->geometry().right() + Gap, HeadTop + 4, this);
    list = new CategoryList(this);
    wbButton5 = Make_Button(u"Click to add a new category"_s);
    Set_Icon(wbButton5, IconName::NewItem);
    wbButton5->setGeometry(Margin + ListWidth - 28, HeadTop, 28, ButtonHeight);
    hint =
        Add_Label(u"Right click on a category to change its properties."_s, Margin, 0, ListWidth);
}

void frmNotesEditor::Build_Notes() {
    notesLabel = Make_Bold(Add_Label(u"Note:"_s, ColumnLeft, HeadTop + 6));
    notesHelp =
        new TooltipPicture(NotesTip, notesLabel->geometry().right() + Gap, HeadTop + 4, this);
    wbButton1 = Make_Button(u"Click to add a new note"_s);
    Set_Icon(wbButton1, IconName::NewItem);
    wbButton2 = Make_Button(u"Click to delete the selected note"_s);
    Set_Icon(wbButton2, IconName::DeleteItem);
    wbButton3 = Make_Button(u"Click to store what you have written"_s);
    Set_Icon(wbButton3, IconName::Apply);
    column = new CardColumn(this);
}

void frmNotesEditor::Build_Status() {
    Label4 = Add_Label(u"Last Modified:"_s, ColumnLeft, 0);
    Label5 = Add_Label(u"At: "_s, 0, 0);
    statusHelp = new TooltipPicture(StatusTip, 0, 0, this);
    wbButton14 = Make_Button(u"Help on the notes archive (F1)"_s);
    wbButton14->Set_Caption(u"Help"_s);
}

void frmNotesEditor::Connect_Controls() {
    connect(list, &CategoryList::Category_Chosen, this, [this](int category) {
        Store_Edits();
        Show_Notes(category);
    });
    connect(list, &CategoryList::Menu_Asked, this, &frmNotesEditor::Mnu_CatProperties);
    connect(list, &CategoryList::Rename_Asked, this, &frmNotesEditor::Rename_Category);
    connect(list, &CategoryList::Delete_Asked, this, &frmNotesEditor::Delete_Category);
    connect(column, &CardColumn::Selection_Changed, this, &frmNotesEditor::Show_Status);
    // At the end of the program the tables may have moved on by now.
    connect(column, &CardColumn::Left, this, [this] {
        if (!Program_Is_Ending())
            Store_Edits();
    });
    connect(column, &CardColumn::Delete_Asked, this, &frmNotesEditor::Delete_Asked);
    connect(column, &CardColumn::Move_Asked, this, &frmNotesEditor::Mnu_MoveToCategory);
    connect(column, &CardColumn::Tab_Out, this, &frmNotesEditor::Leave_Column);
    connect(wbButton5, &wbButton::Click, this, &frmNotesEditor::Add_Category);
    connect(wbButton1, &wbButton::Click, this, &frmNotesEditor::New_Note);
    connect(wbButton2, &wbButton::Click, this, &frmNotesEditor::Delete_Selected);
    connect(wbButton3, &wbButton::Click, this, &frmNotesEditor::Rebuild_Cards);
    connect(wbButton14, &wbButton::Click, this, [this] {
        Store_Edits();
        Show_HelpPage(help_page::Notes);
    });
}

void frmNotesEditor::Lay_Out() {
    const int footTop = height() - Margin - FootHeight;
    hint->setGeometry(Margin, footTop, ListWidth, HintHeight);
    list->setGeometry(Margin, BodyTop, ListWidth, footTop - Gap - BodyTop);
    column->setGeometry(ColumnLeft, BodyTop, width() - Margin - ColumnLeft,
                        footTop - Gap - BodyTop);
    int right = width() - Margin;
    for (wbButton* button : {wbButton3, wbButton2, wbButton1}) {
        right -= 28;
        button->setGeometry(right, HeadTop, 28, ButtonHeight);
        right -= Gap;
    }
    wbButton14->setGeometry(width() - Margin - 64, footTop + 1, 64, ButtonHeight);
    const int textTop = footTop + (FootHeight - SmallLineHeight) / 2;
    Label4->move(ColumnLeft, textTop);
    Label4->adjustSize();
    Label5->move(Label4->geometry().right() + 2 * Margin, textTop);
    Label5->adjustSize();
    statusHelp->move(Label5->geometry().right() + Margin, footTop + (FootHeight - TipSize) / 2);
}

void frmNotesEditor::resizeEvent(QResizeEvent*) {
    Lay_Out();
}

void frmNotesEditor::Show_Status() {
    QString date;
    QString time;
    if (const int note = column->Selected_Note(); Is_Note(note)) {
        const NoteRec& record = Global_Notes[static_cast<std::size_t>(note)];
        date = u' ' + DayToDateString(record.ModifiedDay);
        time = MinutesToTime(record.ModifiedMinute);
    }
    Label4->setText(u"Last Modified:"_s + date);
    Label5->setText(u"At: "_s + time);
    Lay_Out();
}

void frmNotesEditor::Leave_Column(bool forward) {
    QWidget* next = forward ? wbButton14 : wbButton3;
    next->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
}

void frmNotesEditor::On_Unload() {
    Store_OpenNote();
    Global_LastNoteCategory = selectedCategory;
}

void Show_NotesEditor() {
    frmNotesEditor* window = notesEditor.Open_OrMake();
    if (window == nullptr)
        return;
    Update_HelpTopic(help_page::Notes);
    window->Present();
}
