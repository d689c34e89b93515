// The registry's files, and those that the registry editor writes.
#include "platform/reg_text.h"

#include "fuzz.h"
#include "settings/reg_file.h"

using namespace platform;

namespace {

void Try_Own(std::string_view bytes) {
    const RegText content = Read_RegText(RegistryRoot::CurrentUser, bytes);
    const std::string written = Write_RegText(RegistryRoot::CurrentUser, content.tree);
    const RegText again = Read_RegText(RegistryRoot::CurrentUser, written);
    Must(!again.isDamaged && Write_RegText(RegistryRoot::CurrentUser, again.tree) == written);
}

void Try_Foreign(std::string_view bytes) {
    const auto statements = Read_RegFile(bytes);
    if (!statements) {
        return;
    }
    for (const RegStatement& statement : *statements) {
        const QString& name = statement.Name;
        // What no file can hold is refused before it is written.
        if (statement.Kind != RegStatementKind::SetValue || name.contains(u'\0') ||
            name.contains(u'\r') || name.contains(u'\n')) {
            continue;
        }
        const auto again = Read_RegFile("REGEDIT4\r\n[HKEY_CURRENT_USER\\K]\r\n" +
                                        RegFile_Value(name, statement.Value));
        Must(again && again->size() == 2 && again->back().Name == name &&
             again->back().Value == statement.Value);
    }
}

} // namespace

void Try(Ground& ground) {
    Try_Own(ground.Bytes());
    Try_Foreign(ground.Bytes());
}
