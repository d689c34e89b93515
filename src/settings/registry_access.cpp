#include "settings/registry_access.h"

#include "platform/files.h"
#include "platform/record_text.h"
#include "platform/reg_text.h"
#include "platform/registry.h"

#include <QByteArray>

#include <optional>
#include <string>

using namespace Qt::StringLiterals;
using platform::KeyPlace;
using platform::Place_Of;
using platform::Registry;
using platform::RegistryType;
using platform::RegistryValue;
using platform::RegStatementKind;

namespace {

QString Value_Name(const QString& name) {
    return name == u"@"_s ? QString() : name;
}

std::optional<RegistryValue> Read_Value(const QString& key, const QString& name) {
    const std::optional<KeyPlace> place = Place_Of(key);
    return place ? Registry::Get().Read(place->root, place->path, name) : std::nullopt;
}

// Nothing when the value is missing or of another type.
std::optional<RegistryValue> Read_Typed(const QString& key, const QString& name,
                                        RegistryType type) {
    std::optional<RegistryValue> value = Read_Value(key, Value_Name(name));
    return value && value->type == type ? value : std::nullopt;
}

bool Write_Value(const std::optional<KeyPlace>& place, const QString& name,
                 const RegistryValue& value, bool createKey) {
    if (!place)
        return false;
    Registry& registry = Registry::Get();
    if (!registry.Key_Exists(place->root, place->path) &&
        !(createKey && registry.Create_Key(place->root, place->path)))
        return false;
    return registry.Write(place->root, place->path, name, value);
}

// A root itself is never deleted.
bool Delete_Key(const std::optional<KeyPlace>& place) {
    return place && !place->path.isEmpty() && Registry::Get().Delete_Key(place->root, place->path);
}

bool Delete_Value(const std::optional<KeyPlace>& place, const QString& name) {
    return place && Registry::Get().Delete_Value(place->root, place->path, name);
}

void Append_Key(std::string& file, const KeyPlace& place, bool recursive) {
    Registry& registry = Registry::Get();
    std::vector<platform::NamedRegistryValue> values;
    for (const QString& name : registry.Value_Names(place.root, place.path)) {
        if (const auto value = registry.Read(place.root, place.path, name)) {
            values.push_back({name, *value});
        }
    }
    file += platform::Key_Text(place, values);
    if (!recursive) {
        return;
    }
    for (const QString& name : registry.Sub_Keys(place.root, place.path)) {
        const QString above = place.path.isEmpty() ? QString() : place.path + u'\\';
        Append_Key(file, {place.root, above + name}, recursive);
    }
}

} // namespace

bool clsRegistryAccess::CreateKey(const QString& key) const {
    const std::optional<KeyPlace> place = Place_Of(key);
    return place && Registry::Get().Create_Key(place->root, place->path);
}

bool clsRegistryAccess::KillKey(const QString& key) const {
    return Delete_Key(Place_Of(key));
}

bool clsRegistryAccess::KeyExists(const QString& key) const {
    const std::optional<KeyPlace> place = Place_Of(key);
    return place && Registry::Get().Key_Exists(place->root, place->path);
}

std::vector<QString> clsRegistryAccess::EnumKeys(const QString& key) const {
    const std::optional<KeyPlace> place = Place_Of(key);
    return place ? Registry::Get().Sub_Keys(place->root, place->path) : std::vector<QString>();
}

bool clsRegistryAccess::HaveSubkey(const QString& key) const {
    return !EnumKeys(key).empty();
}

bool clsRegistryAccess::WriteString(const QString& key, const QString& name,
                                    const QString& text) const {
    return Write_Value(Place_Of(key), Value_Name(name), {RegistryType::String, text, {}, 0},
                       CreateKeyIfDoesntExists);
}

QString clsRegistryAccess::ReadString(const QString& key, const QString& name,
                                      const QString& otherwise) const {
    const auto value = Read_Typed(key, name, RegistryType::String);
    return value ? value->text : otherwise;
}

