#include "settings/registry_access.h"

#include "platform/files.h"
#include "platform/record_text.h"
#include "platform/reg_text.h"
#include "platform/registry.h"
#include "settings/hex_text.h"
#include "settings/reg_file.h"

#include <QStringList>

#include <array>
#include <optional>
#include <string>

using namespace Qt::StringLiterals;
using platform::Registry;
using platform::RegistryRoot;
using platform::RegistryType;
using platform::RegistryValue;

namespace {

struct RootForm {
    const char* Short;
    RegistryRoot Root;
};

constexpr std::array Roots{
    RootForm{"HKCU", RegistryRoot::CurrentUser},     RootForm{"HKLM", RegistryRoot::LocalMachine},
    RootForm{"HKCR", RegistryRoot::ClassesRoot},     RootForm{"HKUS", RegistryRoot::Users},
    RootForm{"HKPD", RegistryRoot::PerformanceData}, RootForm{"HKDD", RegistryRoot::DynData},
    RootForm{"HKCC", RegistryRoot::CurrentConfig},
};

struct KeyPlace {
    RegistryRoot Root = RegistryRoot::CurrentUser;
    QString Path; // without the root
};

// Nothing when the key begins with none of the roots. Of a short form the first four characters
// decide.
std::optional<KeyPlace> Place_Of(const QString& key) {
    const QString head = key.section(u'\\', 0, 0);
    const QStringList parts = key.section(u'\\', 1).split(u'\\', Qt::SkipEmptyParts);
    for (const RootForm& form : Roots) {
        if (head.left(4).compare(QLatin1String(form.Short), Qt::CaseInsensitive) == 0 ||
            head.compare(platform::Long_Root_Name(form.Root), Qt::CaseInsensitive) == 0)
            return KeyPlace{form.Root, parts.join(u'\\')};
    }
    return std::nullopt;
}

QString Value_Name(const QString& name) {
    return name == u"@"_s ? QString() : name;
}

std::optional<RegistryValue> Read_Value(const QString& key, const QString& name) {
    const std::optional<KeyPlace> place = Place_Of(key);
    return place ? Registry::Get().Read(place->Root, place->Path, name) : std::nullopt;
}

// Nothing when the value is missing or of another type.
std::optional<RegistryValue> Read_Typed(const QString& key, const QString& name,
                                        RegistryType type) {
    std::optional<RegistryValue> value = Read_Value(key, Value_Name(name));
    return value && value->type == type ? value : std::nullopt;
}

bool Write_Value(const QString& key, const QString& name, const RegistryValue& value,
                 bool createKey) {
    const std::optional<KeyPlace> place = Place_Of(key);
    if (!place)
        return false;
    Registry& registry = Registry::Get();
    if (!registry.Key_Exists(place->Root, place->Path) &&
        !(createKey && registry.Create_Key(place->Root, place->Path)))
        return false;
    return registry.Write(place->Root, place->Path, name, value);
}

bool Delete_Value(const QString& key, const QString& name) {
    const std::optional<KeyPlace> place = Place_Of(key);
    return place && Registry::Get().Delete_Value(place->Root, place->Path, name);
}

// A name that is no piece of a line cannot stand in the file.
bool Is_Writable(const QString& name) {
    return !name.contains(u'\n') && !name.contains(u'\r') && !name.contains(u'\0');
}

bool Append_Values(std::string& file, const KeyPlace& place) {
    Registry& registry = Registry::Get();
    const std::vector<QString> names = registry.Value_Names(place.Root, place.Path);
    std::string binaries;
    std::string numbers;
    std::string standard;
    std::string texts;
    for (const QString& name : names) {
        const auto value = registry.Read(place.Root, place.Path, name);
        if (!value)
            continue;
        if (!Is_Writable(name))
            return false;
        std::string& lines = name.isEmpty()                        ? standard
                             : value->type == RegistryType::String ? texts
                             : value->type == RegistryType::Binary ? binaries
                                                                   : numbers;
        lines += RegFile_Value(name, *value);
    }
    file += standard + texts + binaries + numbers;
    return true;
}

bool Append_Key(std::string& file, const KeyPlace& place, bool recursive) {
    if (!Is_Writable(place.Path))
        return false;
    file += platform::Key_Line(place.Root, place.Path) + "\r\n";
    if (!Append_Values(file, place))
        return false;
    file += "\r\n";
    if (!recursive)
        return true;
    for (const QString& name : Registry::Get().Sub_Keys(place.Root, place.Path)) {
        const QString path = place.Path.isEmpty() ? name : place.Path + u'\\' + name;
        if (!Append_Key(file, {place.Root, path}, recursive))
            return false;
    }
    return true;
}

} // namespace

