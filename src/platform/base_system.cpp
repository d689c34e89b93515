#include "platform/clock.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/providers.h"
#include "platform/registry.h"
#include "platform/session.h"
#include "platform/system.h"

namespace platform {

void Provide_Base_Services() {
    static const auto clock = Make_Clock();
    static const auto files = Make_Files();
    static const auto paths = Make_Paths();
    static const auto registry = Make_Registry();
    static const auto session = Make_Session();
    Clock::Provide(clock.get());
    Files::Provide(files.get());
    Paths::Provide(paths.get());
    Registry::Provide(registry.get());
    Session::Provide(session.get());
}

} // namespace platform
