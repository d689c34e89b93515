// The run-at-log-on value of the registry, carried out as the desktop's autostart entry.
#pragma once

#include <QString>

#include <optional>

namespace platform {

inline constexpr char16_t RunKey[] = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";
inline constexpr char16_t RunValue[] = u"Tockly";

// Deletes what killed runs have left beside the entry.
void Sweep_Autostart();
// Writes the entry for the command, or removes it when there is none.
bool Set_Autostart(const std::optional<QString>& command);

} // namespace platform
