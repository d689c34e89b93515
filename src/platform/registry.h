// A tree of keys under fixed roots, with typed values. Names are compared without case and keep
// the case in which they were first written.
#pragma once

#include "platform/service.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace platform {

enum class RegistryRoot : std::uint32_t {
    ClassesRoot = 0x80000000U,
    CurrentUser = 0x80000001U,
    LocalMachine = 0x80000002U,
    Users = 0x80000003U,
    PerformanceData = 0x80000004U,
    CurrentConfig = 0x80000005U,
    DynData = 0x80000006U,
};

// The numbers are those of the registry's own types.
enum class RegistryType { String = 1, Binary = 3, DWord = 4 };

struct RegistryValue {
    RegistryType type = RegistryType::String;
    QString text;             // String
    std::string bytes;        // Binary
    std::uint32_t number = 0; // DWord
    bool operator==(const RegistryValue&) const = default;
};

struct NamedRegistryValue {
    QString name; // empty: the default value
    RegistryValue value;
    bool operator==(const NamedRegistryValue&) const = default;
};

class Registry : public Service<Registry> {
public:
    // A path is "Software\Tockly": parts joined by backslashes, no root; empty is the root itself.
    // Every operation returns false (or nothing) when it could not be done; no message appears.
    virtual bool Create_Key(RegistryRoot root, const QString& path) = 0;
    virtual bool Key_Exists(RegistryRoot root, const QString& path) = 0;
    // Deletes a key with its values; one that has sub-keys goes with them.
    virtual bool Delete_Key(RegistryRoot root, const QString& path) = 0;
    virtual std::vector<QString> Sub_Keys(RegistryRoot root, const QString& path) = 0;

    // An empty name is the key's default value. Write fails when the key does not exist, and for a
    // name with a line break or a NUL.
    virtual std::optional<RegistryValue> Read(RegistryRoot root, const QString& path,
                                              const QString& name) = 0;
    virtual bool Write(RegistryRoot root, const QString& path, const QString& name,
                       const RegistryValue& value) = 0;
    virtual bool Delete_Value(RegistryRoot root, const QString& path, const QString& name) = 0;
    virtual std::vector<QString> Value_Names(RegistryRoot root, const QString& path) = 0;
    // False when the root is there and may not be read: no value of it is known then.
    virtual bool Is_Readable(RegistryRoot root) = 0;

    // Carries out changes that belong together, where the system can so that a root has all of them
    // or none. False when one could not be stored in the end.
    virtual bool Together(const std::function<void()>& changes) {
        changes();
        return true;
    }
};

} // namespace platform
