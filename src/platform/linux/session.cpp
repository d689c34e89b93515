#include "platform/session.h"

#include "platform/date_pattern.h"
#include "platform/providers.h"

#include <QFile>
#include <QLocale>

#include <pwd.h>
#include <unistd.h>

namespace platform {

namespace {

class LinuxSession : public Session {
public:
    QString User_Name() override {
        const passwd* entry = getpwuid(getuid());
        if (entry != nullptr && entry->pw_name != nullptr && *entry->pw_name != '\0') {
            return QFile::decodeName(entry->pw_name);
        }
        return QString::number(getuid()); // a user without an account, as in a container
    }

    SystemVersion System_Version() override { return {6, 0}; }

    QString Short_Date_Pattern() override {
        return Date_Pattern(QLocale::system().dateFormat(QLocale::ShortFormat));
    }
};

} // namespace

std::unique_ptr<Session> Make_Session() {
    return std::make_unique<LinuxSession>();
}

} // namespace platform
