#include "editors/list/open_file.h"

#include "platform/dialogs.h"
#include "platform/files.h"

#include <QStringList>

using namespace Qt::StringLiterals;

std::optional<QString> Choose_File(const std::vector<FileFilter>& filters) {
    QStringList titles;
    for (const FileFilter& filter : filters)
        titles << filter.Title;
    platform::Dialogs& dialogs = platform::Dialogs::Get();
    const auto chosen = dialogs.Open_File(u"Open File"_s, {}, titles.join(";;"_L1));
    if (!chosen)
        return {};
    platform::Files& files = platform::Files::Get();
    QString path = chosen->Path;
    const auto index = static_cast<std::size_t>(chosen->Filter_Index);
    if (!files.Exists(path) && index < filters.size())
        path += filters[index].Extension;
    if (!files.Exists(path)) {
        dialogs.Message(u"Can't open file: "_s + path, platform::BoxStyle::Critical);
        return {};
    }
    return path;
}
