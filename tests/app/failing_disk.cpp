// A library that stands before the system's, linked or preloaded: passes the process's calls on to
// the system, and counts those that concern files below one folder. At the one that it is told it
// ends the process or fails.
#include "failing_disk.h"

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

enum class Fate { Passes, Fails };

std::array<std::atomic<bool>, 4096> isOurs; // by file descriptor

bool Is_Ours(int file) {
    return file >= 0 && static_cast<std::size_t>(file) < isOurs.size() &&
           isOurs[static_cast<std::size_t>(file)];
}

bool Is_Ours(const char* path) {
    const char* folder = Disk_Orders()->folder.data();
    return *folder != 0 && path != nullptr && std::strncmp(path, folder, std::strlen(folder)) == 0;
}

// half: what is left of an operation that is ended in its middle.
template <class Half>
Fate Decide(bool ours, const char* name, Half half) {
    DiskOrders& orders = *Disk_Orders();
    const int number = ours ? ++orders.operations : 0;
    const bool isHit = number == orders.at;
    if (number == 0 || orders.at == 0 || number < orders.at || (!isHit && !orders.forGood)) {
        return Fate::Passes;
    }
    if (isHit) {
        std::snprintf(orders.hit.data(), orders.hit.size(), "%s", name);
    }
    if (orders.error == 0) {
        half();
        kill(getpid(), SIGKILL);
    }
    errno = orders.error;
    return Fate::Fails;
}

template <class... Arguments>
long Call(bool ours, const char* name, long number, Arguments... arguments) {
    return Decide(ours, name, [] {}) == Fate::Passes ? syscall(number, arguments...) : -1;
}

int Open(int folder, const char* path, int flags, mode_t mode) {
    const bool ours = Is_Ours(path);
    const bool writes = (flags & O_ACCMODE) != O_RDONLY;
    const long file =
        Call(ours, writes ? "open to write" : "open", SYS_openat, folder, path, flags, mode);
    if (file >= 0 && static_cast<std::size_t>(file) < isOurs.size()) {
        isOurs[static_cast<std::size_t>(file)] = ours;
    }
    return static_cast<int>(file);
}

mode_t Mode(int flags, va_list rest) {
    return (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
}

// Both forms of the result are one here.
int Stat_Open(int file, void* found) {
    return static_cast<int>(Call(Is_Ours(file), "fstat", SYS_fstat, file, found));
}
int Stat(const char* path, void* found, int flags) {
    return static_cast<int>(
        Call(Is_Ours(path), "stat", SYS_newfstatat, AT_FDCWD, path, found, flags));
}

} // namespace

extern "C" {

DiskOrders* Disk_Orders() {
    static auto* const orders = new (mmap(nullptr, sizeof(DiskOrders), PROT_READ | PROT_WRITE,
                                          MAP_SHARED | MAP_ANONYMOUS, -1, 0)) DiskOrders;
    return orders;
}

int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = Mode(flags, rest);
    va_end(rest);
    return Open(AT_FDCWD, path, flags, mode);
}
int open64(const char* path, int flags, ...) __attribute__((alias("open")));

int openat(int folder, const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = Mode(flags, rest);
    va_end(rest);
    return Open(folder, path, flags, mode);
}
int openat64(int folder, const char* path, int flags, ...) __attribute__((alias("openat")));

int close(int file) {
    const bool ours = Is_Ours(file);
    if (ours) {
        isOurs[static_cast<std::size_t>(file)] = false;
    }
    const Fate fate = Decide(ours, "close", [] {});
    const int error = errno;
    const auto result = static_cast<int>(syscall(SYS_close, file)); // it is closed in any case
    if (fate == Fate::Passes) {
        return result;
    }
    errno = error;
    return -1;
}

ssize_t read(int file, void* bytes, size_t size) {
    return Call(Is_Ours(file), "read", SYS_read, file, bytes, size);
}
ssize_t write(int file, const void* bytes, size_t size) {
    const auto half = [&] { return syscall(SYS_write, file, bytes, size / 2); };
    if (Decide(Is_Ours(file), "write", half) == Fate::Passes) {
        return syscall(SYS_write, file, bytes, size);
    }
    // A disk that runs full takes what it can first.
    return errno == ENOSPC && size > 1 ? half() : -1;
}
int fsync(int file) {
    // What is synced outlives a power cut, which nobody tests here: the disk is spared.
    return Decide(Is_Ours(file), "fsync", [] {}) == Fate::Passes ? 0 : -1;
}
int fdatasync(int file) __attribute__((alias("fsync")));
int ftruncate(int file, off_t size) {
    return static_cast<int>(Call(Is_Ours(file), "ftruncate", SYS_ftruncate, file, size));
}
int ftruncate64(int file, off_t size) __attribute__((alias("ftruncate")));
int fchmod(int file, mode_t mode) {
    return static_cast<int>(Call(Is_Ours(file), "fchmod", SYS_fchmod, file, mode));
}
int fchown(int file, uid_t user, gid_t group) {
    return static_cast<int>(Call(Is_Ours(file), "fchown", SYS_fchown, file, user, group));
}
int fstat(int file, struct stat* found) {
    return Stat_Open(file, found);
}
int fstat64(int file, struct stat64* found) {
    return Stat_Open(file, found);
}
int stat(const char* path, struct stat* found) {
    return Stat(path, found, 0);
}
int stat64(const char* path, struct stat64* found) {
    return Stat(path, found, 0);
}
int lstat(const char* path, struct stat* found) {
    return Stat(path, found, AT_SYMLINK_NOFOLLOW);
}
int lstat64(const char* path, struct stat64* found) {
    return Stat(path, found, AT_SYMLINK_NOFOLLOW);
}
int statx(int folder, const char* path, int flags, unsigned mask, struct statx* found) {
    return static_cast<int>(
        Call(Is_Ours(path), "statx", SYS_statx, folder, path, flags, mask, found));
}
int access(const char* path, int mode) {
    return static_cast<int>(Call(Is_Ours(path), "access", SYS_faccessat, AT_FDCWD, path, mode));
}
ssize_t readlink(const char* path, char* target, size_t size) {
    return Call(Is_Ours(path), "readlink", SYS_readlinkat, AT_FDCWD, path, target, size);
}
int rename(const char* from, const char* to) {
    return static_cast<int>(
        Call(Is_Ours(from) || Is_Ours(to), "rename", SYS_renameat, AT_FDCWD, from, AT_FDCWD, to));
}
int link(const char* from, const char* to) {
    return static_cast<int>(
        Call(Is_Ours(from) || Is_Ours(to), "link", SYS_linkat, AT_FDCWD, from, AT_FDCWD, to, 0));
}
int unlink(const char* path) {
    return static_cast<int>(Call(Is_Ours(path), "unlink", SYS_unlinkat, AT_FDCWD, path, 0));
}
int mkdir(const char* path, mode_t mode) {
    return static_cast<int>(Call(Is_Ours(path), "mkdir", SYS_mkdirat, AT_FDCWD, path, mode));
}
}
