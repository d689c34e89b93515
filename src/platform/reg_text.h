// The text form of the registry editor: how one root of a registry is kept in a file, and how its
// lines are written and read. Each name or value is encoded alone, so that no text is lost.
#pragma once

#include "platform/registry_tree.h"

#include <string>
#include <string_view>

namespace platform {

inline constexpr std::string_view RegTextHeader = "REGEDIT4";

// "HKEY_CURRENT_USER" and its like.
QString Long_Root_Name(RegistryRoot root);

// The text between the quotes of a line: backslash and quote behind a backslash, CR, LF and NUL as
// \r, \n and \0.
std::string Quoted_Bytes(const QString& text);
// What such quotes hold; nothing when the last backslash has lost its letter.
std::optional<QString> Unquoted_Text(std::string_view bytes);

// "[HKEY_...\path]" and "name=value", without a line end.
std::string Key_Line(RegistryRoot root, const QString& path);
std::string Value_Line(const QString& name, const RegistryValue& value);

struct RegLine {
    QString name; // empty: the default value
    RegistryValue value;
};
// Nothing for a line that is no value in this form.
std::optional<RegLine> Parse_Value_Line(std::string_view line);

// All keys with all values below one root, lines ending with CR LF.
std::string Write_RegText(RegistryRoot root, const RegistryTree& tree);

struct RegText {
    RegistryTree tree;
    bool isDamaged = false; // a line was lost
};
// Reads as far as it can be read.
RegText Read_RegText(RegistryRoot root, std::string_view text);

} // namespace platform
