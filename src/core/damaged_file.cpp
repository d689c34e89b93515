#include "core/damaged_file.h"

#include "platform/files.h"

using namespace Qt::StringLiterals;

namespace {

bool Keep_Copy(const QString& fileName) {
    platform::Files& files = platform::Files::Get();
    const QString first = fileName + ".damaged"_L1;
    QString copy = first;
    for (int number = 2; files.Exists(copy); ++number)
        copy = first + u'-' + QString::number(number);
    return files.Copy(fileName, copy, false);
}

} // namespace

void DamagedFile::Note_Load(const QString& fileName, bool loaded) {
    if (!loaded)
        NotLoaded = fileName;
    else if (NotLoaded == fileName)
        NotLoaded.clear();
}

bool DamagedFile::Save(const QString& fileName, const std::string& content) {
    platform::Files& files = platform::Files::Get();
    if (!NotLoaded.isEmpty() && NotLoaded == fileName) {
        if (files.Exists(fileName) && !Keep_Copy(fileName))
            return false;
        NotLoaded.clear();
    }
    return files.Replace(fileName, content);
}
