// The pace of an animation: one call after a while of the program's clock, from the event loop.
#pragma once

#include <QObject>

#include <functional>
#include <memory>

class StepTimer {
public:
    // A call that is still to come is forgotten.
    void Start(int milliseconds, std::function<void()> step);
    void Stop() { waiting.reset(); }

private:
    std::unique_ptr<QObject> waiting; // for the call to come
};
