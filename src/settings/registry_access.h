// The registry, addressed by strings: a key is one text with its root in front, as in
// "HKCU\Software\Tockly". Roots are known in their short and long form, in any case. Every
// operation says whether it could be done; no message appears.
#pragma once

#include <QString>

#include <cstdint>
#include <vector>

// The names of a key's values by type. The default value has an empty name.
struct RegistryValueNames {
    std::vector<QString> Strings;
    std::vector<QString> Binaries;
    std::vector<QString> DWords;
};

class clsRegistryAccess {
public:
    // Whether the write operations create a key that is missing; else they fail there.
    bool CreateKeyIfDoesntExists = true;

    bool CreateKey(const QString& key) const;
    // A root itself is never deleted.
    bool KillKey(const QString& key) const;
    bool KeyExists(const QString& key) const;
    std::vector<QString> EnumKeys(const QString& key) const;
    bool HaveSubkey(const QString& key) const;

    // The name "@" means the key's default value. The reads give the default on any failure, and
    // when the value is of another type.
    bool WriteString(const QString& key, const QString& name, const QString& text) const;
    QString ReadString(const QString& key, const QString& name, const QString& otherwise) const;
    bool WriteDWORD(const QString& key, const QString& name, std::int32_t value) const;
    std::int32_t ReadDWORD(const QString& key, const QString& name, std::int32_t otherwise) const;
    // A text in its stored bytes: those of the code page where it can hold the text.
    bool WriteBinary(const QString& key, const QString& name, const QString& text) const;
    QString ReadBinary(const QString& key, const QString& name, const QString& otherwise) const;
    bool KillValue(const QString& key, const QString& name) const;
    bool ValueExists(const QString& key, const QString& name) const;
    RegistryValueNames EnumValues(const QString& key) const;

    // The text form of the system's registry editor. Export fails when the key does not exist or
    // the file cannot be written; import when the file cannot be read or is none of that form.
    // Lines that say nothing are passed over.
    bool ExportToReg(const QString& key, const QString& fileName, bool recursive) const;
    bool ImportFromReg(const QString& fileName) const;

    // "41 42 " and the text "AB", both ways; empty when the text is no such list.
    static QString BinToStr(const QString& hexText);
    static QString StrToBin(const QString& text);
    // Hex digits and blanks only, with at least one digit.
    static bool isBinValid(const QString& text);
};
