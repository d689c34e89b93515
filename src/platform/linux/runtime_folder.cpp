#include "platform/linux/runtime_folder.h"

#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

// In a folder that others may write to, another user could stand in for this program.
bool Is_Private(const QString& folder) {
    struct stat found {};
    return lstat(QFile::encodeName(folder).constData(), &found) == 0 && S_ISDIR(found.st_mode) &&
           found.st_uid == getuid() && (found.st_mode & 0077U) == 0;
}

} // namespace

QString Own_Folder() {
    QString own = u"/tmp/tockly-"_s + QString::number(getuid());
    mkdir(QFile::encodeName(own).constData(), 0700);
    return Is_Private(own) ? own : QString();
}

QStringList Runtime_Folders() {
    const QString given = qEnvironmentVariable("XDG_RUNTIME_DIR");
    QStringList folders;
    if (given.startsWith(u'/') && Is_Private(given)) {
        folders.append(given);
    }
    if (const QString own = Own_Folder(); !own.isEmpty()) {
        folders.append(own);
    }
    return folders;
}

} // namespace platform
