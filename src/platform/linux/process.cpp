#include "platform/system.h"

#include <QByteArray>

void platform::Prepare_Process() {
    // A strip that a Wayland compositor places would stand anywhere.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && qEnvironmentVariableIsSet("DISPLAY")) {
        qputenv("QT_QPA_PLATFORM", QByteArray("xcb"));
    }
}
