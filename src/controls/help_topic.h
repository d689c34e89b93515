// Which page of the help tells about a window.
#pragma once

#include <QString>

class QWidget;

namespace help_page {

inline const QString Contents = QStringLiteral("contents.html");
inline const QString Toolbar = QStringLiteral("toolbar.html");
inline const QString Links = QStringLiteral("lnk_LinksSetup.html");
inline const QString Reminders = QStringLiteral("reminders_Reminders_Setup.html");
inline const QString NewReminder = QStringLiteral("reminders_Add_New_Reminder.html");
inline const QString Notes = QStringLiteral("notes_Notes_Archive_Editor.html");
inline const QString Setup = QStringLiteral("tk_program_setup.html");

// What windows without a button for it say.
inline const QString Hint = QStringLiteral("F1: Help");

} // namespace help_page

void Set_HelpTopic(QWidget& window, const QString& page);
// Of the window that the widget is in, or of the nearest of its owners that has one; else empty.
QString HelpTopic_Of(const QWidget& widget);
