// The system's single-byte code page: the ANSI page on Windows, 1252 elsewhere, its five
// unassigned bytes standing for the C1 controls.
#pragma once

#include <QString>

#include <optional>
#include <string>
#include <string_view>

namespace platform {

// Every byte has a character.
QString From_CodePage(std::string_view bytes);
// One byte a UTF-16 unit; nothing when a character has no byte.
std::optional<std::string> To_CodePage(const QString& text);

} // namespace platform
