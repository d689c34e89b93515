// What is known of a table's file, so that a save destroys nothing that a person may still want:
// neither the bytes of a file that could not be loaded, nor what another program has put there.
#pragma once

#include "core/record_stream.h"
#include "platform/files.h"

#include <QString>

#include <functional>
#include <string>
#include <string_view>

enum class SaveResult {
    Written,
    Same,    // the file holds just these bytes already
    Refused, // nothing was replaced
};

// One for each table that has a file.
class TableFile {
public:
    // Hands the whole content to the table's reader, and gives back what that says.
    TableLoad Load(const QString& fileName,
                   const std::function<TableLoad(std::string_view content)>& read);
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
