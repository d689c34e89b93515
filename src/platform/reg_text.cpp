#include "platform/reg_text.h"

#include "platform/record_text.h"

#include <QByteArray>
#include <QStringList>

#include <algorithm>
#include <array>
#include <charconv>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

struct RootName {
    RegistryRoot root;
    QLatin1String shortForm;
    QLatin1String longForm;
};

constexpr std::array Roots{
    RootName{RegistryRoot::ClassesRoot, "HKCR"_L1, "HKEY_CLASSES_ROOT"_L1},
    RootName{RegistryRoot::CurrentUser, "HKCU"_L1, "HKEY_CURRENT_USER"_L1},
    RootName{RegistryRoot::LocalMachine, "HKLM"_L1, "HKEY_LOCAL_MACHINE"_L1},
    RootName{RegistryRoot::Users, "HKUS"_L1, "HKEY_USERS"_L1},
    RootName{RegistryRoot::PerformanceData, "HKPD"_L1, "HKEY_PERFORMANCE_DATA"_L1},
    RootName{RegistryRoot::CurrentConfig, "HKCC"_L1, "HKEY_CURRENT_CONFIG"_L1},
    RootName{RegistryRoot::DynData, "HKDD"_L1, "HKEY_DYN_DATA"_L1},
};

constexpr std::string_view Header = "REGEDIT4";
constexpr std::string_view LineEnd = "\r\n";
constexpr std::string_view HexMark = "hex:";
// A text that cannot stand between quotes on one line: its bytes, with a zero at the end.
constexpr std::string_view HexTextMark = "hex(1):";
constexpr std::string_view DWordMark = "dword:";

std::string Quoted(const QString& text) {
    std::string quoted = "\"";
    for (const char byte : Encode_Text(text)) {
        if (byte == '\\' || byte == '"') {
            quoted += '\\';
        }
        quoted += byte;
    }
    return quoted + '"';
}

std::string Hex_List(const std::string& bytes) {
    return QByteArray::fromStdString(bytes).toHex(',').toStdString();
}

std::string Value_Text(const RegistryValue& value) {
    switch (value.type) {
    case RegistryType::String:
        return Fits_OneLine(value.text)
                   ? Quoted(value.text)
                   : std::string(HexTextMark) + Hex_List(Encode_Text(value.text) + '\0');
    case RegistryType::Binary:
        return std::string(HexMark) + Hex_List(value.bytes);
    case RegistryType::DWord:
        break;
    }
    const QByteArray digits = QByteArray::number(value.number, 16).rightJustified(8, '0');
    return std::string(DWordMark) + digits.toStdString();
}

// The default value first, then texts, binary values and numbers.
int Rank(const NamedRegistryValue& entry) {
    return entry.name.isEmpty() ? 0 : static_cast<int>(entry.value.type);
}

std::string_view Trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(" \t\r");
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

// Cuts off and returns everything before the next separator; the separator goes too.
std::string_view Take_Until(std::string_view& rest, char separator) {
    const auto at = rest.find(separator);
    const std::string_view part = rest.substr(0, at);
    rest = at == std::string_view::npos ? std::string_view() : rest.substr(at + 1);
    return part;
}

bool Has_Mark(std::string_view text, std::string_view mark) {
    return text.size() >= mark.size() &&
           std::equal(mark.begin(), mark.end(), text.begin(), [](char wanted, char found) {
               return wanted == (found >= 'A' && found <= 'Z' ? found - 'A' + 'a' : found);
           });
}

// Where the name ends: at the "=" behind its closing quote, else at the first.
std::size_t Find_Equals(std::string_view line) {
    for (std::size_t at = 1; line.starts_with('"') && at < line.size(); ++at) {
        if (line[at] == '\\') {
            ++at;
        } else if (line[at] == '"') {
            const auto next = line.find_first_not_of(" \t", at + 1);
            if (next != std::string_view::npos && line[next] == '=') {
                return next;
            }
        }
    }
    return line.find('=');
}

// The lines of a text, those of a long list of bytes joined into one.
class Lines {
public:
    explicit Lines(std::string_view text) : rest(text) {}

