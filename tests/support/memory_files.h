// Files in memory, some of which can be refused.
#pragma once

#include "platform/files.h"
#include "support/provided.h"

#include <QSet>

#include <map>
#include <string>

class MemoryFiles : public Provided<platform::Files> {
public:
    std::map<QString, std::string> content;
    QSet<QString> refused; // may be neither read nor written, although they exist

    bool Exists(const QString& path) override {
        return content.contains(path) || refused.contains(path);
    }
    std::optional<std::string> Read(const QString& path) override {
        if (refused.contains(path) || !content.contains(path))
            return std::nullopt;
        return content[path];
    }
    bool Replace(const QString& path, const std::string& bytes) override {
        if (refused.contains(path))
            return false;
        content[path] = bytes;
        return true;
    }
    bool Copy(const QString& from, const QString& to, bool overwrite) override {
        const auto bytes = Read(from);
        return bytes && (overwrite || !Exists(to)) && Replace(to, *bytes);
    }
    platform::FileStamp Stamp(const QString& path) override {
        const auto bytes = Read(path);
        return bytes ? platform::FileStamp{std::hash<std::string>()(*bytes),
                                           static_cast<std::int64_t>(bytes->size()), 0, 0}
                     : platform::FileStamp();
    }
    void Sweep(const QString&) override {}
    bool Make_Folder(const QString&) override { return true; }
    std::optional<QStringList> Empty_Files(const QString&) override { return {}; }
};
