// A launch whose role the test chooses.
#pragma once

#include "platform/instance.h"
#include "support/provided.h"

class FakeInstance : public Provided<platform::Instance> {
public:
    platform::LaunchRole role = platform::LaunchRole::First;
    bool ending = false;

    platform::LaunchRole Launch(const QString&) override { return role; }
    void On_Show(std::function<void()>) override {}
    void Begin_Ending() override { ending = true; }
};
