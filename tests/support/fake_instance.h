// A launch whose role the test chooses, and later launches that it makes.
#pragma once

#include "platform/instance.h"
#include "support/provided.h"

class FakeInstance : public Provided<platform::Instance> {
public:
    platform::LaunchRole role = platform::LaunchRole::First;
    QString folder; // what Launch was asked with
    bool ending = false;

    // A second launch. True when the running copy was told to show itself.
    bool Launch_Again() {
        if (ending) {
            return false;
        }
        if (handler) {
            handler();
        } else {
            ++waiting;
        }
        return true;
    }

    platform::LaunchRole Launch(const QString& programFolder) override {
        folder = programFolder;
        return role;
    }
    void On_Show(std::function<void()> shown) override {
        handler = std::move(shown);
        for (; handler && waiting > 0; --waiting) {
            handler();
        }
    }
    void Begin_Ending() override { ending = true; }

private:
    std::function<void()> handler;
    int waiting = 0;
};
