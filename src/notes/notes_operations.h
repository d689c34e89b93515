// What is done to the tables of the notes archive. An index outside a table does nothing.
#pragma once

#include "notes/notes_store.h"

#include <QString>

#include <array>
#include <vector>

inline constexpr int NoCategory = -1;
inline constexpr int NoNote = -1;

// A text that nobody has written yet.
extern const QString NewNoteText;
extern const QString NewCategoryName;

// How many categories there are: the names up to the first empty one.
int Note_Categories();
bool Is_NoteCategory(int category);
// A slot in use.
bool Is_Note(int index);

// The place that the next category takes, -1 when none is free.
int Free_NoteCategory();
// Takes the free place. The name is trimmed; one of blanks only becomes "New Category". Returns its
// index, or -1.
int Add_NoteCategory(const QString& name);
// An empty name leaves the old one.
void Rename_NoteCategory(int category, const QString& name);
// With its notes; the categories behind it move up.
void Delete_NoteCategory(int category);

// In the first free slot; the table grows when there is none. Returns its index, or -1 when there
// is no such category.
int Add_Note(int category, const Moment& now);
void Delete_Note(int index);
void Move_Note(int index, int category);
// Stores what differs, with the time of the change. False: nothing differed, or no such note.
bool Store_Note(int index, const QString& title, const QString& text, const Moment& now);

// In the order of the table.
std::vector<int> Notes_OfCategory(int category);
std::array<int, NoteCategoryCount> Count_Notes();
