#include "platform/system.h"

#include <QByteArray>

namespace platform {

namespace {
constexpr char WindowSystem[] = "QT_QPA_PLATFORM";
bool isChosenHere = false;
} // namespace

void Prepare_Process() {
    // A strip that a Wayland compositor places would stand anywhere.
    isChosenHere = !qEnvironmentVariableIsSet(WindowSystem) && qEnvironmentVariableIsSet("DISPLAY");
    if (isChosenHere) {
        qputenv(WindowSystem, QByteArray("xcb"));
    }
}

void Restore_Environment() {
    if (isChosenHere) {
        qunsetenv(WindowSystem);
    }
}

} // namespace platform
