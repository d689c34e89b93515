#include "platform/linux/autostart.h"

#include "platform/files.h"
#include "platform/linux/desktop_entry.h"
#include "platform/providers.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

QString Folder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           u"/autostart"_s;
}

} // namespace

void Sweep_Autostart() {
    Make_Files()->Sweep(Folder());
}

bool Set_Autostart(const std::optional<QString>& command) {
    const QString entry = Folder() + u"/tockly.desktop"_s;
    if (!command) {
        return !QFileInfo::exists(entry) || QFile::remove(entry);
    }
    // The value is a bare path as a rule, and a path may hold blanks.
    const QStringList words =
        QFileInfo::exists(*command) ? QStringList(*command) : Command_Words(*command);
    const auto files = Make_Files();
    files->Make_Folder(Folder());
    return !words.isEmpty() &&
           files->Replace(entry, Autostart_Entry(QString::fromUtf16(RunValue), words));
}

} // namespace platform
