#include "platform/desktop.h"
#include "platform/dialogs.h"
#include "platform/instance.h"
#include "platform/media.h"
#include "platform/providers.h"
#include "platform/session.h"
#include "platform/shell.h"
#include "platform/system.h"
#include "platform/tray.h"
#include "platform/window.h"

namespace platform {

void Provide_Window_Services() {
    static const auto desktop = Make_Desktop();
    static const auto dialogs = Make_Dialogs();
    static const auto instance = Make_Instance();
    static const auto media = Make_Media();
    static const auto sessionEnd = Make_SessionEnd();
    static const auto shell = Make_Shell();
    static const auto tray = Make_Tray();
    static const auto windows = Make_Windows();
    Desktop::Provide(desktop.get());
    Dialogs::Provide(dialogs.get());
    Instance::Provide(instance.get());
    Media::Provide(media.get());
    SessionEnd::Provide(sessionEnd.get());
    Shell::Provide(shell.get());
    Tray::Provide(tray.get());
    Windows::Provide(windows.get());
}

} // namespace platform
