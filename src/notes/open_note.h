// What is being typed into a note and is not in the table yet. It is plain data, so that it can be
// stored at any end of the program, windows or no windows.
#pragma once

#include <QString>

// The user has changed the box of a note; another note's open edits are stored first. Line ends are
// "\n" here.
void Edit_NoteTitle(int index, const QString& title);
void Edit_NoteText(int index, const QString& text);
// Stores the open edits where they differ from the note. For every button and menu, at the loss of
// the focus and at the end of the program. False: nothing differed.
bool Store_OpenNote();
// Nothing is open any more.
void Forget_OpenNote();

// Whether a note can hold the text of a box.
bool Fits_Note(const QString& boxText);
