// What is known of a table's file, so that a save destroys nothing that a person may still want:
// neither the bytes of a file that could not be loaded, nor what another program has put there.
#pragma once

#include "platform/files.h"

#include <QString>

#include <optional>
#include <string>

enum class SaveResult {
    Written,
    Same,    // the file holds just these bytes already
    Refused, // nothing was replaced
};

// One for each table that has a file.
class TableFile {
public:
    // The whole content, to be followed by Note_Load; nothing when it cannot be read.
    std::optional<std::string> Read(const QString& fileName);
    // To be told the result of every load of the table.
    void Note_Load(const QString& fileName, bool loaded);
    // Replaces the file's content. A file whose load failed is first copied to its name +
    // ".damaged", one that was changed by somebody else to its name + ".other"; no earlier copy is
    // overwritten ("-2", "-3", ... follows). False: nothing was replaced.
    bool Save(const QString& fileName, const std::string& content);
    // As Save, unless the file holds these bytes already.
    SaveResult Save_Changed(const QString& fileName, const std::string& content);
    // The copy of somebody else's bytes that was made since the last call; empty: none.
    QString Take_OtherCopy();

private:
    bool Keep_Others(const QString& fileName, const std::string& content);

    QString NotLoaded; // empty: none
    QString Known;     // the file that the stamp belongs to
    platform::FileStamp Stamp;
    QString OtherCopy;
};
