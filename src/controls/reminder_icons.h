// The pictures that reminders and categories wear, by their names.
#pragma once

#include <QIcon>
#include <QString>

#include <array>

inline constexpr int ReminderIconCount = 18;
inline constexpr int ReminderIconSize = 48; // pixels

enum class IconTint { Color, Grey };

// In the order of the palette, as they are shown: "Flower pot", "Pills", ...
const std::array<QString, ReminderIconCount>& ReminderIcon_Names();
// Without regard to case and to blanks around the name; a null icon for an unknown name.
QIcon Reminder_Icon(const QString& name, IconTint tint);
