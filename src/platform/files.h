// Reading and replacing whole files.
#pragma once

#include "platform/service.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>
#include <string>

namespace platform {

// Tells whether a file is still the one that was read or written.
struct FileStamp {
    std::uint64_t inode = 0;
    std::int64_t size = -1; // -1: there is no regular file
    std::int64_t seconds = 0;
    std::int64_t nanoseconds = 0;
    bool Exists() const { return size >= 0; }
    bool operator==(const FileStamp&) const = default;
};

// May be used on any thread.
class Files : public Service<Files> {
public:
    virtual bool Exists(const QString& path) = 0;
    // Known not to be there: false also where that cannot be told. What may be there must not be
    // taken for a first start.
    virtual bool Is_Absent(const QString& path) { return !Exists(path); }
    // The whole content; nothing when it is not a readable regular file.
    virtual std::optional<std::string> Read(const QString& path) = 0;
    // Writes the whole content beside the file, syncs it, renames it over the file and syncs the
    // folder; a link is resolved first. On failure the old file stands as it was, and no other is
    // left behind. content in one piece.
    virtual bool Replace(const QString& path, const std::string& content) = 0;
    // As Replace, with the content of another file. Fails when "to" exists and overwrite is false.
    virtual bool Copy(const QString& from, const QString& to, bool overwrite) = 0;
    virtual FileStamp Stamp(const QString& path) = 0;
    virtual bool Make_Folder(const QString& path) = 0;
    // Deletes what runs that were killed in the middle of Replace have left in a folder, and where
    // the links in it lead to.
    virtual void Sweep(const QString& folder) = 0;
    // The names of the files in a folder that hold no byte; nothing when it cannot be listed.
    virtual std::optional<QStringList> Empty_Files(const QString& folder) = 0;
};

} // namespace platform
