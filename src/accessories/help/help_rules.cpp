#include "accessories/help/help_rules.h"

#include "controls/the_screen.h"

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

QPoint Help_Place(const ToolbarRect& toolbar, const QSize& viewer, const QRect& screen) {
    const int above = toolbar.Top - FromToolbar - viewer.height();
    int top = toolbar.Bottom + FromToolbar;
    if (top + viewer.height() > screen.bottom() + 1 && above >= screen.top())
        top = above;
    return Moved_Into(screen, {QPoint(toolbar.Left, top), viewer}).topLeft();
}
