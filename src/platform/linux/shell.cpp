#include "platform/shell.h"

#include "platform/providers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

// Two letters at least: "c:" is a drive of the other system, no scheme.
bool Is_Address(const QString& target) {
    static const QRegularExpression Scheme(u"^[A-Za-z][A-Za-z0-9+.-]+:."_s);
    return Scheme.match(target).hasMatch();
}

// The permission alone says nothing: on many mounted disks every picture has it.
bool Is_Program(const QFileInfo& info) {
    QFile file(info.filePath());
    if (!info.isFile() || !info.isExecutable() || !file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray start = file.read(4);
    return start.startsWith("#!") || start == QByteArray("\x7f"
                                                         "ELF");
}

bool Launch(const QString& program, const QStringList& arguments, const QString& folder = {}) {
    return QProcess::startDetached(program, arguments, folder);
}

// Hands a target to the desktop, which knows the application for it.
bool Hand_Over(const QString& target) {
    const QString opener = QStandardPaths::findExecutable(u"xdg-open"_s);
    if (!opener.isEmpty()) {
        return Launch(opener, {target});
    }
    const QString other = QStandardPaths::findExecutable(u"gio"_s);
    return !other.isEmpty() && Launch(other, {u"open"_s, target});
}

bool Open_Local(const QFileInfo& info) {
    const QString path = QDir::cleanPath(info.absoluteFilePath());
    return Is_Program(info) ? Launch(path, {}, info.absolutePath()) : Hand_Over(path);
}

// The file that a program's name or path means; empty when there is none.
QString Find_Program(const QString& program) {
    if (program.contains(u'/')) {
        const QFileInfo info(program);
        return info.isFile() && info.isExecutable() ? info.absoluteFilePath() : QString();
    }
    return program.isEmpty() ? QString() : QStandardPaths::findExecutable(program);
}

// No window manager takes a show state for a window that is yet to come: it is not used here.
class LinuxShell : public Shell {
public:
    bool Open(const QString& target, ShowState) override {
        if (target.isEmpty()) {
            return false;
        }
        const QFileInfo info(target);
        if (info.exists()) {
            return Open_Local(info);
        }
        if (target.startsWith("file:"_L1, Qt::CaseInsensitive)) {
            const QFileInfo named(QUrl(target).toLocalFile());
            return named.exists() && Open_Local(named);
        }
        if (target.startsWith("www."_L1, Qt::CaseInsensitive)) {
            return Hand_Over(u"http://"_s + target);
        }
        if (Is_Address(target)) {
            return Hand_Over(target);
        }
        const QString program = Find_Program(target);
        return !program.isEmpty() && Launch(program, {});
    }

    bool Start(const QString& program, const std::vector<QString>& arguments, ShowState) override {
        const QString file = Find_Program(program);
        return !file.isEmpty() && Launch(file, QStringList(arguments.begin(), arguments.end()));
    }
};

} // namespace

std::unique_ptr<Shell> Make_Shell() {
    return std::make_unique<LinuxShell>();
}

} // namespace platform
