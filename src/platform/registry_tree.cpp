#include "platform/registry_tree.h"

#include <QStringList>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

// Doubled and trailing separators mean nothing.
QString Tidy(const QString& path) {
    return path.split(u'\\', Qt::SkipEmptyParts).join(u'\\');
}

bool Is_Legal(const QStringList& parts) {
    return parts.size() <= RegistryTree::MaxDepth &&
           std::all_of(parts.begin(), parts.end(), [](const QString& part) {
               return part.size() <= RegistryTree::MaxKeyName &&
                      std::all_of(part.begin(), part.end(),
                                  [](QChar letter) { return letter >= u' '; });
           });
}

RegistryValue Of_Its_Type(const RegistryValue& value) {
    RegistryValue kept;
    kept.type = value.type;
    switch (value.type) {
    case RegistryType::String:
        kept.text = value.text;
        break;
    case RegistryType::Binary:
        kept.bytes = value.bytes;
        break;
    case RegistryType::DWord:
        kept.number = value.number;
        break;
    }
    return kept;
}

} // namespace

bool Fits_OneLine(const QString& text) {
    return !text.contains(u'\r') && !text.contains(u'\n') && !text.contains(u'\0');
}

const RegistryTree::Key* RegistryTree::Find(const QString& path) const {
    const auto found = keys.find(Tidy(path).toLower());
    return found == keys.end() ? nullptr : &found->second;
}

RegistryTree::Key* RegistryTree::Find(const QString& path) {
    return const_cast<Key*>(std::as_const(*this).Find(path));
}

bool RegistryTree::Create_Key(const QString& path) {
    const QStringList parts = path.split(u'\\', Qt::SkipEmptyParts);
    if (!Is_Legal(parts)) {
        return false;
    }
    QString above;
    for (const QString& part : parts) {
        const QString wanted = above.isEmpty() ? part : above + u'\\' + part;
        above = keys.try_emplace(wanted.toLower(), Key{wanted, {}}).first->second.path;
    }
    return true;
}

bool RegistryTree::Key_Exists(const QString& path) const {
    return Find(path) != nullptr;
}

bool RegistryTree::Delete_Key(const QString& path) {
    const QString folded = Tidy(path).toLower();
    if (folded.isEmpty() || keys.erase(folded) == 0) {
        return false;
    }
    const QString prefix = folded + u'\\';
    const auto first = keys.lower_bound(prefix);
    const auto last = std::find_if_not(
        first, keys.end(), [&](const auto& entry) { return entry.first.startsWith(prefix); });
    keys.erase(first, last);
    return true;
}

std::vector<QString> RegistryTree::Sub_Keys(const QString& path) const {
    const QString folded = Tidy(path).toLower();
    const QString prefix = folded.isEmpty() ? QString() : folded + u'\\';
    std::vector<QString> names;
    for (auto key = keys.lower_bound(prefix); key != keys.end() && key->first.startsWith(prefix);
         ++key) {
        const QStringView below = QStringView(key->first).mid(prefix.size());
        if (!below.isEmpty() && !below.contains(u'\\')) {
            names.push_back(key->second.path.section(u'\\', -1));
        }
    }
    return names;
}

std::optional<RegistryValue> RegistryTree::Read(const QString& path, const QString& name) const {
    const Key* key = Find(path);
    if (key == nullptr) {
        return std::nullopt;
    }
    const auto found = key->values.find(name.toLower());
    return found == key->values.end() ? std::nullopt : std::optional(found->second.value);
}

bool RegistryTree::Write(const QString& path, const QString& name, const RegistryValue& value) {
    Key* key = Find(path);
    if (key == nullptr || name.size() > MaxValueName || !Fits_OneLine(name)) {
        return false;
    }
    key->values.try_emplace(name.toLower(), NamedRegistryValue{name, {}}).first->second.value =
        Of_Its_Type(value);
    return true;
}

bool RegistryTree::Delete_Value(const QString& path, const QString& name) {
    Key* key = Find(path);
    return key != nullptr && key->values.erase(name.toLower()) > 0;
}

std::vector<QString> RegistryTree::Value_Names(const QString& path) const {
    std::vector<QString> names;
    if (const Key* key = Find(path)) {
        for (const auto& [folded, entry] : key->values) {
            names.push_back(entry.name);
        }
    }
    return names;
}

std::vector<QString> RegistryTree::All_Keys() const {
    std::vector<QString> paths;
    for (const auto& [folded, key] : keys) {
        if (!key.path.isEmpty()) {
            paths.push_back(key.path);
        }
    }
    return paths;
}

} // namespace platform
