#include "notes/notes_store.h"

#include "core/record_stream.h"
#include "notes/open_note.h"
#include "platform/files.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

std::array<QString, NoteCategoryCount> Global_NoteCategories;
std::vector<NoteRec> Global_Notes;
int Global_LastNoteCategory = 0;

namespace {

constexpr std::string_view FileHeader = "NotesSaveFile";
constexpr std::string_view FileVersion = "001";
constexpr std::size_t FirstSlots = 51;
constexpr std::size_t LeastNoteBytes = 19; // without title and text

TableFile File_OfNotes;

NoteRec Get_Note(RecordReader& stream) {
    NoteRec note;
    note.InUse = stream.Get_Boolean();
    note.Title = stream.Get_RecString();
    note.Text = stream.Get_RecString();
    note.CreatedDay = stream.Get_Long();
    note.ModifiedDay = stream.Get_Long();
    note.ModifiedMinute = stream.Get_Long();
    note.Category = stream.Get_Byte();
    return note;
}

void Put_Note(RecordWriter& stream, const NoteRec& note) {
    stream.Put_Boolean(note.InUse);
    stream.Put_RecString(note.Title);
    stream.Put_RecString(note.Text);
    stream.Put_Long(note.CreatedDay);
    stream.Put_Long(note.ModifiedDay);
    stream.Put_Long(note.ModifiedMinute);
    stream.Put_Byte(note.Category);
}

TableLoad Read_Tables(std::string_view content) {
    RecordReader stream(content);
    if (const auto result = stream.Get_Start(FileHeader, FileVersion); result != TableLoad::Loaded)
        return result;
    std::array<QString, NoteCategoryCount> names;
    for (QString& name : names)
        name = stream.Get_RecString();
    std::vector<NoteRec> notes(stream.Get_CountOfLast(LeastNoteBytes));
    for (NoteRec& note : notes)
        note = Get_Note(stream);
    if (stream.Failed())
        return TableLoad::Invalid;
    Global_NoteCategories = std::move(names);
    // A file without notes leaves the table as the start of the program made it.
    if (!notes.empty())
        Global_Notes = std::move(notes);
    return TableLoad::Loaded;
}

// The places of the notes in the order of the file: each gap takes the last note behind it.
std::vector<std::size_t> Order_InFile() {
    std::vector<std::size_t> order;
    std::size_t end = Global_Notes.size();
    for (std::size_t index = 0; index < end; ++index) {
        while (!Global_Notes[index].InUse && end > index && !Global_Notes[end - 1].InUse) {
            --end;
        }
        if (index < end) {
            order.push_back(Global_Notes[index].InUse ? index : --end);
        }
    }
    return order;
}

void Close_Gaps() {
    std::vector<NoteRec> notes;
    for (const std::size_t index : Order_InFile()) {
        notes.push_back(std::move(Global_Notes[index]));
    }
    // Without a note the table stays as long as it is, all free.
    notes.resize(notes.empty() ? Global_Notes.size() : notes.size());
    Global_Notes = std::move(notes);
}

} // namespace

void Init_Notes() {
    Global_NoteCategories = {};
    Global_Notes.assign(FirstSlots, NoteRec());
    Global_LastNoteCategory = 0;
    File_OfNotes = {};
    Forget_OpenNote();
}

TableLoad Load_Notes_File(const QString& fileName) {
    return File_OfNotes.Load(fileName, Read_Tables);
}

std::optional<std::string> Encode_Notes() {
    const std::vector<std::size_t> order = Order_InFile();
    RecordWriter stream;
    stream.Put_Header(FileHeader);
    stream.Put_Header(FileVersion);
    for (const QString& name : Global_NoteCategories)
        stream.Put_RecString(name);
    stream.Put_Long(static_cast<std::int32_t>(order.size()) - 1);
    for (const std::size_t index : order) {
        Put_Note(stream, Global_Notes[index]);
    }
    return stream.Failed() ? std::nullopt : std::optional(stream.Bytes());
}

TableFile& Notes_File() {
    return File_OfNotes;
}

bool Save_Notes_File(const QString& fileName) {
    Close_Gaps();
    const std::optional<std::string> bytes = Encode_Notes();
    return bytes && File_OfNotes.Save(fileName, *bytes);
}

void Notes_Build_Example() {
    Global_NoteCategories[0] = u"Work Stuff"_s;
    Global_NoteCategories[1] = u"Another Category"_s;
    const NoteRec examples[] = {
        // The misspelling has always stood there.
        {true, u"Example note 1"_s, u"It's not necesary to write text here"_s, 0, 0, 0, 0},
        {true, u"Example note 2"_s, u"Note text"_s, 1000, 0, 0, 0},
        {true, u"Example note 3"_s, QString(), 1000, 0, 0, 1}};
    Global_Notes.resize(std::max(Global_Notes.size(), std::size(examples)));
    std::copy(std::begin(examples), std::end(examples), Global_Notes.begin());
}

TableLoad Load_AccountNotes(const QString& accountFolder, const QString& exampleFile) {
    const TableLoad result = Load_Notes_File(accountFolder + "/notes.dat"_L1);
    if (result == TableLoad::Loaded)
        return result;
    // The program's own examples follow those that could be read, too; a file of examples that
    // cannot be read leaves the archive empty. Both are meant.
    const TableLoad examples = TableFile().Load(exampleFile, Read_Tables);
    if (examples == TableLoad::NoFile || examples == TableLoad::Loaded)
        Notes_Build_Example();
    return result;
}
