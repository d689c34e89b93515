// A folder that only this user can enter and that goes with the machine's run.
#pragma once

#include <QString>

namespace platform {

// Empty when there is none that can be trusted.
QString Runtime_Folder();

} // namespace platform
