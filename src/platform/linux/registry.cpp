#include "platform/registry.h"

#include "platform/linux/autostart.h"
#include "platform/linux/registry_file.h"
#include "platform/paths.h"
#include "platform/providers.h"
#include "platform/reg_text.h"

#include <QDir>
#include <QStandardPaths>

#include <map>
#include <mutex>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

// The settings of the user lie with the user's others, those of the machine with the program.
QString File_Of(RegistryRoot root) {
    QString folder = qEnvironmentVariable("TOCKLY_REGISTRY");
    if (folder.isEmpty()) {
        folder = root == RegistryRoot::LocalMachine
                     ? Paths::Get().Program_Folder()
                     : QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                           u"/tockly"_s;
    }
    return QDir(folder).absoluteFilePath(Long_Root_Name(root) + u".reg"_s);
}

std::optional<QString> Run_Command(const RegistryTree& tree) {
    const auto value = tree.Read(QString::fromUtf16(RunKey), QString::fromUtf16(RunValue));
    return value && value->type == RegistryType::String ? std::optional(value->text) : std::nullopt;
}

bool Set_Run_Command(RegistryTree& tree, const std::optional<QString>& command) {
    const QString key = QString::fromUtf16(RunKey);
    const QString name = QString::fromUtf16(RunValue);
    if (!command) {
        return tree.Delete_Value(key, name);
    }
    return tree.Create_Key(key) && tree.Write(key, name, {RegistryType::String, *command, {}, 0});
}

class LinuxRegistry : public Registry {
public:
    bool Create_Key(RegistryRoot root, const QString& path) override {
        const std::scoped_lock lock(access);
        return Key_Exists(root, path) ||
               Change(root, [&](RegistryTree& tree) { return tree.Create_Key(path); });
    }

    bool Key_Exists(RegistryRoot root, const QString& path) override {
        const std::scoped_lock lock(access);
        return Tree(root).Key_Exists(path);
    }

    bool Delete_Key(RegistryRoot root, const QString& path) override {
        const std::scoped_lock lock(access);
        return Change(root, [&](RegistryTree& tree) { return tree.Delete_Key(path); });
    }

    std::vector<QString> Sub_Keys(RegistryRoot root, const QString& path) override {
        const std::scoped_lock lock(access);
        return Tree(root).Sub_Keys(path);
    }

    std::optional<RegistryValue> Read(RegistryRoot root, const QString& path,
                                      const QString& name) override {
        const std::scoped_lock lock(access);
        return Tree(root).Read(path, name);
    }

    bool Write(RegistryRoot root, const QString& path, const QString& name,
               const RegistryValue& value) override {
        const std::scoped_lock lock(access);
        // Most settings are written back as they were: that costs no file.
        return Read(root, path, name) == value ||
               Change(root, [&](RegistryTree& tree) { return tree.Write(path, name, value); });
    }

    bool Delete_Value(RegistryRoot root, const QString& path, const QString& name) override {
        const std::scoped_lock lock(access);
        return Change(root, [&](RegistryTree& tree) { return tree.Delete_Value(path, name); });
    }

    std::vector<QString> Value_Names(RegistryRoot root, const QString& path) override {
        const std::scoped_lock lock(access);
        return Tree(root).Value_Names(path);
    }

    bool Is_Readable(RegistryRoot root) override {
        RegistryFile* file = Kept(root);
        return file == nullptr || file->Is_Readable();
    }

    bool Together(const std::function<void()>& changes) override {
        const std::scoped_lock lock(access);
        for (const RegistryRoot root : {RegistryRoot::CurrentUser, RegistryRoot::LocalMachine}) {
            Kept(root)->Hold();
        }
        changes();
        bool stored = true;
        for (auto& [root, file] : files) {
            stored = file.Store() && stored;
        }
        return stored;
    }

private:
    // The file of a root; nothing for the roots that only the other system has.
    RegistryFile* Kept(RegistryRoot root) {
        if (root != RegistryRoot::CurrentUser && root != RegistryRoot::LocalMachine) {
            return nullptr;
        }
        const auto found = files.find(root);
        if (found != files.end()) {
            return &found->second;
        }
        if (root == RegistryRoot::LocalMachine) {
            Sweep_Autostart();
        }
        return &files.try_emplace(root, root, File_Of(root)).first->second;
    }

    const RegistryTree& Tree(RegistryRoot root) {
        static const RegistryTree None;
        RegistryFile* file = Kept(root);
        return file == nullptr ? None : file->Tree();
    }

    bool Change(RegistryRoot root, const std::function<bool(RegistryTree&)>& step) {
        RegistryFile* file = Kept(root);
        if (file == nullptr) {
            return false;
        }
        if (root != RegistryRoot::LocalMachine) {
            return file->Change(step);
        }
        const std::optional<QString> before = Run_Command(file->Tree());
        if (!file->Change(step)) {
            return false;
        }
        const std::optional<QString> after = Run_Command(file->Tree());
        if (after == before || Set_Autostart(after)) {
            return true;
        }
        // The value must not say what the desktop does not do.
        file->Change([&](RegistryTree& tree) { return Set_Run_Command(tree, before); });
        return false;
    }

    std::map<RegistryRoot, RegistryFile> files;
    std::recursive_mutex access; // settings are saved beside the interface
};

} // namespace

std::unique_ptr<Registry> Make_Registry() {
    return std::make_unique<LinuxRegistry>();
}

} // namespace platform
