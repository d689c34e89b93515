#include "platform/linux/atomic_file.h"

#include "platform/linux/descriptor.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace platform {

namespace {

constexpr int MaxLinks = 40; // as the system itself follows

std::string Folder_Of(const std::string& path) {
    const auto slash = path.rfind('/');
    if (slash == std::string::npos) {
        return ".";
    }
    return slash == 0 ? "/" : path.substr(0, slash);
}

bool Write_All(int file, const std::string& content) {
    std::size_t done = 0;
    while (done < content.size()) {
        const ssize_t count = write(file, content.data() + done, content.size() - done);
        if (count < 0 && errno != EINTR) {
            return false;
        }
        done += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    return true;
}

void Sync_Folder(const std::string& path) {
    const Descriptor folder(open(Folder_Of(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.Is_Open()) {
        fsync(folder.Number());
    }
}

// A file beside the target with a name that no other has; path receives the name.
Descriptor Make_Beside(const std::string& target, unsigned mode, std::string& path) {
    static std::atomic<unsigned> counter = 0;
    for (int attempt = 0; attempt < 100; ++attempt) {
        // Short and without the target's name, which may be as long as names can be.
        path = Folder_Of(target) + "/.tockly-" + std::to_string(getpid()) + "-" +
               std::to_string(++counter) + ".tmp";
        Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
        if (file.Is_Open() || errno != EEXIST) {
            return file;
        }
    }
    return Descriptor(-1);
}

} // namespace

std::string Resolve_Links(std::string path) {
    for (int step = 0; step < MaxLinks; ++step) {
        std::array<char, PATH_MAX> target{};
        const ssize_t size = readlink(path.c_str(), target.data(), target.size());
        if (size < 0) {
            // What cannot be looked at may be a link: it must not be replaced by a file.
            return errno == EINVAL || errno == ENOENT || errno == ENOTDIR ? path : std::string();
        }
        std::string next(target.data(), static_cast<std::size_t>(size));
        if (!next.starts_with('/')) {
            next.insert(0, Folder_Of(path) + "/");
        }
        path = std::move(next);
    }
    return {};
}

bool Replace_File(const std::string& path, const std::string& content, unsigned mode) {
    const std::string target = Resolve_Links(path);
    struct stat old {};
    if (target.empty()) {
        return false;
    }
    const bool isThere = stat(target.c_str(), &old) == 0;
    // The mode of a file that cannot be looked at would be lost.
    if (isThere ? !S_ISREG(old.st_mode) : errno != ENOENT) {
        return false;
    }
    // A file that may not be written is refused, although the folder would let it be replaced.
    if (isThere && access(target.c_str(), W_OK) != 0) {
        return false;
    }
    std::string temporary;
    // Never open to more than the file will be.
    Descriptor file = Make_Beside(target, isThere ? old.st_mode & 0777U : mode, temporary);
    if (!file.Is_Open()) {
        return false;
    }
    bool done = Write_All(file.Number(), content);
    if (done && isThere) {
        // The owner first, which clears bits; only root can keep a foreign one.
        static_cast<void>(fchown(file.Number(), old.st_uid, old.st_gid) == 0);
        done = fchmod(file.Number(), old.st_mode & 07777U) == 0;
    }
    done = done && fsync(file.Number()) == 0;
    done = file.Close() && done;
    if (!done || rename(temporary.c_str(), target.c_str()) != 0) {
        unlink(temporary.c_str());
        return false;
    }
    Sync_Folder(target);
    return true;
}

} // namespace platform
