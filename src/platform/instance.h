// One running copy for each user and program folder, and the hand-over of a second launch.
#pragma once

#include "platform/service.h"

#include <QString>

#include <functional>

namespace platform {

enum class LaunchRole {
    First,      // this process is the copy that runs
    HandedOver, // the running copy has been told to show itself: this process ends
};

class Instance : public Service<Instance> {
public:
    // Decides by a file lock on the folder's name. While another copy holds it, that copy is asked
    // to show itself; one that is ending is waited for, and its place taken.
    virtual LaunchRole Launch(const QString& programFolder) = 0;
    // What a later launch asks of this copy. Called from the event loop; requests that came before
    // are delivered then.
    virtual void On_Show(std::function<void()> handler) = 0;
    // From now on later launches wait for the end of this process instead of waking it.
    virtual void Begin_Ending() = 0;
};

} // namespace platform
