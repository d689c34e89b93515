// Who uses the program, on what system, and the end of the session.
#pragma once

#include "platform/service.h"

#include <QString>

#include <functional>

namespace platform {

struct SystemVersion {
    int major = 0;
    int minor = 0;
};

class Session : public Service<Session> {
public:
    virtual QString User_Name() = 0;
    // On Linux 6.0: every system the program runs on there counts as recent.
    virtual SystemVersion System_Version() = 0;
    // The locale's short date as a pattern of d, m and y with separators, at most 10 characters.
    virtual QString Short_Date_Pattern() = 0;
};

// The ways in which the system ends the program.
enum class EndReason {
    Asked,     // a termination signal or the desktop's log-out: the event loop still runs
    NoDisplay, // the window system is gone: the process exits, no window may be touched
};

class SessionEnd : public Service<SessionEnd> {
public:
    // Watches for the signals that end a program, the desktop's log-out and the loss of the
    // display. Asked comes from the event loop, NoDisplay from the exit of the process.
    virtual void Watch(std::function<void(EndReason)> handler) = 0;
    virtual void Stop_Watching() = 0;
};

} // namespace platform
