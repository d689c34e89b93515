// One note of the column: its title and text, its date, and what can be done with it. A card shows
// now one note, now another: there are only as many cards as are in view.
#pragma once

#include "notes/notes_operations.h"

#include <QWidget>

#include <vector>

class NoteLink;
class NoteTextBox;
class NoteTitleBox;
class QLabel;

class NoteCard : public QWidget {
    Q_OBJECT
public:
    explicit NoteCard(QWidget* parent = nullptr);

    // The row of the column and the note of Global_Notes; the boxes are filled anew.
    void Show_Note(int row, int index);
    // Shows no note, and is hidden.
    void Release();
    int Row() const { return row; }
    int Note() const { return note; }
    void Set_Marks(bool selected, bool underMouse);
    // Lays the card out at its width and returns the height it needs, pixels.
    int Lay_Out(int width);
    // Roughly the heights of the cards of notes that no card shows.
    static std::vector<int> Guessed_Heights(const std::vector<int>& notes, int width);

    // Its fields in the order of the Tab key.
    static constexpr int FieldCount = 4;
    QWidget* Field(int number) const;
    // The field that has the focus, or gets it with the window; -1 = none of this card's.
    int Focused_Field() const;

Q_SIGNALS:
    void Selected();
    void Left();                          // a box has lost the focus
    void Height_Changed();                // its text has grown or shrunk
    void Caret_Moved(const QRect& caret); // pixels of the card
    void Delete_Asked();
    void Move_Asked(const QPoint& where); // on the screen

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void Text_Focused();
    void Text_Edited();

    NoteTitleBox* Text1 = nullptr;
    NoteTextBox* Text2 = nullptr;
    QLabel* Label2 = nullptr;     // the date
    NoteLink* moveLink = nullptr; // opens Mnu_MoveToCategory
    NoteLink* Label7 = nullptr;
    int row = -1;
    int note = NoNote;
    bool isSelected = false;
    bool isUnderMouse = false;
};
