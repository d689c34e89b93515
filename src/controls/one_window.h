// The one window of its kind: made at its first use, and anew when the last one is on its way out.
#pragma once

#include "controls/form.h"
#include "controls/program_end.h"

#include <QPointer>

template <class Window>
class OneWindow {
public:
    // Nothing while none is open.
    Window* Open() const { return window && !window->Is_Unloading() ? window.data() : nullptr; }
    // Nothing once the program ends: no window comes then.
    Window* Open_OrMake() {
        if (Program_Is_Ending())
            return nullptr;
        if (Open() == nullptr)
            window = new Window;
        return window;
    }

private:
    QPointer<Window> window;
};
