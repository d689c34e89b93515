// The choice of a file for a field.
#pragma once

#include <QString>

#include <optional>
#include <vector>

struct FileFilter {
    QString Title;     // "MP3 File (*.mp3)"
    QString Extension; // added to a name that is not there; empty: none
};

// The standard file dialog, then a check that the file is there; nothing when the user cancels or
// there is no such file, which is told.
std::optional<QString> Choose_File(const std::vector<FileFilter>& filters);
