// What a top-level window of the program asks of the window system beyond what the toolkit gives.
// A window is named by the toolkit's native identifier (QWidget::winId).
#pragma once

#include "platform/service.h"

#include <cstdint>

namespace platform {

using WindowId = std::uintptr_t;

class Windows : public Service<Windows> {
public:
    // Puts the window above all others without giving it the focus; false lets it sink again.
    virtual void Set_Topmost(WindowId window, bool topmost) = 0;
    // No entry in the task bar or pager. The state is lost on hiding: to be set before every map.
    virtual void Leave_TaskBar(WindowId window) = 0;
    // The window stands exactly where the program puts it, over the areas of panels too. To be set
    // before every map, like the one above.
    virtual void Keep_Place(WindowId window) = 0;
    // Raises the window and gives it the keyboard focus, as a second launch asks.
    virtual void Activate(WindowId window) = 0;
    // Opacity 0..255 of the whole window; Clear_Alpha takes the layered drawing off again.
    virtual void Set_Alpha(WindowId window, int alpha) = 0;
    virtual void Clear_Alpha(WindowId window) = 0;
    // Drop shadow where the system draws one on request.
    virtual void Set_Shadow(WindowId window, bool shadow) = 0;
};

} // namespace platform