    bool Are_Left() const { return !rest.empty(); }
    std::string Next() {
        std::string line(Take());
        while (line.ends_with('\\') && Is_HexLine(line) && Are_Left()) {
            line.pop_back();
            line += Take();
        }
        return line;
    }

private:
    std::string_view Take() { return Trimmed(Take_Until(rest, '\n')); }
    static bool Is_HexLine(std::string_view line) {
        const std::size_t equals = Find_Equals(line);
        return equals != std::string_view::npos &&
               Has_Mark(Trimmed(line.substr(equals + 1)), "hex");
    }

    std::string_view rest;
};

std::optional<std::uint32_t> From_Hex(std::string_view digits) {
    std::uint32_t number = 0;
    const char* const end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, number, 16);
    return error == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

// Reads the line of a value, sound until something is missing.
class ValueLine {
public:
    static RegStatement Read(std::string_view line) {
        ValueLine reader;
        reader.Read_Parts(line);
        return reader.statement;
    }

private:
    void Read_Parts(std::string_view line) {
        const std::size_t equals = Find_Equals(line);
        if (equals == std::string_view::npos || equals == 0) {
            return;
        }
        statement.isSound = true;
        const std::string_view name = Trimmed(line.substr(0, equals));
        statement.name = name == "@" ? QString() : Unquoted(name);
        const std::string_view text = Trimmed(line.substr(equals + 1));
        if (text == "-") {
            statement.kind = RegStatementKind::DeleteValue;
        } else if (Read_Value(text)) {
            statement.kind = RegStatementKind::SetValue;
        }
    }

    bool Read_Value(std::string_view text) {
        RegistryValue& value = statement.value;
        if (Has_Mark(text, DWordMark)) {
            const auto number = From_Hex(Trimmed(text.substr(DWordMark.size())));
            value = {RegistryType::DWord, {}, {}, number.value_or(0)};
            return number.has_value();
        }
        if (Has_Mark(text, HexMark)) {
            value.type = RegistryType::Binary;
            return Read_List(text.substr(HexMark.size()), value.bytes);
        }
        if (!Has_Mark(text, HexTextMark)) {
            value.text = Unquoted(text);
            return true;
        }
        std::string bytes;
        const bool isList = Read_List(text.substr(HexTextMark.size()), bytes);
        if (bytes.ends_with('\0')) {
            bytes.pop_back();
        } else {
            statement.isSound = false;
        }
        value.text = Decode_Text(bytes);
        return isList;
    }

    bool Read_List(std::string_view list, std::string& bytes) {
        std::string digits(list);
        std::replace_if(
            digits.begin(), digits.end(), [](char byte) { return byte == ',' || byte == '\t'; },
            ' ');
        const auto read = Bytes_OfHex(digits);
        bytes = read.value_or(std::string());
        const auto commas = static_cast<std::size_t>(std::count(list.begin(), list.end(), ','));
        if (bytes.size() != commas + (bytes.empty() ? 0 : 1)) {
            statement.isSound = false;
        }
        return read.has_value();
    }

    // A backslash that stands before anything but itself and a quote means itself: files of other
    // programs hold paths without escapes.
    QString Unquoted(std::string_view text) {
        const bool isOpened = text.starts_with('"');
        text.remove_prefix(isOpened ? 1 : 0);
        const bool isClosed = text.ends_with('"');
        text.remove_suffix(isClosed ? 1 : 0);
        bool isSound = isOpened && isClosed;
        std::string bytes;
        for (std::size_t at = 0; at < text.size(); ++at) {
            const bool isSpecial = text[at] == '\\' || text[at] == '"';
            const bool isEscape = text[at] == '\\' && at + 1 < text.size() &&
                                  (text[at + 1] == '\\' || text[at + 1] == '"');
            isSound = isSound && (isEscape || !isSpecial);
            bytes += text[isEscape ? ++at : at];
        }
        statement.isSound = statement.isSound && isSound;
        return Decode_Text(bytes);
    }

    RegStatement statement;
};

RegStatement Key_Statement(std::string_view line) {
    const bool deletes = line.starts_with("[-");
    const std::size_t start = deletes ? 2 : 1;
    const std::size_t end = line.rfind(']');
    if (end == std::string_view::npos || end < start) {
        return {};
    }
    std::string_view path = line.substr(start, end - start);
    const QString root = Decode_Text(Take_Until(path, '\\'));
    const auto key = Place_Of(root + u'\\' + Decode_Text(path));
    if (!key) {
        return {};
    }
    const auto kind = deletes ? RegStatementKind::DeleteKey : RegStatementKind::OpenKey;
    return {kind, *key, {}, {}, end + 1 == line.size()};
}

} // namespace

