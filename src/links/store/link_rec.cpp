#include "links/store/link_rec.h"

#include "core/record_stream.h"

#include <algorithm>

using namespace Qt::StringLiterals;

std::vector<LinkRec> Global_LinkArray;
std::vector<LinkRec> Global_DefaultLinkArray;

namespace {

constexpr std::string_view FileHeader = "LinksSaveFile";
constexpr std::string_view FileVersion = "001";
constexpr std::size_t LeastRowBytes = 7; // three empty texts and the start size
constexpr std::size_t ProgramRows = 21;

TableFile File_OfLinks;

TableLoad Read_Rows(std::string_view content) {
    RecordReader stream(content);
    if (const auto result = stream.Get_Start(FileHeader, FileVersion); result != TableLoad::Loaded)
        return result;
    std::vector<LinkRec> rows(stream.Get_CountOfLast(LeastRowBytes));
    for (LinkRec& row : rows) {
        row.URL = stream.Get_RecString();
        row.LinkName = stream.Get_RecString();
        row.Description = stream.Get_RecString();
        row.StartSize = stream.Get_Byte();
    }
    if (!stream.Failed())
        Global_LinkArray = std::move(rows);
    return stream.Result();
}

} // namespace

std::size_t Link_Count(const std::vector<LinkRec>& rows) {
    const auto end = std::find_if(rows.begin(), rows.end(),
                                  [](const LinkRec& row) { return row.URL.isEmpty(); });
    return static_cast<std::size_t>(end - rows.begin());
}

void Build_Default_Links() {
    const QString rate = u"Rate Tockly"_s;
    Global_LinkArray = {
        {u"0http://www.example.com/tockly/"_s, u"Tockly"_s, u"Home of Tockly"_s},
        {u"0c:\\windows\\notepad.exe"_s, u"NotePad"_s, u"The classic NotePad"_s, 1},
        {u"0-"_s, u"-------------"_s, u"Separator Example"_s},
        {u"0http://www.example.com/tockly/rate"_s, rate, u"If you like Tockly, rate it here"_s},
        {u"0http://www.example.com/"_s, u"Example"_s, u"The best example on the net"_s},
        {u"@0Category"_s, u"Example Category"_s, QString()},
        {u"1http://www.example.org/"_s, u"A web browser"_s, u"A web browser that many like"_s},
    };
}

void Build_Program_Links() {
    const struct {
        const char16_t* URL;
        const char16_t* Caption;
        const char16_t* Description; // none: the caption
    } rows[] = {
        // Nobody reads it: the text has always been Spanish.
        {u"@0Category", u"Tockly", u"-------- Las categorias no tienen descripciones"},
        {u"1help:contents", u"View Help", nullptr},
        {u"1http://www.example.com/tockly/", u"Tockly on the web", nullptr},
        {u"1help:about", u"About Tockly", nullptr},
        {u"1-", u"", u"Separator"},
        {u"1config:Reminder_Edit", u"View Reminders", nullptr},
        {u"1config:Notes_Editor", u"View Notes", nullptr},
        {u"1config:Links_Edit", u"'My Links' menu setup", nullptr},
        {u"1-", u"", u"Separator"},
        {u"1config:Program_Setup", u"Program Setup", nullptr},
        {u"1config:Setup_Wizard", u"Setup wizard", nullptr},
    };
    Global_DefaultLinkArray.assign(ProgramRows, {});
    auto target = Global_DefaultLinkArray.begin();
    for (const auto& row : rows)
        *target++ = {
            QString::fromUtf16(row.URL), QString::fromUtf16(row.Caption),
            QString::fromUtf16(row.Description == nullptr ? row.Caption : row.Description)};
}

TableLoad Load_Links_File(const QString& fileName) {
    return File_OfLinks.Load(fileName, Read_Rows);
}

std::optional<std::string> Encode_Links() {
    const std::size_t count = Link_Count(Global_LinkArray);
    RecordWriter stream;
    stream.Put_Header(FileHeader);
    stream.Put_Header(FileVersion);
    stream.Put_Long(static_cast<std::int32_t>(count) - 1);
    for (std::size_t index = 0; index < count; ++index) {
        const LinkRec& row = Global_LinkArray[index];
        stream.Put_RecString(row.URL);
        stream.Put_RecString(row.LinkName);
        stream.Put_RecString(row.Description);
        stream.Put_Byte(row.StartSize);
    }
    return stream.Failed() ? std::nullopt : std::optional(stream.Bytes());
}

TableFile& Links_File() {
    return File_OfLinks;
}

bool Save_Links_File(const QString& fileName) {
    const std::optional<std::string> bytes = Encode_Links();
    return bytes && File_OfLinks.Save(fileName, *bytes);
}
