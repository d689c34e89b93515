// Desktop entries: the text that makes the desktop start a program at log-on.
#pragma once

#include <QString>
#include <QStringList>

#include <string>

namespace platform {

// A command as the words it stands for: blanks part them, double quotes hold one together.
QStringList Command_Words(const QString& command);

// The content of an autostart entry for the command.
std::string Autostart_Entry(const QString& name, const QStringList& words);

} // namespace platform
