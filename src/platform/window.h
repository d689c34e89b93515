// What a top-level window of the program asks of the window system beyond what the toolkit gives.
// A window is named by the toolkit's native identifier (QWidget::winId).
#pragma once

#include "platform/service.h"

#include <cstdint>
#include <functional>

namespace platform {

using WindowId = std::uintptr_t;

// Which windows a raised one comes over: those of others, or all.
enum class RaiseOver { Others, All };

class Windows : public Service<Windows> {
public:
    // Counts the window among those above all ordinary ones; false lets it sink again. To be set
    // before every map.
    virtual void Set_Topmost(WindowId window, bool topmost) = 0;
    // Brings a window that is on view up among those above, without the focus. Over others: only if
    // a window of another application stands over it, and those of the program that stand over it
    // stay there. A full-screen window in its place is left alone.
    virtual void Raise(WindowId window, RaiseOver over) = 0;
    // Called when the order of the windows has changed. One handler at a time.
    virtual void On_Restack(std::function<void()> handler) = 0;
    // On every workspace. To be set before every map.
    virtual void Show_Everywhere(WindowId window) = 0;
    // The window comes without the focus, and calls for no attention by that. To be set before
    // every map, and once more when the window is on view: from then on a click focuses it.
    virtual void Stay_Quiet(WindowId window) = 0;
    // No entry in the task bar or pager. The state is lost on hiding: to be set before every map.
    virtual void Leave_TaskBar(WindowId window) = 0;
    // The window stands exactly where the program puts it, over the areas of panels too. To be set
    // before every map, like the one above.
    virtual void Keep_Place(WindowId window) = 0;
    // Raises the window and gives it the keyboard focus, as a second launch asks.
    virtual void Activate(WindowId window) = 0;
    // If the window has the focus, gives it back to the window that had it before.
    virtual void Give_FocusBack(WindowId window) = 0;
    // Opacity 0..255 of the whole window; Clear_Alpha takes the layered drawing off again.
    virtual void Set_Alpha(WindowId window, int alpha) = 0;
    virtual void Clear_Alpha(WindowId window) = 0;
    // Drop shadow where the system draws one on request.
    virtual void Set_Shadow(WindowId window, bool shadow) = 0;
};

} // namespace platform
