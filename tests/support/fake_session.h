// A user that the test names, and an end of the session that the test brings about.
#pragma once

#include "platform/session.h"
#include "support/provided.h"

class FakeSession : public Provided<platform::Session> {
public:
    QString userName = QStringLiteral("Ada");
    platform::SystemVersion version{6, 0};
    QString shortDatePattern = QStringLiteral("dd/mm/yyyy");

    QString User_Name() override { return userName; }
    platform::SystemVersion System_Version() override { return version; }
    QString Short_Date_Pattern() override { return shortDatePattern; }
};

class FakeSessionEnd : public Provided<platform::SessionEnd> {
public:
    std::function<void(platform::EndReason)> handler;

    void End(platform::EndReason reason) {
        if (handler) {
            handler(reason);
        }
    }
    void Watch(std::function<void(platform::EndReason)> asked) override {
        handler = std::move(asked);
    }
    void Stop_Watching() override { handler = nullptr; }
};
