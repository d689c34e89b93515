// The notes archive: short titled texts in at most 18 named categories, and its file.
#pragma once

#include "core/table_file.h"
#include "core/time_routines.h"

#include <QString>

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// A note of a slot that is not in use means nothing.
struct NoteRec {
    bool InUse = false;
    QString Title;
    QString Text;
    Day CreatedDay = 0;
    Day ModifiedDay = 0;
    std::int32_t ModifiedMinute = 0; // Minute of that day
    std::uint8_t Category = 0;       // index in Global_NoteCategories
};

inline constexpr int NoteCategoryCount = 18;

// Empty: a free place. The names stand without gaps from the first on.
extern std::array<QString, NoteCategoryCount> Global_NoteCategories;
extern std::vector<NoteRec> Global_Notes; // 0..50 at first, grown by 50
extern int Global_LastNoteCategory;       // where the window was closed in this run

// Both tables, all free; no edits are open.
void Init_Notes();
// Reads both tables; on a failure they stay as they are. The bytes of a damaged file are kept aside
// before a later save replaces them.
TableLoad Load_Notes_File(const QString& fileName);
// Closes the gaps in the table and writes it. The last notes move into the first gaps, so their
// order changes and an index is good for nothing afterwards: that is meant. False: the file was not
// replaced ("Error saving notes").
bool Save_Notes_File(const QString& fileName);
// The bytes of that file; the table stays as it is. Nothing when a text is too long for its field.
std::optional<std::string> Encode_Notes();
// The tables' file, for who writes it beside the interface.
TableFile& Notes_File();
// Puts the example notes over the first places of both tables.
void Notes_Build_Example();

// The load at the start of the program: "notes.dat" of the account's folder. Without one, or with
// one that cannot be read, the examples follow.
TableLoad Load_AccountNotes(const QString& accountFolder, const QString& exampleFile);
