#include "accessories/help/help_rules.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int FromToolbar = 10;

} // namespace

bool Is_HelpAddress(const QString& folder, const QUrl& url) {
    // A host would make the system ask another machine, before anything else is known.
    if (!url.isValid() || url.scheme() != "file"_L1 || !url.host().isEmpty() || folder.isEmpty())
        return false;
    const QString path = url.toLocalFile();
    if (path.contains(u'\\') || path.contains(QChar::Null) || path.startsWith("//"_L1))
        return false;
    return QDir::cleanPath(path).startsWith(QDir::cleanPath(folder) + u'/');
}

QString Help_File(const QString& folder, const QUrl& url) {
    if (!Is_HelpAddress(folder, url))
        return {};
    const QFileInfo file(url.toLocalFile());
    const QString real = file.canonicalFilePath();
    const QString realFolder = QFileInfo(folder).canonicalFilePath();
    const bool isInside = !realFolder.isEmpty() && real.startsWith(realFolder + u'/');
    return isInside && file.isFile() ? real : QString();
}

bool Is_HelpPage(const QString& folder, const QUrl& url) {
    return Help_File(folder, url).endsWith(".html"_L1, Qt::CaseInsensitive);
}

bool Is_WebLink(const QUrl& url) {
    return url.isValid() && !url.host().isEmpty() &&
           (url.scheme() == "http"_L1 || url.scheme() == "https"_L1);
}

platform::Point Help_Place(const ToolbarRect& toolbar, const platform::Size& viewer,
                           const platform::Size& screen) {
    const int above = toolbar.Top - FromToolbar - viewer.height;
    int top = toolbar.Bottom + FromToolbar;
    if (top + viewer.height > screen.height)
        top = above >= 0 ? above : screen.height - viewer.height;
    const int left = std::min(toolbar.Left, screen.width - viewer.width);
    return {std::max(left, 0), std::max(top, 0)};
}
