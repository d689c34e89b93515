#include "platform/reg_text.h"

#include "platform/record_text.h"

#include <array>
#include <charconv>
#include <utility>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr std::string_view LineEnd = "\r\n";
constexpr std::string_view HexPrefix = "hex:";
constexpr std::string_view DWordPrefix = "dword:";

constexpr std::array<std::pair<char, char>, 5> Escapes{
    {{'\\', '\\'}, {'"', '"'}, {'\r', 'r'}, {'\n', 'n'}, {'\0', '0'}}};

std::string Hex(std::uint32_t number, int digits) {
    constexpr std::string_view Digits = "0123456789abcdef";
    std::string text;
    for (int shift = (digits - 1) * 4; shift >= 0; shift -= 4) {
        text.push_back(Digits[(number >> static_cast<unsigned>(shift)) & 0xFU]);
    }
    return text;
}

std::optional<std::uint32_t> From_Hex(std::string_view digits, std::size_t maxDigits) {
    std::uint32_t number = 0;
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), number, 16);
    const bool isWhole = error == std::errc() && end == digits.data() + digits.size();
    return isWhole && digits.size() <= maxDigits ? std::optional(number) : std::nullopt;
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

// The quoted text at the front of a line, which is taken off the line.
std::optional<QString> Take_Quoted(std::string_view& line) {
    if (!line.starts_with('"')) {
        return std::nullopt;
    }
    std::size_t end = 1;
    while (end < line.size() && line[end] != '"') {
        end += line[end] == '\\' ? 2 : 1;
    }
    if (end >= line.size()) {
        return std::nullopt;
    }
    const std::string_view inside = line.substr(1, end - 1);
    line = line.substr(end + 1);
    return Unquoted_Text(inside);
}

std::optional<std::string> Bytes_FromHex(std::string_view list) {
    std::string bytes;
    while (!list.empty()) {
        const auto byte = From_Hex(Trimmed(Take_Until(list, ',')), 2);
        if (!byte) {
            return std::nullopt;
        }
        bytes.push_back(static_cast<char>(*byte));
    }
    return bytes;
}

std::optional<RegistryValue> Parse_Value(std::string_view text) {
    RegistryValue value;
    if (text.starts_with(HexPrefix)) {
        const auto bytes = Bytes_FromHex(text.substr(HexPrefix.size()));
        value.type = RegistryType::Binary;
        value.bytes = bytes.value_or(std::string());
        return bytes ? std::optional(value) : std::nullopt;
    }
    if (text.starts_with(DWordPrefix)) {
        const auto number = From_Hex(text.substr(DWordPrefix.size()), 8);
        value.type = RegistryType::DWord;
        value.number = number.value_or(0);
        return number ? std::optional(value) : std::nullopt;
    }
    const auto inside = Take_Quoted(text);
    value.text = inside.value_or(QString());
    return inside && text.empty() ? std::optional(value) : std::nullopt;
}

} // namespace

QString Long_Root_Name(RegistryRoot root) {
    switch (root) {
    case RegistryRoot::ClassesRoot:
        return u"HKEY_CLASSES_ROOT"_s;
    case RegistryRoot::CurrentUser:
        return u"HKEY_CURRENT_USER"_s;
    case RegistryRoot::LocalMachine:
        return u"HKEY_LOCAL_MACHINE"_s;
    case RegistryRoot::Users:
        return u"HKEY_USERS"_s;
    case RegistryRoot::PerformanceData:
        return u"HKEY_PERFORMANCE_DATA"_s;
    case RegistryRoot::CurrentConfig:
        return u"HKEY_CURRENT_CONFIG"_s;
    case RegistryRoot::DynData:
        return u"HKEY_DYN_DATA"_s;
    }
    return {};
}

