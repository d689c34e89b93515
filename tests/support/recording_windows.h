// Remembers what was asked of each window.
#pragma once

#include "platform/window.h"
#include "support/provided.h"

#include <map>
#include <optional>
#include <vector>

class RecordingWindows : public Provided<platform::Windows> {
public:
    struct State {
        bool topmost = false;
        bool leftTaskBar = false;
        bool keepsPlace = false;
        bool shadow = false;
        std::optional<int> alpha;
        std::vector<int> alphas; // every one set, in order
        int activations = 0;
        int topmostCalls = 0;
    };
    std::map<platform::WindowId, State> windows;

    void Set_Topmost(platform::WindowId window, bool topmost) override {
        windows[window].topmost = topmost;
        ++windows[window].topmostCalls;
    }
    void Raise(platform::WindowId, platform::RaiseOver) override {}
    void On_Restack(std::function<void()>) override {}
    void Show_Everywhere(platform::WindowId) override {}
    void Stay_Quiet(platform::WindowId) override {}
    void Give_FocusBack(platform::WindowId) override {}
    void Leave_TaskBar(platform::WindowId window) override { windows[window].leftTaskBar = true; }
    void Keep_Place(platform::WindowId window) override { windows[window].keepsPlace = true; }
    void Activate(platform::WindowId window) override { ++windows[window].activations; }
    void Set_Alpha(platform::WindowId window, int alpha) override {
        windows[window].alpha = alpha;
        windows[window].alphas.push_back(alpha);
    }
    void Clear_Alpha(platform::WindowId window) override { windows[window].alpha.reset(); }
    void Set_Shadow(platform::WindowId window, bool shadow) override {
        windows[window].shadow = shadow;
    }
};
