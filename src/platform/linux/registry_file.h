// One root of the registry, kept in a text file of the registry editor's form.
#pragma once

#include "platform/files.h"
#include "platform/registry_tree.h"

#include <functional>

namespace platform {

class RegistryFile {
public:
    RegistryFile(RegistryRoot keptRoot, QString keptPath);

    // As the file stands now: read at first use, and again when somebody else has changed it.
    const RegistryTree& Tree();

    bool Is_Readable();

    // Carries out a step on a copy and stores that. False, with nothing changed, when the step
    // says so or the file cannot be written.
    bool Change(const std::function<bool(RegistryTree&)>& step);
    // From Hold to Store changes are kept in memory; Store writes them at once. False: none of them
    // is in the file, nor known any longer.
    void Hold();
    bool Store();

private:
    enum class Condition { Good, Damaged, Unreadable };

    bool Keep_Damaged() const;
    bool Write(const RegistryTree& changed);

    RegistryRoot root;
    QString path;
    RegistryTree tree;
    FileStamp stamp;
    bool isLoaded = false;
    bool isHeld = false;
    bool isChanged = false; // while it is held
    Condition condition = Condition::Good;
};

} // namespace platform
