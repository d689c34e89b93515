// A user that the test names; the session goes on.
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
    void Watch(std::function<void(platform::EndReason)>) override {}
    void Stop_Watching() override {}
};
