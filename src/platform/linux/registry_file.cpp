#include "platform/linux/registry_file.h"

#include "platform/providers.h"
#include "platform/reg_text.h"

#include <QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;

namespace platform {

RegistryFile::RegistryFile(RegistryRoot keptRoot, QString keptPath)
    : root(keptRoot), path(std::move(keptPath)) {}

const RegistryTree& RegistryFile::Tree() {
    if (isChanged) {
        return tree;
    }
    const auto files = Make_Files();
    const FileStamp now = files->Stamp(path);
    if (isLoaded && now == stamp && condition != Condition::Unreadable) {
        return tree;
    }
    if (!isLoaded) {
        files->Sweep(QFileInfo(path).path());
    }
    isLoaded = true;
    stamp = now;
    condition = Condition::Good;
    tree = {};
    if (files->Is_Absent(path)) {
        return tree;
    }
    const auto text = files->Read(path);
    if (!text) {
        condition = Condition::Unreadable;
        return tree;
    }
    RegTree content = Read_RegTree(root, *text);
    tree = std::move(content.tree);
    condition = content.isDamaged ? Condition::Damaged : Condition::Good;
    return tree;
}

bool RegistryFile::Is_Readable() {
    Tree();
    return condition != Condition::Unreadable;
}

bool RegistryFile::Keep_Damaged() const {
    QString kept = path + u".damaged"_s;
    for (int number = 2; QFileInfo::exists(kept); ++number) {
        kept = path + u".damaged-"_s + QString::number(number);
    }
    return Make_Files()->Copy(path, kept, false);
}

bool RegistryFile::Change(const std::function<bool(RegistryTree&)>& step) {
    RegistryTree changed = Tree();
    if (!step(changed)) {
        return false;
    }
    if (!isHeld) {
        return Write(changed);
    }
    tree = std::move(changed);
    isChanged = true;
    return true;
}

void RegistryFile::Hold() {
    isHeld = true;
}

bool RegistryFile::Store() {
    const bool stored = !isChanged || Write(tree);
    isHeld = false;
    isChanged = false;
    isLoaded = isLoaded && stored; // else read again
    return stored;
}

bool RegistryFile::Write(const RegistryTree& changed) {
    // What could not be read must not be replaced by what little is known.
    if (condition == Condition::Unreadable ||
        (condition == Condition::Damaged && !Keep_Damaged())) {
        return false;
    }
    const auto files = Make_Files();
    files->Make_Folder(QFileInfo(path).path());
    if (!files->Replace(path, Write_RegTree(root, changed))) {
        return false;
    }
    tree = changed;
    condition = Condition::Good;
    stamp = files->Stamp(path);
    return true;
}

} // namespace platform
