#include "notes/open_note.h"

#include "controls/text_fields.h"
#include "notes/notes_operations.h"
#include "platform/record_text.h"

#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

struct OpenEdits {
    int Index = NoNote;
    std::optional<QString> Title;
    std::optional<QString> Text;
};

OpenEdits edits;

OpenEdits& Edits_Of(int index) {
    if (edits.Index != index)
        Store_OpenNote();
    edits.Index = index;
    return edits;
}

// Lines end with CR LF, unless just that would be too long for the file.
QString Stored_Text(const QString& boxText) {
    const QString text = Text_ForRecord(boxText);
    return Fits_RecString(text) ? text : boxText;
}

} // namespace

void Edit_NoteTitle(int index, const QString& title) {
    Edits_Of(index).Title = title;
}

void Edit_NoteText(int index, const QString& text) {
    Edits_Of(index).Text = text;
}

bool Store_OpenNote() {
    const OpenEdits open = std::exchange(edits, OpenEdits());
    if (!Is_Note(open.Index))
        return false;
    const NoteRec& note = Global_Notes[static_cast<std::size_t>(open.Index)];
    const bool isOtherText = open.Text && *open.Text != Text_ForBox(note.Text);
    return Store_Note(open.Index, open.Title.value_or(note.Title),
                      isOtherText ? Stored_Text(*open.Text) : note.Text, Read_Moment());
}

void Forget_OpenNote() {
    edits = {};
}

bool Fits_Note(const QString& boxText) {
    // No character needs more than three bytes; the mark of the long form takes three more.
    const bool isShort = static_cast<std::size_t>(boxText.size()) * 3 + 3 <= MaxRecStringBytes;
    return isShort || Fits_RecString(boxText);
}
