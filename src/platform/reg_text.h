// The text form of the registry editor: what the registry's files, the export and the import write
// and read. Each name or text is encoded alone, so that none is lost.
#pragma once

#include "platform/registry_tree.h"

#include <string>
#include <string_view>

namespace platform {

// "HKEY_CURRENT_USER" and its like.
QString Long_Root_Name(RegistryRoot root);

struct KeyPlace {
    RegistryRoot root = RegistryRoot::CurrentUser;
    QString path; // without the root
};
// Nothing when the key begins with no root in its short or long form, in any case.
std::optional<KeyPlace> Place_Of(const QString& key);

// A file is this, and a text for each key; lines end with CR LF.
inline constexpr std::string_view RegTextStart = "REGEDIT4\r\n\r\n";
std::string Key_Text(const KeyPlace& key, const std::vector<NamedRegistryValue>& values);

enum class RegStatementKind { OpenKey, DeleteKey, SetValue, DeleteValue, Nonsense };

struct RegStatement {
    RegStatementKind kind = RegStatementKind::Nonsense;
    KeyPlace key; // of a value: the one that was opened last
    QString name; // of a value; empty: the default value
    RegistryValue value;
    // Nothing is missing: editors and people leave out quotes, brackets and digits, and so does
    // damage.
    bool isSound = false;
};

struct RegText {
    bool hasHeader = false;
    std::vector<RegStatement> statements; // in their order; no empty lines and comments
};
RegText Read_RegText(std::string_view text);

// One root in a file of its own. It is read as far as its statements are sound.
struct RegTree {
    RegistryTree tree;
    bool isDamaged = false; // a line was lost
};
RegTree Read_RegTree(RegistryRoot root, std::string_view text);
std::string Write_RegTree(RegistryRoot root, const RegistryTree& tree);

// Bytes of one or two digits with blanks between them, or of two digits without. Nothing when there
// is any other character; no byte at all is an empty list.
std::optional<std::string> Bytes_OfHex(std::string_view digits);

} // namespace platform