bool clsRegistryAccess::WriteDWORD(const QString& key, const QString& name,
                                   std::int32_t value) const {
    return Write_Value(Place_Of(key), Value_Name(name),
                       {RegistryType::DWord, {}, {}, static_cast<std::uint32_t>(value)},
                       CreateKeyIfDoesntExists);
}

std::int32_t clsRegistryAccess::ReadDWORD(const QString& key, const QString& name,
                                          std::int32_t otherwise) const {
    const auto value = Read_Typed(key, name, RegistryType::DWord);
    return value ? static_cast<std::int32_t>(value->number) : otherwise;
}

bool clsRegistryAccess::WriteBinary(const QString& key, const QString& name,
                                    const QString& text) const {
    return Write_Value(Place_Of(key), Value_Name(name),
                       {RegistryType::Binary, {}, Encode_Text(text), 0}, CreateKeyIfDoesntExists);
}

QString clsRegistryAccess::ReadBinary(const QString& key, const QString& name,
                                      const QString& otherwise) const {
    const auto value = Read_Typed(key, name, RegistryType::Binary);
    return value ? Decode_Text(value->bytes) : otherwise;
}

bool clsRegistryAccess::KillValue(const QString& key, const QString& name) const {
    return Delete_Value(Place_Of(key), Value_Name(name));
}

bool clsRegistryAccess::ValueExists(const QString& key, const QString& name) const {
    return Read_Value(key, Value_Name(name)).has_value();
}

RegistryValueNames clsRegistryAccess::EnumValues(const QString& key) const {
    RegistryValueNames names;
    const std::optional<KeyPlace> place = Place_Of(key);
    if (!place)
        return names;
    for (const QString& name : Registry::Get().Value_Names(place->root, place->path)) {
        const auto value = Read_Value(key, name);
        if (!value)
            continue;
        std::vector<QString>& list = value->type == RegistryType::String   ? names.Strings
                                     : value->type == RegistryType::Binary ? names.Binaries
                                                                           : names.DWords;
        list.push_back(name);
    }
    return names;
}

bool clsRegistryAccess::ExportToReg(const QString& key, const QString& fileName,
                                    bool recursive) const {
    const std::optional<KeyPlace> place = Place_Of(key);
    if (!place || !KeyExists(key))
        return false;
    std::string file(platform::RegTextStart);
    Append_Key(file, *place, recursive);
    return platform::Files::Get().Replace(fileName, file);
}

bool clsRegistryAccess::ImportFromReg(const QString& fileName) const {
    const std::optional<std::string> content = platform::Files::Get().Read(fileName);
    const platform::RegText text = platform::Read_RegText(content.value_or(std::string()));
    if (!text.hasHeader)
        return false;
    for (const platform::RegStatement& statement : text.statements) {
        switch (statement.kind) {
        case RegStatementKind::DeleteKey:
            Delete_Key(statement.key);
            break;
        case RegStatementKind::SetValue:
            Write_Value(statement.key, statement.name, statement.value, CreateKeyIfDoesntExists);
            break;
        case RegStatementKind::DeleteValue:
            Delete_Value(statement.key, statement.name);
            break;
        case RegStatementKind::OpenKey: // with its first value
        case RegStatementKind::Nonsense:
            break;
        }
    }
    return true;
}

QString clsRegistryAccess::BinToStr(const QString& hexText) {
    return Decode_Text(platform::Bytes_OfHex(Encode_Text(hexText)).value_or(std::string()));
}

QString clsRegistryAccess::StrToBin(const QString& text) {
    QString digits;
    for (const char byte : Encode_Text(text)) {
        digits += QString::fromLatin1(QByteArray(1, byte).toHex().toUpper()) + u' ';
    }
    return digits;
}

bool clsRegistryAccess::isBinValid(const QString& text) {
    const auto bytes = platform::Bytes_OfHex(Encode_Text(text));
    return bytes && !bytes->empty();
}
