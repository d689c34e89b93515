// Folders for sockets and locks, which are short of name and closed to other users.
#pragma once

#include <QString>
#include <QStringList>

namespace platform {

// The user's own below /tmp, whatever the environment says. Empty when it cannot be made private.
QString Own_Folder();
// Where a socket may lie, the best first.
QStringList Runtime_Folders();

} // namespace platform
