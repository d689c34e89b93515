// A process that a test starts, signals and kills: a launch of the program without its windows.
// Writes what happens to it, one word a line; reads commands the same way.
#include "platform/instance.h"
#include "platform/providers.h"
#include "platform/session.h"

#include <QGuiApplication>
#include <QSocketNotifier>

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>
#include <unistd.h>

namespace {

void Say(const char* word) {
    std::printf("%s\n", word);
    std::fflush(stdout);
}

int Be_Launched(const QString& folder, bool isReady) {
    const auto instance = platform::Make_Instance();
    if (instance->Launch(folder) != platform::LaunchRole::First) {
        Say("handed over");
        return 0;
    }
    Say("first");
    const auto Be_Ready = [&] { instance->On_Show([] { Say("shown"); }); };
    if (isReady) {
        Be_Ready();
    }
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, qGuiApp, [&] {
        std::string command;
        if (!std::getline(std::cin, command) || command == "quit") {
            qGuiApp->quit();
        } else if (command == "ready") {
            Be_Ready();
        } else if (command == "end") {
            instance->Begin_Ending();
            Say("ending");
        }
    });
    return QGuiApplication::exec();
}

int Be_Ended(const QString& how) {
    const auto sessionEnd = platform::Make_SessionEnd();
    sessionEnd->Watch([](platform::EndReason reason) {
        Say(reason == platform::EndReason::Asked ? "asked" : "no display");
    });
    if (how == QLatin1String("exit")) {
        std::exit(1); // as the toolkit does without its display
    }
    if (how == QLatin1String("stopped")) {
        sessionEnd->Stop_Watching();
        std::exit(1);
    }
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, qGuiApp, [&] {
        sessionEnd->Stop_Watching();
        qGuiApp->exit(7);
    });
    Say("watching");
    return QGuiApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    const QStringList words = QGuiApplication::arguments();
    return words.value(1) == QLatin1String("launch") ? Be_Launched(words.value(2), words.size() < 4)
                                                     : Be_Ended(words.value(2));
}
