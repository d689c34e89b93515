#include "editors/list/open_file.h"

#include "platform/dialogs.h"
#include "platform/files.h"

#include <QStringList>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// The name as it was typed, or with the extension of the filter; empty when neither is there.
QString Existing_Path(const platform::ChosenFile& chosen, const std::vector<FileFilter>& filters) {
    QString path = chosen.Path;
    const auto index = static_cast<std::size_t>(chosen.Filter_Index);
    if (!platform::Files::Get().Exists(path) && index < filters.size())
        path += filters[index].Extension;
    if (platform::Files::Get().Exists(path))
        return path;
    platform::Dialogs::Get().Message(u"Can't open file: "_s + path, platform::BoxStyle::Critical);
    return {};
}

} // namespace

void Choose_File(QWidget* owner, std::vector<FileFilter> filters,
                 std::function<void(const QString&)> taken) {
    QStringList titles;
    for (const FileFilter& filter : filters)
        titles << filter.Title;
    platform::Dialogs::Get().Open_File(
        owner, u"Open File"_s, {}, titles.join(";;"_L1),
        [filters = std::move(filters), taken = std::move(taken)](const auto& chosen) {
            const QString path = Existing_Path(chosen, filters);
            if (!path.isEmpty())
                taken(path);
        });
}
