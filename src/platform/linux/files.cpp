#include "platform/files.h"

#include "platform/linux/atomic_file.h"
#include "platform/linux/descriptor.h"
#include "platform/providers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

std::string Native(const QString& path) {
    return QFile::encodeName(path).toStdString();
}

std::optional<std::string> Read_All(int file) {
    std::string content;
    std::array<char, 65536> block{};
    for (;;) {
        const ssize_t count = read(file, block.data(), block.size());
        if (count == 0) {
            return content;
        }
        if (count < 0 && errno != EINTR) {
            return std::nullopt;
        }
        content.append(block.data(), count > 0 ? static_cast<std::size_t>(count) : 0);
    }
}

bool Is_Running(pid_t process) {
    return process != getpid() && (kill(process, 0) == 0 || errno != ESRCH);
}

void Sweep_One(const QString& folder) {
    static const QRegularExpression temporary(u"^\\.tockly-([0-9]+)-[0-9]+\\.tmp$"_s);
    for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files | QDir::Hidden)) {
        const auto name = temporary.match(file.fileName());
        // A shared folder may be another run's, which is writing just now.
        if (name.hasMatch() && !Is_Running(name.captured(1).toInt())) {
            QFile::remove(file.filePath());
        }
    }
}

class LinuxFiles : public Files {
public:
    bool Exists(const QString& path) override { return QFileInfo::exists(path); }

    bool Is_Absent(const QString& path) override {
        struct stat found {};
        return stat(Native(path).c_str(), &found) != 0 && (errno == ENOENT || errno == ENOTDIR);
    }

    std::optional<std::string> Read(const QString& path) override {
        // Without O_NONBLOCK a pipe of that name would hold the program for ever.
        const Descriptor file(open(Native(path).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
        struct stat kind {};
        if (!file.Is_Open() || fstat(file.Number(), &kind) != 0 || !S_ISREG(kind.st_mode)) {
            return std::nullopt;
        }
        return Read_All(file.Number());
    }

    bool Replace(const QString& path, const std::string& content) override {
        return !path.isEmpty() && Replace_File(Native(path), content);
    }

    bool Copy(const QString& from, const QString& to, bool overwrite) override {
        struct stat source {};
        const std::optional<std::string> content = Read(from);
        // A copy is no more open than what it was made of.
        return content && (overwrite || !Exists(to)) && !to.isEmpty() &&
               stat(Native(from).c_str(), &source) == 0 &&
               Replace_File(Native(to), *content, source.st_mode & 0777U);
    }

    FileStamp Stamp(const QString& path) override {
        struct stat found {};
        if (stat(Native(path).c_str(), &found) != 0 || !S_ISREG(found.st_mode)) {
            return {};
        }
        return {found.st_ino, found.st_size, found.st_mtim.tv_sec, found.st_mtim.tv_nsec};
    }

    void Sweep(const QString& folder) override {
        QSet<QString> folders{folder};
        for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files | QDir::Hidden)) {
            if (file.isSymLink()) {
                folders.insert(QFileInfo(file.canonicalFilePath()).path());
            }
        }
        for (const QString& each : folders) {
            Sweep_One(each);
        }
    }

    bool Make_Folder(const QString& path) override {
        return !path.isEmpty() && QDir().mkpath(path);
    }

    std::optional<QStringList> Empty_Files(const QString& folder) override {
        const QFileInfo info(folder);
        if (!info.isDir() || !info.isReadable() || !info.isExecutable()) {
            return std::nullopt;
        }
        QStringList names;
        for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files | QDir::Hidden))
            if (file.size() == 0)
                names.append(file.fileName());
        return names;
    }
};

} // namespace

std::unique_ptr<Files> Make_Files() {
    return std::make_unique<LinuxFiles>();
}

} // namespace platform
