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
    // Decides by a file lock in the folder. While another copy holds it, that copy is asked to show
    // itself; one that is ending is waited for without limit, and its place taken.
    virtual LaunchRole Launch(const QString& programFolder) = 0;
    // What a later launch asks of this copy. Called from the event loop; requests that came before
    // are delivered then.
    virtual void On_Show(std::function<void()> handler) = 0;
    // From now on later launches wait for the end of this process. The handler is still told of
    // them: a box may be open.
    virtual void Begin_Ending() = 0;
};

} // namespace platform
