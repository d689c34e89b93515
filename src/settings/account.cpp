#include "settings/account.h"

#include "platform/files.h"
#include "platform/registry.h"
#include "platform/session.h"

#include <QStringList>

using namespace Qt::StringLiterals;

QString Global_UserPath;

namespace {

// The marker must never empty a file of the account.
bool May_Be_Marker(const QString& name) {
    static const QStringList dataFiles{u"reminders.dat"_s,   u"reminders.bak"_s,
                                       u"rareminders.dat"_s, u"links.dat"_s,
                                       u"notes.dat"_s,       u"rcategories.txt"_s};
    return !name.isEmpty() && !name.startsWith(".tockly-"_L1) && name != "."_L1 &&
           name != ".."_L1 && !name.contains(u'/') && !name.contains(u'\\') &&
           !name.startsWith("reminders.dat"_L1, Qt::CaseInsensitive) &&
           !dataFiles.contains(name, Qt::CaseInsensitive);
}

QString Account_Folder(const QString& programFolder, std::int32_t number) {
    return programFolder + "/User-"_L1 + QString::number(number);
}

} // namespace

bool Account_Is_Closed(const QString& programFolder, std::int32_t number) {
    auto& files = platform::Files::Get();
    const QString folder = Account_Folder(programFolder, number);
    return files.Exists(folder) && !files.Empty_Files(folder);
}

bool Account_Is_Taken(const QString& programFolder, std::int32_t number) {
    auto& files = platform::Files::Get();
    const QString folder = Account_Folder(programFolder, number);
    if (!files.Exists(folder))
        return false;
    const auto empty = files.Empty_Files(folder);
    if (!empty)
        return true;
    QStringList markers;
    for (const QString& name : *empty)
        if (May_Be_Marker(name))
            markers.append(name);
    if (markers.contains(platform::Session::Get().User_Name()))
        return false;
    return !markers.isEmpty() ||
           !platform::Registry::Get().Is_Readable(platform::RegistryRoot::LocalMachine);
}

bool Open_Account(const QString& programFolder, std::int32_t number) {
    Global_UserPath = Account_Folder(programFolder, number);
    auto& files = platform::Files::Get();
    if (!files.Exists(Global_UserPath)) {
        files.Make_Folder(Global_UserPath);
    }
    const QString user = platform::Session::Get().User_Name();
    if (May_Be_Marker(user)) {
        const auto marker = files.Read(Account_File(user));
        if (!marker || !marker->empty()) {
            files.Replace(Account_File(user), {});
        }
    }
    return files.Empty_Files(Global_UserPath).has_value();
}

QString Account_File(const QString& name) {
    return Global_UserPath + u'/' + name;
}
