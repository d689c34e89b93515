// The choice of a file for a field.
#pragma once

#include <QString>

#include <functional>
#include <vector>

class QWidget;

struct FileFilter {
    QString Title;     // "MP3 File (*.mp3)"
    QString Extension; // added to a name that is not there; empty: none
};

// The standard file dialog, which blocks the owner's window, then a check that the file is there:
// where it is not, the user is told. taken: called with a file that is there.
void Choose_File(QWidget* owner, std::vector<FileFilter> filters,
                 std::function<void(const QString&)> taken);
