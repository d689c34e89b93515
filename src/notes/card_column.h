// The scrolling column of note cards. It holds the notes of a category by their indices and makes
// cards for those in view only; the card with the focus is kept while it is out of view.
#pragma once

#include "notes/card_heights.h"
#include "notes/note_card.h"

#include <QTimer>
#include <QWidget>

#include <cstdint>
#include <vector>

class QScrollBar;

class CardColumn : public QWidget {
    Q_OBJECT
public:
    explicit CardColumn(QWidget* parent = nullptr);

    enum class Scroll { ToTop, Keep };
    // Builds the column from notes of Global_Notes, in this order. Open edits must have been
    // stored.
    void Show_Notes(std::vector<int> notes, Scroll scroll);
    int Selected_Note() const { return selected; }
    void Select_Note(int index);
    // Scrolls to the note and gives its title the focus, ready to be typed over.
    void Open_NewNote(int index);
    // The card of a note, if it is in view.
    NoteCard* Card_Of(int index) const;

Q_SIGNALS:
    void Selection_Changed();
    void Left(); // a box has lost the focus
    void Delete_Asked(int note);
    void Move_Asked(int note, const QPoint& where);
    void Tab_Out(bool forward); // the Tab key leaves the column

protected:
    bool focusNextPrevChild(bool next) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Guess_Heights();
    void Lay_Out();
    bool Place_Cards();
    void Place_Card(NoteCard& card);
    NoteCard* Card_ForRow(int row);
    NoteCard* Make_Card();
    NoteCard* Focused_Card() const;
    void Update_ScrollBar();
    void Scroll_To(std::int64_t newTop);
    void Scroll_Into_View(std::int64_t from, std::int64_t to);
    void Focus_Field(int row, int field);
    int Row_Of(int note) const;
    void Mark_Cards();
    void Timer1_Tick();
    int Card_Width() const;

    std::vector<int> rows; // row of the column -> index in Global_Notes
    CardHeights heights;   // with the gap below each card
    std::vector<NoteCard*> cards;
    QWidget* view = nullptr; // what the cards are seen through
    QScrollBar* VScroll1 = nullptr;
    QTimer Timer1;
    int selected = NoNote;
    int underMouse = NoNote;
    std::int64_t top = 0; // pixels above the view
    bool layingOut = false;
};
