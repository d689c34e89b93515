#include "platform/linux/descriptor.h"
#include "platform/providers.h"
#include "platform/session.h"

#include <QGuiApplication>
#include <QObject>
#include <QSessionManager>
#include <QSocketNotifier>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <sys/eventfd.h>
#include <utility>

namespace platform {

namespace {

constexpr std::array Signals{SIGTERM, SIGINT, SIGHUP};

// What a signal's handler may touch: a number, and a write to it.
std::atomic<int> wakeUp{-1};

void Note_Signal(int) {
    const int before = errno;
    const std::uint64_t one = 1;
    static_cast<void>(write(wakeUp.load(), &one, sizeof one) > 0);
    errno = before;
}

void Note_Exit();

class LinuxSessionEnd : public SessionEnd {
public:
    ~LinuxSessionEnd() override { Stop_Watching(); }

    void Watch(std::function<void(EndReason)> asked) override {
        handler = std::move(asked);
        isAsked = false;
        watching = this;
        std::signal(SIGPIPE, SIG_IGN);
        Watch_Signals();
        if (qGuiApp != nullptr) {
            logOut = QObject::connect(qGuiApp, &QGuiApplication::commitDataRequest, qGuiApp,
                                      [this](QSessionManager&) { End_Asked(); });
        }
        // The toolkit leaves through exit() when the X server goes.
        static const bool isRegistered = std::atexit(Note_Exit) == 0;
        static_cast<void>(isRegistered);
    }

    void Stop_Watching() override {
        handler = nullptr;
        if (notifier != nullptr) {
            notifier->setEnabled(false); // not deleted: this may run inside its own signal
        }
        QObject::disconnect(logOut);
        if (watching == this) {
            watching = nullptr;
        }
        // The signals keep their handler: one that comes now must not cut the end short.
    }

    // Once: the second signal of an impatient user finds the end under way.
    void End_Asked() {
        if (handler && !std::exchange(isAsked, true)) {
            const auto asked = handler;
            asked(EndReason::Asked);
        }
    }

    // Even when the end was asked for before: as long as somebody watches, it has not come.
    void End_NoDisplay() {
        if (const auto once = std::exchange(handler, nullptr)) {
            once(EndReason::NoDisplay);
        }
    }

    inline static LinuxSessionEnd* watching = nullptr;

private:
    void Watch_Signals() {
        if (wakeUp.load() < 0) {
            wakeUp = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
        }
        notifier = std::make_unique<QSocketNotifier>(wakeUp.load(), QSocketNotifier::Read);
        QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(), [this] {
            std::uint64_t count = 0;
            static_cast<void>(read(wakeUp.load(), &count, sizeof count) > 0);
            End_Asked();
        });
        struct sigaction action {};
        action.sa_handler = Note_Signal;
        action.sa_flags = SA_RESTART;
        for (const int signal : Signals) {
            struct sigaction before {};
            sigaction(signal, nullptr, &before);
            // Started with nohup, the program outlives its terminal.
            if (signal != SIGHUP || before.sa_handler != SIG_IGN) {
                sigaction(signal, &action, nullptr);
            }
        }
    }

    std::function<void(EndReason)> handler;
    bool isAsked = false;
    std::unique_ptr<QSocketNotifier> notifier;
    QMetaObject::Connection logOut;
};

void Note_Exit() {
    if (LinuxSessionEnd::watching != nullptr) {
        LinuxSessionEnd::watching->End_NoDisplay();
    }
}

} // namespace

std::unique_ptr<SessionEnd> Make_SessionEnd() {
    return std::make_unique<LinuxSessionEnd>();
}

} // namespace platform
