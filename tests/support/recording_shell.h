// A shell that starts nothing and remembers what it was asked.
#pragma once

#include "platform/shell.h"
#include "support/provided.h"

class RecordingShell : public Provided<platform::Shell> {
public:
    struct Call {
        QString target;
        std::vector<QString> arguments;
        platform::ShowState state = platform::ShowState::Normal;
        bool opened = true; // Open, else Start
        bool operator==(const Call&) const = default;
    };
    std::vector<Call> calls;
    bool succeeds = true;

    bool Open(const QString& target, platform::ShowState state) override {
        calls.push_back({target, {}, state, true});
        return succeeds;
    }
    bool Start(const QString& program, const std::vector<QString>& arguments,
               platform::ShowState state) override {
        calls.push_back({program, arguments, state, false});
        return succeeds;
    }
};
