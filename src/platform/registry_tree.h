// The keys and values under one root, in memory: what a registry without a system's own is made of.
// The limits on names are those of the system's registry.
#pragma once

#include "platform/registry.h"

#include <map>

namespace platform {

// Whether a line of a file can hold the text.
bool Fits_OneLine(const QString& text);

class RegistryTree {
public:
    bool operator==(const RegistryTree&) const = default;

    static constexpr int MaxKeyName = 255;     // characters of one part
    static constexpr int MaxDepth = 512;       // parts
    static constexpr int MaxValueName = 16383; // characters

    // Creates the keys above it too. False for a path that no key can have.
    bool Create_Key(const QString& path);
    bool Key_Exists(const QString& path) const;
    // With all keys below; false for the root and for a key that is not there.
    bool Delete_Key(const QString& path);
    std::vector<QString> Sub_Keys(const QString& path) const;

    std::optional<RegistryValue> Read(const QString& path, const QString& name) const;
    bool Write(const QString& path, const QString& name, const RegistryValue& value);
    bool Delete_Value(const QString& path, const QString& name);
    std::vector<QString> Value_Names(const QString& path) const;

    // Every key but the root, each after the one above it.
    std::vector<QString> All_Keys() const;

private:
    struct Key {
        QString path;                                 // in the case it was first written in
        std::map<QString, NamedRegistryValue> values; // by lower-cased name
        bool operator==(const Key&) const = default;
    };

    const Key* Find(const QString& path) const;
    Key* Find(const QString& path);

    std::map<QString, Key> keys{{QString(), Key{}}}; // by lower-cased path; the root is empty
};

} // namespace platform
