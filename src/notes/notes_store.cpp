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
constexpr std::int32_t NoNotes = -1;

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

int Read_Tables(RecordReader& stream) {
    if (stream.Get_Header(FileHeader.size()) != FileHeader)
        return NotesWrongHeader;
    const std::string_view version = stream.Get_Header(FileVersion.size());
    if (stream.Failed())
        return NotesDamaged;
    if (version != FileVersion)
        return NotesUnknownVersion;
    std::array<QString, NoteCategoryCount> names;
    for (QString& name : names)
        name = stream.Get_RecString();
    const std::int32_t last = stream.Get_Long();
    if (stream.Failed() || last < NoNotes)
        return NotesDamaged;
    const auto count = static_cast<std::size_t>(last + std::int64_t{1});
    if (count > stream.Left() / LeastNoteBytes)
        return NotesDamaged;
    std::vector<NoteRec> notes;
    notes.reserve(count);
    for (std::size_t index = 0; index < count; ++index)
        notes.push_back(Get_Note(stream));
    if (stream.Failed())
        return NotesDamaged;
    Global_NoteCategories = std::move(names);
    // A file without notes leaves the table as the start of the program made it.
    if (last != NoNotes)
        Global_Notes = std::move(notes);
    return 0;
}

int Read_Content(const std::optional<std::string>& bytes) {
    if (!bytes)
        return NotesNotReadable;
    RecordReader stream(*bytes);
    return Read_Tables(stream);
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

int Load_Notes_File(const QString& fileName) {
    const int result = Read_Content(File_OfNotes.Read(fileName));
    File_OfNotes.Note_Load(fileName, result == 0);
    return result;
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

NotesLoad Load_AccountNotes(const QString& accountFolder, const QString& exampleFile) {
    platform::Files& files = platform::Files::Get();
    const QString fileName = accountFolder + "/notes.dat"_L1;
    NotesLoad result = NotesLoad::NoFile;
    if (!files.Is_Absent(fileName)) {
        const int loaded = Load_Notes_File(fileName);
        if (loaded == 0)
            return NotesLoad::Loaded;
        result = loaded == NotesUnknownVersion ? NotesLoad::UnknownVersion : NotesLoad::Invalid;
    }
    // The program's own examples follow those that could be read, too; a file of examples that
    // cannot be read leaves the archive empty. Both are meant.
    if (!files.Exists(exampleFile) || Read_Content(files.Read(exampleFile)) == 0)
        Notes_Build_Example();
    return result;
}