bool clsRegistryAccess::CreateKey(const QString& key) const {
    const std::optional<KeyPlace> place = Place_Of(key);
    return place && Registry::Get().Create_Key(place->Root, place->Path);
}

bool clsRegistryAccess::KillKey(const QString& key) const {
    const std::optional<KeyPlace> place = Place_Of(key);
    return place && !place->Path.isEmpty() && Registry::Get().Delete_Key(place->Root, place->Path);
}

bool clsRegistryAccess::KeyExists(const QString& key) const {
    const std::optional<KeyPlace> place = Place_Of(key);
    return place && Registry::Get().Key_Exists(place->Root, place->Path);
}

std::vector<QString> clsRegistryAccess::EnumKeys(const QString& key) const {
    const std::optional<KeyPlace> place = Place_Of(key);
    return place ? Registry::Get().Sub_Keys(place->Root, place->Path) : std::vector<QString>();
}

bool clsRegistryAccess::HaveSubkey(const QString& key) const {
    return !EnumKeys(key).empty();
}

bool clsRegistryAccess::WriteString(const QString& key, const QString& name,
                                    const QString& text) const {
    return Write_Value(key, Value_Name(name), {RegistryType::String, text, {}, 0},
                       CreateKeyIfDoesntExists);
}

QString clsRegistryAccess::ReadString(const QString& key, const QString& name,
                                      const QString& otherwise) const {
    const auto value = Read_Typed(key, name, RegistryType::String);
    return value ? value->text : otherwise;
}

bool clsRegistryAccess::WriteDWORD(const QString& key, const QString& name,
                                   std::int32_t value) const {
    return Write_Value(key, Value_Name(name),
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
    return Write_Value(key, Value_Name(name), {RegistryType::Binary, {}, Encode_Text(text), 0},
                       CreateKeyIfDoesntExists);
}

QString clsRegistryAccess::ReadBinary(const QString& key, const QString& name,
                                      const QString& otherwise) const {
    const auto value = Read_Typed(key, name, RegistryType::Binary);
    return value ? Decode_Text(value->bytes) : otherwise;
}

bool clsRegistryAccess::KillValue(const QString& key, const QString& name) const {
    return Delete_Value(key, Value_Name(name));
}

bool clsRegistryAccess::ValueExists(const QString& key, const QString& name) const {
    return Read_Value(key, Value_Name(name)).has_value();
}

RegistryValueNames clsRegistryAccess::EnumValues(const QString& key) const {
    RegistryValueNames names;
    const std::optional<KeyPlace> place = Place_Of(key);
    if (!place)
        return names;
    for (const QString& name : Registry::Get().Value_Names(place->Root, place->Path)) {
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
    std::string file = std::string(platform::RegTextHeader) + "\r\n\r\n";
    return Append_Key(file, *place, recursive) && platform::Files::Get().Replace(fileName, file);
}

bool clsRegistryAccess::ImportFromReg(const QString& fileName) const {
    const std::optional<std::string> content = platform::Files::Get().Read(fileName);
    const auto statements = content ? Read_RegFile(*content) : std::nullopt;
    if (!statements)
        return false;
    QString key;
    for (const RegStatement& statement : *statements) {
        switch (statement.Kind) {
        case RegStatementKind::OpenKey:
            key = statement.Name;
            break;
        case RegStatementKind::DeleteKey:
            KillKey(statement.Name);
            break;
        case RegStatementKind::SetValue:
            Write_Value(key, statement.Name, statement.Value, CreateKeyIfDoesntExists);
            break;
        case RegStatementKind::DeleteValue:
            Delete_Value(key, statement.Name);
            break;
        }
    }
    return true;
}

QString clsRegistryAccess::BinToStr(const QString& hexText) {
    return Decode_Text(Bytes_OfHex(Encode_Text(hexText)).value_or(std::string()));
}

QString clsRegistryAccess::StrToBin(const QString& text) {
    return QString::fromStdString(Hex_OfBytes(Encode_Text(text)));
}

bool clsRegistryAccess::isBinValid(const QString& text) {
    const auto bytes = Bytes_OfHex(Encode_Text(text));
    return bytes && !bytes->empty();
}