QString Long_Root_Name(RegistryRoot root) {
    const auto* const found = std::find_if(Roots.begin(), Roots.end(),
                                           [&](const RootName& name) { return name.root == root; });
    return found == Roots.end() ? QString() : QString(found->longForm);
}

std::optional<KeyPlace> Place_Of(const QString& key) {
    const QString head = key.section(u'\\', 0, 0);
    for (const RootName& name : Roots) {
        // Of a short form the first four characters decide.
        if (head.left(4).compare(name.shortForm, Qt::CaseInsensitive) == 0 ||
            head.compare(name.longForm, Qt::CaseInsensitive) == 0) {
            const QStringList parts = key.section(u'\\', 1).split(u'\\', Qt::SkipEmptyParts);
            return KeyPlace{name.root, parts.join(u'\\')};
        }
    }
    return std::nullopt;
}

std::string Key_Text(const KeyPlace& key, const std::vector<NamedRegistryValue>& values) {
    std::string text = "[" + Long_Root_Name(key.root).toStdString();
    if (!key.path.isEmpty()) {
        text += "\\" + Encode_Text(key.path);
    }
    text += std::string("]").append(LineEnd);
    std::vector<NamedRegistryValue> sorted = values;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const auto& a, const auto& b) { return Rank(a) < Rank(b); });
    for (const auto& [name, value] : sorted) {
        text += name.isEmpty() ? "@" : Quoted(name);
        text += "=" + Value_Text(value) + std::string(LineEnd);
    }
    return text.append(LineEnd);
}

RegText Read_RegText(std::string_view text) {
    Lines lines(text);
    RegText read{lines.Next() == Header, {}};
    std::optional<KeyPlace> opened;
    while (lines.Are_Left()) {
        const std::string line = lines.Next();
        if (line.empty() || line.starts_with(';')) {
            continue;
        }
        if (line.starts_with('[')) {
            const RegStatement key = Key_Statement(line);
            opened = key.kind == RegStatementKind::OpenKey ? std::optional(key.key) : std::nullopt;
            read.statements.push_back(key);
            continue;
        }
        RegStatement value = opened ? ValueLine::Read(line) : RegStatement();
        value.key = opened.value_or(KeyPlace());
        read.statements.push_back(value);
    }
    return read;
}

RegTree Read_RegTree(RegistryRoot root, std::string_view text) {
    const RegText read = Read_RegText(text);
    RegTree result{{}, !read.hasHeader};
    for (const auto& [kind, key, name, value, isSound] : read.statements) {
        bool isTaken = false;
        if (isSound && key.root == root && kind == RegStatementKind::OpenKey) {
            isTaken = result.tree.Create_Key(key.path);
        } else if (isSound && key.root == root && kind == RegStatementKind::SetValue) {
            isTaken = result.tree.Write(key.path, name, value);
        }
        result.isDamaged = result.isDamaged || !isTaken;
    }
    return result;
}

std::string Write_RegTree(RegistryRoot root, const RegistryTree& tree) {
    std::string text(RegTextStart);
    std::vector<QString> paths = tree.All_Keys();
    if (!tree.Value_Names({}).empty()) {
        paths.insert(paths.begin(), QString());
    }
    for (const QString& path : paths) {
        std::vector<NamedRegistryValue> values;
        for (const QString& name : tree.Value_Names(path)) {
            values.push_back({name, *tree.Read(path, name)});
        }
        text += Key_Text({root, path}, values);
    }
    return text;
}

std::optional<std::string> Bytes_OfHex(std::string_view digits) {
    std::string bytes;
    while (!digits.empty()) {
        if (digits.front() == ' ') {
            digits.remove_prefix(1);
            continue;
        }
        const std::size_t count = digits.size() > 1 && digits[1] != ' ' ? 2 : 1;
        const auto byte = From_Hex(digits.substr(0, count));
        if (!byte) {
            return std::nullopt;
        }
        bytes += static_cast<char>(*byte);
        digits.remove_prefix(count);
    }
    return bytes;
}

} // namespace platform
