#include "notes/notes_operations.h"

#include "platform/record_text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

const QString NewNoteText = u"Additional text (Click to change)"_s;
const QString NewCategoryName = u"New Category"_s;

namespace {

constexpr std::size_t SlotStep = 50;

QString& Name_Of(int category) {
    return Global_NoteCategories[static_cast<std::size_t>(category)];
}

NoteRec& Note_At(int index) {
    return Global_Notes[static_cast<std::size_t>(index)];
}

} // namespace

int Note_Categories() {
    const auto end = std::find_if(Global_NoteCategories.begin(), Global_NoteCategories.end(),
                                  [](const QString& name) { return name.isEmpty(); });
    return static_cast<int>(end - Global_NoteCategories.begin());
}

bool Is_NoteCategory(int category) {
    return category >= 0 && category < Note_Categories();
}

bool Is_Note(int index) {
    return index >= 0 && static_cast<std::size_t>(index) < Global_Notes.size() &&
           Note_At(index).InUse;
}

int Free_NoteCategory() {
    const int count = Note_Categories();
    return count < NoteCategoryCount ? count : NoCategory;
}

int Add_NoteCategory(const QString& name) {
    const int place = Free_NoteCategory();
    const QString trimmed = name.trimmed();
    if (place == NoCategory || !Fits_RecString(trimmed))
        return NoCategory;
    Name_Of(place) = trimmed.isEmpty() ? NewCategoryName : trimmed;
    return place;
}

void Rename_NoteCategory(int category, const QString& name) {
    const QString trimmed = name.trimmed();
    if (Is_NoteCategory(category) && !trimmed.isEmpty() && Fits_RecString(trimmed))
        Name_Of(category) = trimmed;
}

void Delete_NoteCategory(int category) {
    if (!Is_NoteCategory(category))
        return;
    for (NoteRec& note : Global_Notes) {
        if (!note.InUse)
            continue;
        if (note.Category == category)
            note = {};
        else if (note.Category > category)
            --note.Category;
    }
    std::move(Global_NoteCategories.begin() + category + 1, Global_NoteCategories.end(),
              Global_NoteCategories.begin() + category);
    Global_NoteCategories.back().clear();
}

int Add_Note(int category, const Moment& now) {
    if (!Is_NoteCategory(category))
        return NoNote;
    const auto free = std::find_if(Global_Notes.begin(), Global_Notes.end(),
                                   [](const NoteRec& note) { return !note.InUse; });
    const auto index = static_cast<int>(free - Global_Notes.begin());
    if (free == Global_Notes.end())
        Global_Notes.resize(Global_Notes.size() + SlotStep);
    Note_At(index) = {true,
                      u"New Note"_s,
                      NewNoteText,
                      now.Today,
                      now.Today,
                      now.Minute,
                      static_cast<std::uint8_t>(category)};
    return index;
}

void Delete_Note(int index) {
    if (Is_Note(index))
        Note_At(index) = {};
}

void Move_Note(int index, int category) {
    if (Is_Note(index) && Is_NoteCategory(category))
        Note_At(index).Category = static_cast<std::uint8_t>(category);
}

bool Store_Note(int index, const QString& title, const QString& text, const Moment& now) {
    if (!Is_Note(index))
        return false;
    NoteRec& note = Note_At(index);
    if (note.Title == title && note.Text == text)
        return false;
    note.Title = title;
    note.Text = text;
    note.ModifiedDay = now.Today;
    note.ModifiedMinute = now.Minute;
    return true;
}

std::vector<int> Notes_OfCategory(int category) {
    std::vector<int> rows;
    for (std::size_t index = 0; index < Global_Notes.size(); ++index)
        if (Global_Notes[index].InUse && Global_Notes[index].Category == category)
            rows.push_back(static_cast<int>(index));
    return rows;
}

std::array<int, NoteCategoryCount> Count_Notes() {
    std::array<int, NoteCategoryCount> counts{};
    for (const NoteRec& note : Global_Notes)
        if (note.InUse && note.Category < NoteCategoryCount)
            ++counts[note.Category];
    return counts;
}
