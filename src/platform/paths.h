// Where the program's folders are. Paths use "/" and have none at their end.
#pragma once

#include "platform/service.h"

#include <QString>

namespace platform {

class Paths : public Service<Paths> {
public:
    // The folder of the accounts and shared files: the one TOCKLY_HOME names, else the
    // executable's if a file "portable" lies in it, else the user's data folder. Created when
    // missing; a failure is ignored.
    virtual QString Program_Folder() = 0;
    // A file that ships with the program: from the program folder if it is there, else beside the
    // executable or in its share folder; the path in the program folder when there is none.
    virtual QString Shipped_File(const QString& name) = 0;
    virtual QString Executable() = 0;
};

} // namespace platform
