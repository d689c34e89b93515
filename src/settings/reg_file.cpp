#include "settings/reg_file.h"

#include "platform/record_text.h"
#include "platform/reg_text.h"
#include "settings/hex_text.h"

#include <algorithm>
#include <charconv>

using platform::RegistryType;
using platform::RegistryValue;

namespace {

constexpr std::string_view HexMark = "hex:";
// A text that cannot stand between quotes on one line: its bytes, with a zero at the end.
constexpr std::string_view HexTextMark = "hex(1):";
constexpr std::string_view DWordMark = "dword:";

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t\r");
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

bool Has_Mark(std::string_view text, std::string_view mark) {
    return text.size() >= mark.size() &&
           std::equal(mark.begin(), mark.end(), text.begin(), [](char wanted, char found) {
               return wanted == (found >= 'A' && found <= 'Z' ? found - 'A' + 'a' : found);
           });
}

bool Fits_OneLine(const QString& text) {
    return !text.contains(u'\r') && !text.contains(u'\n') && !text.contains(u'\0');
}

// A backslash that stands before anything else means itself: files of other programs hold paths
// without escapes.
std::string Unescaped(std::string_view text) {
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool escape =
            text[i] == '\\' && i + 1 < text.size() && (text[i + 1] == '\\' || text[i + 1] == '"');
        bytes += text[escape ? ++i : i];
    }
    return bytes;
}

std::string_view Without_Quotes(std::string_view text) {
    if (text.starts_with('"'))
        text.remove_prefix(1);
    if (text.ends_with('"'))
        text.remove_suffix(1);
    return text;
}

// Where the name ends: at the "=" behind its closing quote, else at the first.
std::size_t Find_Equals(std::string_view line) {
    if (line.starts_with('"')) {
        for (std::size_t i = 1; i < line.size(); ++i) {
            if (line[i] == '\\')
                ++i;
            else if (line[i] == '"' && i + 1 < line.size() && line[i + 1] == '=')
                return i + 1;
        }
    }
    return line.find('=');
}

// The lines of a file, those of a long list of bytes joined into one.
class Lines {
public:
    explicit Lines(std::string_view content) : rest(content) {}

    // Nothing at the end of the file.
    std::optional<std::string> Next() {
        if (rest.empty())
            return std::nullopt;
        std::string line(Take());
        while (line.ends_with('\\') && Is_HexLine(line) && !rest.empty()) {
            line.pop_back();
            line += Take();
        }
        return line;
    }

private:
    std::string_view Take() {
        const std::size_t end = rest.find('\n');
        const std::string_view line = Trimmed(rest.substr(0, end));
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
        return line;
    }
    static bool Is_HexLine(std::string_view line) {
        const std::size_t equals = Find_Equals(line);
        return equals != std::string_view::npos &&
               Has_Mark(Trimmed(line.substr(equals + 1)), "hex");
    }

    std::string_view rest;
};

std::optional<std::string> Bytes_OfList(std::string_view list) {
    std::string text(list);
    std::replace(text.begin(), text.end(), ',', ' ');
    return Bytes_OfHex(text);
}

std::optional<std::uint32_t> Number_Of(std::string_view digits) {
    std::uint32_t number = 0;
    const char* const end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, number, 16);
    if (error != std::errc() || stop != end)
        return std::nullopt;
    return number;
}

std::optional<RegistryValue> Value_OfNumber(std::string_view digits) {
    const auto number = Number_Of(digits);
    if (!number)
        return std::nullopt;
    return RegistryValue{RegistryType::DWord, {}, {}, *number};
}

std::optional<RegistryValue> Value_OfList(std::string_view list, RegistryType type) {
    auto bytes = Bytes_OfList(list);
    if (!bytes)
        return std::nullopt;
    if (type == RegistryType::Binary)
        return RegistryValue{type, {}, *bytes, 0};
    if (bytes->ends_with('\0'))
        bytes->pop_back();
    return RegistryValue{type, Decode_Text(*bytes), {}, 0};
}

std::optional<RegistryValue> Value_Of(std::string_view text) {
    if (Has_Mark(text, DWordMark))
        return Value_OfNumber(Trimmed(text.substr(DWordMark.size())));
    if (Has_Mark(text, HexMark))
        return Value_OfList(text.substr(HexMark.size()), RegistryType::Binary);
    if (Has_Mark(text, HexTextMark))
        return Value_OfList(text.substr(HexTextMark.size()), RegistryType::String);
    return RegistryValue{RegistryType::String, Decode_Text(Unescaped(Without_Quotes(text))), {}, 0};
}

std::optional<RegStatement> Key_Statement(std::string_view line) {
    const bool deletes = line.starts_with("[-");
    const std::size_t end = line.rfind(']');
    const std::size_t start = deletes ? 2 : 1;
    if (end == std::string_view::npos || end < start)
        return std::nullopt;
    return RegStatement{deletes ? RegStatementKind::DeleteKey : RegStatementKind::OpenKey,
                        Decode_Text(line.substr(start, end - start)),
                        {}};
}

std::optional<RegStatement> Value_Statement(std::string_view line) {
    const std::size_t equals = Find_Equals(line);
    if (equals == std::string_view::npos || equals == 0)
        return std::nullopt;
    RegStatement statement;
    const std::string_view name = Trimmed(line.substr(0, equals));
    if (name != "@")
        statement.Name = Decode_Text(Unescaped(Without_Quotes(name)));
    const std::string_view text = Trimmed(line.substr(equals + 1));
    if (text == "-") {
        statement.Kind = RegStatementKind::DeleteValue;
        return statement;
    }
    const auto value = Value_Of(text);
    if (!value)
        return std::nullopt;
    statement.Kind = RegStatementKind::SetValue;
    statement.Value = *value;
    return statement;
}

} // namespace

std::optional<std::vector<RegStatement>> Read_RegFile(std::string_view content) {
    Lines lines(content);
    if (lines.Next() != platform::RegTextHeader)
        return std::nullopt;
    std::vector<RegStatement> statements;
    bool inKey = false;
    while (const std::optional<std::string> line = lines.Next()) {
        if (line->empty() || line->starts_with(';'))
            continue;
        const bool isKey = line->starts_with('[');
        const auto statement = isKey ? Key_Statement(*line) : Value_Statement(*line);
        if (isKey)
            inKey = statement && statement->Kind == RegStatementKind::OpenKey;
        if (statement && (isKey || inKey))
            statements.push_back(*statement);
    }
    return statements;
}

std::string RegFile_Value(const QString& name, const RegistryValue& value) {
    if (value.type != RegistryType::String || Fits_OneLine(value.text))
        return platform::Value_Line(name, value) + "\r\n";
    constexpr std::string_view noText = "\"\"";
    constexpr std::string_view listStart = "@=hex:";
    std::string line = platform::Value_Line(name, {});
    line.resize(line.size() - noText.size());
    const std::string bytes = Encode_Text(value.text) + '\0';
    const std::string list = platform::Value_Line({}, {RegistryType::Binary, {}, bytes, 0});
    return line.append(HexTextMark).append(list.substr(listStart.size())) + "\r\n";
}
