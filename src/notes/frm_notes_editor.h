// The window of the notes archive: the categories at the left, the notes of the selected one as a
// column of cards at the right, the date of the last change at the bottom.
#pragma once

#include "controls/form.h"
#include "notes/notes_operations.h"

class CardColumn;
class CategoryList;
class QLabel;
class TooltipPicture;
class wbButton;

class frmNotesEditor : public Form {
    Q_OBJECT
public:
    frmNotesEditor();
    ~frmNotesEditor() override;

    // Builds list and cards anew; the open edits must have been stored.
    void Select_Category(int category);
    int Selected_Category() const { return selectedCategory; }

protected:
    void On_Unload() override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void Build_Categories();
    void Build_Notes();
    void Build_Status();
    void Connect_Controls();
    wbButton* Make_Button(const QString& tip);
    void Lay_Out();

    void Add_Category();
    void Mnu_CatProperties(int category, const QPoint& where);
    void Rename_Category(int category);
    void Delete_Category(int category);
    void New_Note();
    void Delete_Selected();
    void Delete_Asked(int note);
    void Mnu_MoveToCategory(int note, const QPoint& where);
    void Rebuild_Cards();
    void Leave_Column(bool forward);

    void Show_Notes(int category);
    void Store_Edits();
    void Show_Status();

    int selectedCategory = NoCategory;
    CategoryList* list = nullptr;
    CardColumn* column = nullptr;
    QLabel* Label4 = nullptr;     // "Last Modified:"
    QLabel* Label5 = nullptr;     // "At: "
    QLabel* notesLabel = nullptr; // "Note:"
    QLabel* hint = nullptr;
    wbButton* wbButton5 = nullptr;  // a new category
    wbButton* wbButton1 = nullptr;  // a new note
    wbButton* wbButton2 = nullptr;  // deletes the selected note
    wbButton* wbButton3 = nullptr;  // stores and shows anew
    wbButton* wbButton14 = nullptr; // help
    TooltipPicture* notesHelp = nullptr;
    TooltipPicture* statusHelp = nullptr;
};

// Makes the window if need be, and brings it to the front.
void Show_NotesEditor();
