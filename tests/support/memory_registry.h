// A registry in memory that can refuse to be written.
#pragma once

#include "platform/registry.h"
#include "platform/registry_tree.h"
#include "support/provided.h"

#include <map>
#include <set>

class MemoryRegistry : public Provided<platform::Registry> {
public:
    using Root = platform::RegistryRoot;

    // Every change under this root fails from now on; reading goes on.
    void Refuse(Root root) { refused.insert(root); }
    std::set<Root> unreadable;
    std::map<Root, platform::RegistryTree> trees;
    int changes = 0; // that succeeded

    bool Create_Key(Root root, const QString& path) override {
        return Change(root, [&](auto& tree) { return tree.Create_Key(path); });
    }
    bool Key_Exists(Root root, const QString& path) override {
        return trees[root].Key_Exists(path);
    }
    bool Delete_Key(Root root, const QString& path) override {
        return Change(root, [&](auto& tree) { return tree.Delete_Key(path); });
    }
    std::vector<QString> Sub_Keys(Root root, const QString& path) override {
        return trees[root].Sub_Keys(path);
    }
    std::optional<platform::RegistryValue> Read(Root root, const QString& path,
                                                const QString& name) override {
        return trees[root].Read(path, name);
    }
    bool Write(Root root, const QString& path, const QString& name,
               const platform::RegistryValue& value) override {
        return Change(root, [&](auto& tree) { return tree.Write(path, name, value); });
    }
    bool Delete_Value(Root root, const QString& path, const QString& name) override {
        return Change(root, [&](auto& tree) { return tree.Delete_Value(path, name); });
    }
    std::vector<QString> Value_Names(Root root, const QString& path) override {
        return trees[root].Value_Names(path);
    }
    bool Is_Readable(Root root) override { return !unreadable.contains(root); }

private:
    template <class Step>
    bool Change(Root root, Step step) {
        const bool done = !refused.contains(root) && step(trees[root]);
        changes += done ? 1 : 0;
        return done;
    }

    std::set<Root> refused;
};
