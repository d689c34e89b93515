#include "platform/linux/stacking.h"
#include "platform/linux/x11.h"
#include "platform/providers.h"
#include "platform/window.h"

#include <algorithm>
#include <utility>

namespace platform {

namespace {

enum StateAction : std::uint32_t { RemoveState = 0, AddState = 1 };
constexpr std::uint32_t FromApplication = 1;
constexpr std::uint32_t FromUser = 2;

xcb_window_t Native(WindowId window) {
    return static_cast<xcb_window_t>(window);
}

// The window manager reads the property when it maps the window and listens to the message from
// then on. Between the two nobody knows which: the message goes out in any case.
void Set_State(WindowId window, const char* name, StateAction action) {
    xcb_connection_t* server = x11::Connection();
    if (server == nullptr || window == 0) {
        return;
    }
    const xcb_atom_t state = x11::Atom(name);
    if (!x11::Is_Mapped(Native(window))) {
        std::vector<std::uint32_t> states = x11::Items(Native(window), "_NET_WM_STATE");
        states.erase(std::remove(states.begin(), states.end(), state), states.end());
        if (action == AddState) {
            states.push_back(state);
        }
        x11::Set_Items(Native(window), "_NET_WM_STATE", XCB_ATOM_ATOM, states);
    }
    x11::Tell_Manager(Native(window), "_NET_WM_STATE", {action, state, 0, FromApplication, 0});
}

// The first two fields of the hints: which of them count, and whether a click brings the focus.
void Take_Keyboard(xcb_window_t window, bool takes) {
    constexpr std::uint32_t inputCounts = 1;
    constexpr std::size_t allHints = 9;
    auto hints = x11::Items(window, "WM_HINTS");
    hints.resize(allHints);
    hints[0] |= inputCounts;
    hints[1] = takes ? 1U : 0U;
    x11::Set_Items(window, "WM_HINTS", XCB_ATOM_WM_HINTS, hints);
}

class LinuxWindows : public Windows {
public:
    void Set_Topmost(WindowId window, bool topmost) override {
        Set_State(window, "_NET_WM_STATE_ABOVE", topmost ? AddState : RemoveState);
    }

    void Raise(WindowId window, RaiseOver over) override {
        if (over == RaiseOver::All) {
            stacking.Raise_OverAll(Native(window));
        } else {
            stacking.Raise_OverOthers(Native(window));
        }
    }

    void On_Restack(std::function<void()> handler) override {
        stacking.On_Restack(std::move(handler));
    }

    void Show_Everywhere(WindowId window) override {
        constexpr std::uint32_t all = 0xFFFFFFFF;
        Set_State(window, "_NET_WM_STATE_STICKY", AddState);
        if (x11::Is_Mapped(Native(window))) {
            x11::Tell_Manager(Native(window), "_NET_WM_DESKTOP", {all, FromUser, 0, 0, 0});
        } else {
            x11::Set_Items(Native(window), "_NET_WM_DESKTOP", XCB_ATOM_CARDINAL, {all});
        }
    }

    // Some window managers give the focus to whatever appears, unless it wants no keyboard at all.
    void Stay_Quiet(WindowId window) override {
        Set_State(window, "_NET_WM_STATE_DEMANDS_ATTENTION", RemoveState);
        Take_Keyboard(Native(window), x11::Is_Mapped(Native(window)));
    }

    void Leave_TaskBar(WindowId window) override {
        Set_State(window, "_NET_WM_STATE_SKIP_TASKBAR", AddState);
        Set_State(window, "_NET_WM_STATE_SKIP_PAGER", AddState);
    }

    // Window managers push ordinary windows out of the areas of panels, and leave those that have
    // such an area themselves alone. This one reserves a strip of each screen edge far outside of
    // the screen: nothing.
    void Keep_Place(WindowId window) override {
        constexpr std::uint32_t outside = 30000;
        std::vector<std::uint32_t> strut(12, outside);
        std::fill_n(strut.begin(), 4, 1U);
        x11::Set_Items(Native(window), "_NET_WM_STRUT_PARTIAL", XCB_ATOM_CARDINAL, strut);
    }

    void Activate(WindowId window) override {
        xcb_connection_t* server = x11::Connection();
        if (server == nullptr || window == 0) {
            return;
        }
        const std::uint32_t raise = XCB_STACK_MODE_ABOVE;
        const std::uint32_t now = x11::Server_Time();
        Take_Keyboard(Native(window), true);
        xcb_configure_window(server, Native(window), XCB_CONFIG_WINDOW_STACK_MODE, &raise);
        x11::Set_Items(Native(window), "_NET_WM_USER_TIME", XCB_ATOM_CARDINAL, {now});
        if (x11::Has_Manager()) {
            // As the user's own wish: from an application it would only flash in a panel.
            x11::Tell_Manager(Native(window), "_NET_ACTIVE_WINDOW", {FromUser, now, 0, 0, 0});
        } else if (x11::Is_Mapped(Native(window))) {
            xcb_set_input_focus(server, XCB_INPUT_FOCUS_PARENT, Native(window), now);
        }
        xcb_flush(server);
    }

    void Give_FocusBack(WindowId window) override {
        const auto active = x11::Items(x11::Root(), "_NET_ACTIVE_WINDOW");
        const xcb_window_t before = stacking.Focused_Before();
        if (!active.empty() && active.front() == Native(window) && x11::Is_Mapped(before)) {
            Activate(before);
        }
    }

    void Set_Alpha(WindowId window, int alpha) override {
        const auto level = static_cast<std::uint32_t>(std::clamp(alpha, 0, 255));
        x11::Set_Items(Native(window), "_NET_WM_WINDOW_OPACITY", XCB_ATOM_CARDINAL,
                       {level * 0x01010101U});
    }

    void Clear_Alpha(WindowId window) override {
        x11::Remove_Property(Native(window), "_NET_WM_WINDOW_OPACITY");
    }

    void Set_Shadow(WindowId window, bool shadow) override {
        x11::Set_Items(Native(window), "_COMPTON_SHADOW", XCB_ATOM_CARDINAL, {shadow ? 1U : 0U});
    }

private:
    x11::Stacking stacking;
};

} // namespace

std::unique_ptr<Windows> Make_Windows() {
    return std::make_unique<LinuxWindows>();
}

} // namespace platform
