#include "core/table_file.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// The copy's name; empty when it could not be made.
QString Keep_Copy(const QString& fileName, QLatin1StringView ending) {
    platform::Files& files = platform::Files::Get();
    const QString first = fileName + ending;
    QString copy = first;
    for (int number = 2; files.Exists(copy); ++number) {
        copy = first + u'-' + QString::number(number);
    }
    return files.Copy(fileName, copy, false) ? copy : QString();
}

} // namespace

TableLoad TableFile::Load(const QString& fileName,
                          const std::function<TableLoad(std::string_view content)>& read) {
    platform::Files& files = platform::Files::Get();
    // The stamp first: what is written between the two counts as somebody else's.
    Known = fileName;
    Stamp = files.Stamp(fileName);
    const auto content = files.Read(fileName);
    const TableLoad result = content                     ? read(*content)
                             : files.Is_Absent(fileName) ? TableLoad::NoFile
                                                         : TableLoad::Invalid;
    if (result == TableLoad::Invalid || result == TableLoad::UnknownVersion) {
        NotLoaded = fileName;
    } else if (NotLoaded == fileName) {
        NotLoaded.clear();
    }
    return result;
}

// Before the file is replaced. False: its bytes are not this program's, and could not be kept.
bool TableFile::Keep_Others(const QString& fileName, const std::string& content) {
    platform::Files& files = platform::Files::Get();
    if (!NotLoaded.isEmpty() && NotLoaded == fileName) {
        if (!files.Is_Absent(fileName) && Keep_Copy(fileName, ".damaged"_L1).isEmpty()) {
            return false;
        }
        NotLoaded.clear();
        return true;
    }
    const platform::FileStamp now = files.Stamp(fileName);
    const platform::FileStamp before = Known == fileName ? Stamp : platform::FileStamp();
    if (!now.Exists()) {
        return files.Is_Absent(fileName);
    }
    if (now == before || files.Read(fileName) == content) {
        return true;
    }
    OtherCopy = Keep_Copy(fileName, ".other"_L1);
    return !OtherCopy.isEmpty();
}

bool TableFile::Save(const QString& fileName, const std::string& content) {
    platform::Files& files = platform::Files::Get();
    if (!Keep_Others(fileName, content) || !files.Replace(fileName, content)) {
        return false;
    }
    Known = fileName;
    Stamp = files.Stamp(fileName);
    return true;
}

SaveResult TableFile::Save_Changed(const QString& fileName, const std::string& content) {
    if (NotLoaded != fileName && platform::Files::Get().Read(fileName) == content) {
        return SaveResult::Same;
    }
    return Save(fileName, content) ? SaveResult::Written : SaveResult::Refused;
}

QString TableFile::Take_OtherCopy() {
    return std::exchange(OtherCopy, QString());
}
