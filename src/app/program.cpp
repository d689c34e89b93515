#include "app/program.h"

#include "app/application.h"
#include "platform/instance.h"
#include "platform/paths.h"
#include "platform/session.h"

#include <QApplication>

int Main() {
    auto& instance = platform::Instance::Get();
    if (instance.Launch(platform::Paths::Get().Program_Folder()) ==
        platform::LaunchRole::HandedOver) {
        return 0;
    }
    Application application;
    auto& sessionEnd = platform::SessionEnd::Get();
    sessionEnd.Watch([&application](platform::EndReason reason) { application.End(reason); });
    instance.On_Show([&application] { application.Show_Again(); });
    const int result = application.Load() ? QApplication::exec() : 0;
    sessionEnd.Stop_Watching();
    instance.On_Show({});
    return result;
}
