// The registry's files, and those that the registry editor writes.
#include "platform/reg_text.h"

#include "fuzz.h"

using namespace platform;

namespace {

void Try_File(RegistryRoot root, std::string_view bytes) {
    const RegistryTree tree = Read_RegTree(root, bytes).tree;
    const RegTree again = Read_RegTree(root, Write_RegTree(root, tree));
    Must(!again.isDamaged && again.tree == tree);
}

void Try_Import(std::string_view bytes) {
    for (const RegStatement& statement : Read_RegText(bytes).statements) {
        // No registry holds other names.
        if (statement.kind != RegStatementKind::SetValue || !Fits_OneLine(statement.name)) {
            continue;
        }
        const KeyPlace key{RegistryRoot::CurrentUser, QStringLiteral("K")};
        const RegText again = Read_RegText(std::string(RegTextStart) +
                                           Key_Text(key, {{statement.name, statement.value}}));
        Must(again.hasHeader && again.statements.size() == 2 && again.statements[1].isSound &&
             again.statements[1].name == statement.name &&
             again.statements[1].value == statement.value);
    }
}

} // namespace

void Try(Ground& ground) {
    Try_File(RegistryRoot::CurrentUser, ground.Bytes());
    Try_Import(ground.Bytes());
}
