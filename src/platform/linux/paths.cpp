#include "platform/paths.h"

#include "platform/providers.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

QString Choose_Program_Folder() {
    const QString named = qEnvironmentVariable("TOCKLY_HOME");
    if (!named.isEmpty()) {
        return QDir::cleanPath(QDir(named).absolutePath());
    }
    QString beside = QCoreApplication::applicationDirPath();
    if (QFileInfo::exists(beside + u"/portable"_s)) {
        return beside;
    }
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/tockly"_s;
}

class LinuxPaths : public Paths {
public:
    QString Program_Folder() override {
        if (folder.isEmpty()) {
            folder = Choose_Program_Folder();
            QDir().mkpath(folder);
        }
        return folder;
    }

    QString Shipped_File(const QString& name) override {
        QString own = Program_Folder() + u'/' + name;
        const QString beside = QCoreApplication::applicationDirPath();
        for (const QString& place :
             {own, beside + u'/' + name, QDir::cleanPath(beside + u"/../share/tockly/"_s + name)}) {
            if (QFileInfo::exists(place)) {
                return place;
            }
        }
        return own;
    }

    QString Executable() override { return QCoreApplication::applicationFilePath(); }

private:
    QString folder; // chosen once: it must not change while the program runs
};

} // namespace

std::unique_ptr<Paths> Make_Paths() {
    return std::make_unique<LinuxPaths>();
}

} // namespace platform
