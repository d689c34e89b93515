// The way to the help pages for every window.
#pragma once

#include <QString>

// The viewer is open.
extern bool Global_HelpLoaded;
// The state of its "Auto Update topic" box.
extern bool Global_HelpAutoUpdate;

// Where the pages lie; no "/" at its end.
QString Help_Folder();

// For windows as they come up and change their pages: turns the open viewer to the page, unless
// its user wants to stay where they are. page: a file name like "toolbar.html".
void Update_HelpTopic(const QString& page);
// The user asks for help: shows the page in the viewer, which is made if need be.
void Show_HelpPage(const QString& page);
