// What the help viewer may show, and where it stands: rules without a window.
#pragma once

#include "controls/toolbar.h"

#include <QRect>
#include <QString>
#include <QUrl>

// Whether the address names something below the folder. Asks the address alone, nothing on disk.
bool Is_HelpAddress(const QString& folder, const QUrl& url);
// The path of a regular file that lies in the folder or below it, links followed; empty for all
// else, whatever way the address takes to get out.
QString Help_File(const QString& folder, const QUrl& url);
// Such a file that is a page.
bool Is_HelpPage(const QString& folder, const QUrl& url);
// A page of the web, which is the browser's to show.
bool Is_WebLink(const QUrl& url);

// The top left corner of a viewer of this size, its frame included; pixels. Below the toolbar, or
// above it where there is no room below; always on the screen, as far as it fits there.
QPoint Help_Place(const ToolbarRect& toolbar, const QSize& viewer, const QRect& screen);
