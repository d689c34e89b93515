#include "app/app_message.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int CommandLength = 10;
}

AppMessage Global_AppMessage;

void Clear_AppMessage() {
    Global_AppMessage = {};
}

void Post_AppMessage(const QString& command) {
    Global_AppMessage = {1, command.left(CommandLength)};
}

bool Show_IsWaiting() {
    if (Global_AppMessage.Pending == 0) {
        return false;
    }
    Global_AppMessage.Command = Global_AppMessage.Command.toLower();
    return Global_AppMessage.Command.trimmed() == "show"_L1;
}
