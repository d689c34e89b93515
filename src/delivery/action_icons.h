// The pictures on the action buttons of a reminder window.
#pragma once

#include "core/reminder.h"

#include <QIcon>
#include <QSize>

inline constexpr QSize ActionIconSize(13, 11); // pixels
// Nothing for a kind that opens neither a page nor a file.
QIcon Action_Icon(FunctionType kind);
