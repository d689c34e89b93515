// What the buttons and menus of the notes window do. Menus and boxes handle events: behind each of
// them the window may be gone, the program at its end, and the tables changed.
#include "controls/metrics.h"
#include "controls/program_end.h"
#include "notes/card_column.h"
#include "notes/category_list.h"
#include "notes/frm_notes_editor.h"
#include "notes/open_note.h"
#include "platform/dialogs.h"
#include "platform/record_text.h"

#include <QMenu>
#include <QPointer>

#include <functional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype ShownTitle = 60; // characters, of a title in a question

QString Name_Of(int category) {
    return Is_NoteCategory(category) ? Global_NoteCategories[static_cast<std::size_t>(category)]
                                     : QString();
}

QString Menu_Text(const QString& name) {
    QString text = name.left(ShownTitle).simplified();
    return text.replace(u'&', "&&"_L1);
}

// Whether a window can go on after a box or a menu.
class Still_There {
public:
    explicit Still_There(frmNotesEditor* form) : window(form) {}
    bool Holds() const { return window && !window->Is_Unloading() && !Program_Is_Ending(); }

private:
    QPointer<frmNotesEditor> window;
};

// The number of the entry picked; -1 without one.
int Ask(QMenu& menu, const QPoint& where) {
    menu.setFont(Small_Font());
    const QAction* picked = menu.exec(where);
    return picked == nullptr ? -1 : picked->data().toInt();
}

// taken: called with a name that the file can hold, unless the user cancels.
void Ask_Name(frmNotesEditor* form, const QString& title, const QString& name,
              std::function<void(const QString&)> taken) {
    platform::Dialogs::Get().Input(form, u"Insert the new category name:"_s, title, name,
                                   [taken = std::move(taken)](const QString& answer) {
                                       if (!Fits_RecString(answer.trimmed()))
                                           platform::Dialogs::Get().Message(
                                               u"The name is too long."_s,
                                               platform::BoxStyle::Exclamation);
                                       else if (!answer.isEmpty())
                                           taken(answer);
                                   });
}

// Both questions are about what cannot be taken back: Enter keeps it.
bool Ask_Question(const QString& text, const QString& title) {
    return platform::Dialogs::Get().Question(
               text, false, {title, platform::BoxStyle::Question, platform::Answer::No}) ==
           platform::Answer::Yes;
}

} // namespace

void frmNotesEditor::Store_Edits() {
    if (Store_OpenNote())
        Show_Status();
}

void frmNotesEditor::Select_Category(int category) {
    list->Fill(category);
    Show_Notes(category);
}

void frmNotesEditor::Show_Notes(int category) {
    const bool isOther = category != selectedCategory;
    selectedCategory = category;
    column->Show_Notes(Notes_OfCategory(category),
                       isOther ? CardColumn::Scroll::ToTop : CardColumn::Scroll::Keep);
    Show_Status();
}

void frmNotesEditor::Rebuild_Cards() {
    Store_Edits();
    Select_Category(selectedCategory);
}

void frmNotesEditor::Add_Category() {
    Store_Edits();
    if (Free_NoteCategory() == NoCategory) {
        platform::Dialogs::Get().Message(u"You can create a maximun of "_s +
                                             QString::number(NoteCategoryCount) + u" categories."_s,
                                         platform::BoxStyle::Exclamation);
        return;
    }
    Ask_Name(this, u"Add Category"_s, NewCategoryName, [this](const QString& name) {
        Add_NoteCategory(name);
        Select_Category(selectedCategory);
    });
}

void frmNotesEditor::Mnu_CatProperties(int category, const QPoint& where) {
    Store_Edits();
    const QString name = Name_Of(category);
    const Still_There still(this);
    QMenu menu;
    menu.addAction(u"Rename"_s)->setData(0);
    menu.addAction(u"Delete"_s)->setData(1);
    const int picked = Ask(menu, where);
    if (picked == -1 || !still.Holds() || Name_Of(category) != name)
        return;
    if (picked == 0)
        Rename_Category(category);
    else
        Delete_Category(category);
}

void frmNotesEditor::Rename_Category(int category) {
    Store_Edits();
    Ask_Name(this, u"Rename Category"_s, Name_Of(category), [this, category](const QString& name) {
        Rename_NoteCategory(category, name);
        Select_Category(selectedCategory);
    });
}

void frmNotesEditor::Delete_Category(int category) {
    Store_Edits();
    const QString before = Name_Of(category);
    const Still_There still(this);
    if (!Ask_Question(u"All the notes inside this category will be deleted\r\nContinue ?"_s,
                      u"Delete \"%1\""_s.arg(before.left(ShownTitle).simplified())) ||
        !still.Holds() || Name_Of(category) != before)
        return;
    Delete_NoteCategory(category);
    Select_Category(NoCategory);
}

void frmNotesEditor::New_Note() {
    Store_Edits();
    const int note = Add_Note(selectedCategory, Read_Moment());
    if (note == NoNote) {
        platform::Dialogs::Get().Message(u"Please select a category"_s,
                                         platform::BoxStyle::Exclamation);
        return;
    }
    Select_Category(selectedCategory);
    column->Open_NewNote(note);
}

// The button asks nothing; the link of a card does. Both are meant.
void frmNotesEditor::Delete_Selected() {
    Store_Edits();
    Delete_Note(column->Selected_Note());
    column->Select_Note(NoNote);
    Select_Category(selectedCategory);
}

void frmNotesEditor::Delete_Asked(int note) {
    Store_Edits();
    if (!Is_Note(note))
        return;
    const NoteRec before = Global_Notes[static_cast<std::size_t>(note)];
    const Still_There still(this);
    const QString title = before.Title.left(ShownTitle).simplified();
    if (!Ask_Question(u"Delete the note \"%1\" ?"_s.arg(title), u"Delete note"_s) ||
        !still.Holds() || !Is_Note(note) ||
        Global_Notes[static_cast<std::size_t>(note)].Title != before.Title)
        return;
    Delete_Note(note);
    Select_Category(selectedCategory);
}

void frmNotesEditor::Mnu_MoveToCategory(int note, const QPoint& where) {
    Store_Edits();
    const Still_There still(this);
    QMenu menu;
    for (int category = 0; category < Note_Categories(); ++category) {
        QAction* entry = menu.addAction(Menu_Text(Name_Of(category)));
        entry->setData(category);
        entry->setCheckable(true);
        entry->setChecked(category == selectedCategory);
    }
    const auto names = Global_NoteCategories;
    const int picked = Ask(menu, where);
    if (picked == -1 || !still.Holds() || names != Global_NoteCategories)
        return;
    Store_Edits();
    Move_Note(note, picked);
    Select_Category(selectedCategory);
}
