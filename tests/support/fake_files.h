// The system's own files, with failures that a test asks for.
#pragma once

#include "platform/files.h"
#include "platform/providers.h"
#include "support/provided.h"

#include <QStringList>

#include <algorithm>
#include <cstdint>
#include <memory>

class FakeFiles : public Provided<platform::Files> {
public:
    // Bytes that can still be stored; the write that would pass them fails. -1: no end.
    std::int64_t bytesLeft = -1;
    QStringList refusedWrites; // a path that holds one of these texts cannot be written
    QStringList refusedReads;  // ... cannot be read, although it exists
    QStringList replaced;      // every path written, copies included, in order

    bool Exists(const QString& path) override { return system->Exists(path); }
    std::optional<std::string> Read(const QString& path) override {
        return Named(refusedReads, path) ? std::nullopt : system->Read(path);
    }
    bool Replace(const QString& path, const std::string& content) override {
        const auto size = static_cast<std::int64_t>(content.size());
        if (Named(refusedWrites, path) || (bytesLeft >= 0 && size > bytesLeft) ||
            !system->Replace(path, content)) {
            return false;
        }
        bytesLeft -= bytesLeft >= 0 ? size : 0;
        replaced.append(path);
        return true;
    }
    bool Copy(const QString& from, const QString& to, bool overwrite) override {
        if (!overwrite && Exists(to)) {
            return false;
        }
        const std::optional<std::string> content = Read(from);
        return content && Replace(to, *content);
    }
    platform::FileStamp Stamp(const QString& path) override { return system->Stamp(path); }
    void Sweep(const QString& folder) override { system->Sweep(folder); }
    bool Make_Folder(const QString& path) override {
        return !Named(refusedWrites, path) && system->Make_Folder(path);
    }
    std::optional<QStringList> Empty_Files(const QString& folder) override {
        return Named(refusedReads, folder) ? std::nullopt : system->Empty_Files(folder);
    }

private:
    static bool Named(const QStringList& parts, const QString& path) {
        return std::any_of(parts.begin(), parts.end(),
                           [&](const QString& part) { return path.contains(part); });
    }

    std::unique_ptr<platform::Files> system = platform::Make_Files();
};
