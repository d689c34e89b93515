#include "accessories/setup/run_key.h"

#include "platform/paths.h"
#include "settings/registry_access.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr char16_t RunKey[] = u"HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr char16_t RunValue[] = u"Tockly";

} // namespace

QString Program_Ending(const QString& executable) {
    const QString exe = u".exe"_s;
    return executable.endsWith(exe, Qt::CaseInsensitive) ? exe : QString();
}

QString Run_Command(const QString& folder, const QString& exeName, const QString& ending) {
    const bool isWhole = exeName.endsWith(ending, Qt::CaseInsensitive);
    const QString between = folder.endsWith(u'/') ? QString() : u"/"_s;
    return QDir::toNativeSeparators(folder + between + exeName + (isWhole ? QString() : ending));
}

bool Read_RunKey() {
    const RegistryValueNames names = clsRegistryAccess().EnumValues(QString::fromUtf16(RunKey));
    const QString wanted = QString::fromUtf16(RunValue);
    return std::any_of(names.Strings.begin(), names.Strings.end(), [&](const QString& name) {
        return name.compare(wanted, Qt::CaseInsensitive) == 0;
    });
}

void Write_RunKey(bool runs) {
    const clsRegistryAccess registry;
    const QString key = QString::fromUtf16(RunKey);
    const QString name = QString::fromUtf16(RunValue);
    // Also before it is written: a value that stays the same would not bring back a start that
    // somebody has taken off by hand.
    registry.KillValue(key, name);
    if (!runs)
        return;
    const QFileInfo program(platform::Paths::Get().Executable());
    registry.WriteString(
        key, name,
        Run_Command(program.path(), program.fileName(), Program_Ending(program.filePath())));
}
