// Reads the text form in which the system's registry editor exports keys and their values, as
// editors and people write it.
#pragma once

#include "platform/registry.h"

#include <QString>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

enum class RegStatementKind { OpenKey, DeleteKey, SetValue, DeleteValue };

// One statement of a file. Values belong to the key that was opened last.
struct RegStatement {
    RegStatementKind Kind = RegStatementKind::OpenKey;
    QString Name; // of the key with its root, or of the value; empty = the default value
    platform::RegistryValue Value;
};

// What stands in a file, in its order; nothing when it is no such file. Lines that say nothing are
// passed over, and so are the values behind a line that should open a key and does not.
std::optional<std::vector<RegStatement>> Read_RegFile(std::string_view content);

// One line for a value, with its end. A text that cannot stand between quotes is written as its
// bytes, the way the registry editor reads it too.
std::string RegFile_Value(const QString& name, const platform::RegistryValue& value);