std::string Quoted_Bytes(const QString& text) {
    std::string quoted;
    for (const char byte : Encode_Text(text)) {
        char escape = 0;
        for (const auto& [plain, letter] : Escapes) {
            escape = byte == plain ? letter : escape;
        }
        if (escape != 0) {
            quoted.push_back('\\');
        }
        quoted.push_back(escape != 0 ? escape : byte);
    }
    return quoted;
}

std::optional<QString> Unquoted_Text(std::string_view bytes) {
    std::string plain;
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        char byte = bytes[at];
        if (byte == '\\') {
            if (++at == bytes.size()) {
                return std::nullopt;
            }
            byte = bytes[at];
            for (const auto& [meant, letter] : Escapes) {
                if (bytes[at] == letter) {
                    byte = meant;
                }
            }
        }
        plain.push_back(byte);
    }
    return Decode_Text(plain);
}

std::string Key_Line(RegistryRoot root, const QString& path) {
    const std::string below = path.isEmpty() ? std::string() : "\\" + Encode_Text(path);
    return "[" + Long_Root_Name(root).toStdString() + below + "]";
}

std::string Value_Line(const QString& name, const RegistryValue& value) {
    std::string line = name.isEmpty() ? "@" : "\"" + Quoted_Bytes(name) + "\"";
    line += "=";
    switch (value.type) {
    case RegistryType::String:
        line += "\"" + Quoted_Bytes(value.text) + "\"";
        break;
    case RegistryType::Binary:
        line += HexPrefix;
        for (std::size_t at = 0; at < value.bytes.size(); ++at) {
            line += (at > 0 ? "," : "") + Hex(static_cast<unsigned char>(value.bytes[at]), 2);
        }
        break;
    case RegistryType::DWord:
        line += std::string(DWordPrefix) + Hex(value.number, 8);
        break;
    }
    return line;
}

std::optional<RegLine> Parse_Value_Line(std::string_view line) {
    line = Trimmed(line);
    std::optional<QString> name = QString();
    if (line.starts_with('@')) {
        line.remove_prefix(1);
    } else {
        name = Take_Quoted(line);
    }
    line = Trimmed(line);
    if (!name || !line.starts_with('=')) {
        return std::nullopt;
    }
    const auto value = Parse_Value(Trimmed(line.substr(1)));
    return value ? std::optional(RegLine{*name, *value}) : std::nullopt;
}

std::string Write_RegText(RegistryRoot root, const RegistryTree& tree) {
    std::string text = std::string(RegTextHeader) + std::string(LineEnd);
    std::vector<QString> paths = tree.All_Keys();
    if (!tree.Value_Names({}).empty()) {
        paths.insert(paths.begin(), QString());
    }
    for (const QString& path : paths) {
        text += std::string(LineEnd) + Key_Line(root, path) + std::string(LineEnd);
        for (const QString& name : tree.Value_Names(path)) {
            text += Value_Line(name, *tree.Read(path, name)) + std::string(LineEnd);
        }
    }
    return text;
}

RegText Read_RegText(RegistryRoot root, std::string_view text) {
    RegText result;
    const std::string rootName = Long_Root_Name(root).toStdString();
    result.isDamaged = Trimmed(Take_Until(text, '\n')) != RegTextHeader;
    std::optional<QString> key;
    while (!text.empty()) {
        const std::string_view line = Trimmed(Take_Until(text, '\n'));
        if (line.empty() || line.starts_with(';')) {
            continue;
        }
        if (line.starts_with('[')) {
            std::string_view inside = line.substr(1, line.size() - 2);
            const bool isOurs = line.ends_with(']') && Take_Until(inside, '\\') == rootName;
            key = Decode_Text(inside);
            if (!isOurs || !result.tree.Create_Key(*key)) {
                key.reset();
            }
            result.isDamaged = result.isDamaged || !key;
            continue;
        }
        const auto value = key ? Parse_Value_Line(line) : std::nullopt;
        if (!value || !result.tree.Write(*key, value->name, value->value)) {
            result.isDamaged = true;
        }
    }
    return result;
}

} // namespace platform
