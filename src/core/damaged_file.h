// Keeps the bytes of a data file that could not be loaded, so that a save does not destroy what a
// person may still want to rescue.
#pragma once

#include <QString>

#include <string>

// One for each table that has a file.
class DamagedFile {
public:
    // To be told the result of every load of the table.
    void Note_Load(const QString& fileName, bool loaded);
    // Replaces the file's content. A file whose load failed is first copied to its name +
    // ".damaged", ".damaged-2", ...; no earlier copy is overwritten. False: nothing was replaced.
    bool Save(const QString& fileName, const std::string& content);

private:
    QString NotLoaded; // empty: none
};
