// Reading and replacing whole files.
#pragma once

#include "platform/service.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <string>

namespace platform {

class Files : public Service<Files> {
public:
    virtual bool Exists(const QString& path) = 0;
    // The whole content; nothing when it is not a readable regular file.
    virtual std::optional<std::string> Read(const QString& path) = 0;
    // Writes the whole content beside the file, syncs it, renames it over the file and syncs the
    // folder; a link is resolved first. On failure the old file stands as it was, and no other is
    // left behind. content in one piece.
    virtual bool Replace(const QString& path, const std::string& content) = 0;
    // As Replace, with the content of another file. Fails when "to" exists and overwrite is false.
    virtual bool Copy(const QString& from, const QString& to, bool overwrite) = 0;
    virtual bool Make_Folder(const QString& path) = 0;
    // The names of the files in a folder that hold no byte; nothing when it cannot be listed.
    virtual std::optional<QStringList> Empty_Files(const QString& folder) = 0;
};

} // namespace platform
