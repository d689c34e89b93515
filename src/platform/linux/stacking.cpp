#include "platform/linux/stacking.h"

#include "platform/linux/x11.h"

#include <QCoreApplication>
#include <QRect>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace platform::x11 {

namespace {

constexpr std::uint32_t FromUser = 2;

// Where the window is on the screen.
QRect Bounds(xcb_window_t window) {
    xcb_connection_t* server = Connection();
    const auto askedSize = xcb_get_geometry(server, window);
    const auto askedPlace = xcb_translate_coordinates(server, window, Root(), 0, 0);
    xcb_generic_error_t* fault = nullptr;
    auto* size = xcb_get_geometry_reply(server, askedSize, &fault);
    std::free(std::exchange(fault, nullptr));
    auto* place = xcb_translate_coordinates_reply(server, askedPlace, &fault);
    std::free(fault);
    const QRect bounds = size == nullptr || place == nullptr
                             ? QRect()
                             : QRect(place->dst_x, place->dst_y, size->width, size->height);
    std::free(size);
    std::free(place);
    return bounds;
}

bool Has(const std::vector<std::uint32_t>& items, const char* name) {
    return std::find(items.begin(), items.end(), Atom(name)) != items.end();
}

// From the lowest to the highest.
std::vector<xcb_window_t> Windows_InOrder() {
    if (Has_Manager()) {
        return Items(Root(), "_NET_CLIENT_LIST_STACKING");
    }
    xcb_connection_t* server = Connection();
    auto* tree = xcb_query_tree_reply(server, xcb_query_tree(server, Root()), nullptr);
    if (tree == nullptr) {
        return {};
    }
    const xcb_window_t* first = xcb_query_tree_children(tree);
    std::vector<xcb_window_t> windows(first, first + xcb_query_tree_children_length(tree));
    std::free(tree);
    return windows;
}

std::vector<xcb_window_t> Windows_Over(xcb_window_t window) {
    const std::vector<xcb_window_t> all = Windows_InOrder();
    const auto at = std::find(all.begin(), all.end(), window);
    return at == all.end() ? std::vector<xcb_window_t>() : std::vector(at + 1, all.end());
}

// A request to be raised counts as one for the focus with some window managers, and as rude with
// others. One that keeps nothing above has no order to be kept either.
void Put_OnTop(xcb_window_t window) {
    if (Manager_Knows("_NET_RESTACK_WINDOW")) {
        Tell_Manager(window, "_NET_RESTACK_WINDOW",
                     {FromUser, XCB_NONE, XCB_STACK_MODE_ABOVE, 0, 0});
    } else if (!Has_Manager() || Manager_Knows("_NET_WM_STATE_ABOVE")) {
        const std::uint32_t above = XCB_STACK_MODE_ABOVE;
        xcb_configure_window(Connection(), window, XCB_CONFIG_WINDOW_STACK_MODE, &above);
        xcb_flush(Connection());
    }
}

} // namespace

Stacking::Stacking()
    : activeWindow(Atom("_NET_ACTIVE_WINDOW")), windowOrder(Atom("_NET_CLIENT_LIST_STACKING")) {
    if (Connection() != nullptr) {
        QCoreApplication::instance()->installNativeEventFilter(this);
    }
}

Stacking::~Stacking() {
    if (QCoreApplication::instance() != nullptr) {
        QCoreApplication::instance()->removeNativeEventFilter(this);
    }
}

void Stacking::Raise_OverAll(xcb_window_t window) {
    if (Is_OnView(window) && !Windows_Over(window).empty()) {
        Put_OnTop(window);
    }
}

void Stacking::Raise_OverOthers(xcb_window_t window) {
    if (!Is_OnView(window)) {
        return;
    }
    std::vector<xcb_window_t> ours;
    std::vector<xcb_window_t> others;
    for (const xcb_window_t over : Windows_Over(window)) {
        if (!Is_OnView(over)) {
            continue;
        }
        if (Is_Ours(over)) {
            ours.push_back(over);
            continue;
        }
        if (Has(Items(over, "_NET_WM_STATE"), "_NET_WM_STATE_FULLSCREEN")) {
            if (Bounds(over).intersects(Bounds(window))) {
                return;
            }
            continue;
        }
        others.push_back(over);
    }
    // What has not helped will not help: a layer that the window manager keeps above.
    if (overIt[window] == others) {
        return;
    }
    overIt[window] = others;
    if (others.empty()) {
        return;
    }
    Put_OnTop(window);
    for (const xcb_window_t own : ours) {
        Put_OnTop(own);
    }
}

// The toolkit listens to the root window's properties already.
bool Stacking::nativeEventFilter(const QByteArray& kind, void* message, qintptr*) {
    if (kind != "xcb_generic_event_t") {
        return false;
    }
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    if ((event->response_type & 0x7FU) != XCB_PROPERTY_NOTIFY) {
        return false;
    }
    const auto* change = reinterpret_cast<const xcb_property_notify_event_t*>(event);
    if (change->window != Root()) {
        return false;
    }
    if (change->atom == activeWindow) {
        Note_Focus();
    } else if (change->atom == windowOrder && restacked) {
        restacked();
    }
    return false;
}

void Stacking::Note_Focus() {
    const auto active = Items(Root(), "_NET_ACTIVE_WINDOW");
    if (active.empty() || active.front() == XCB_NONE || active.front() == focus) {
        return;
    }
    focusBefore = std::exchange(focus, active.front());
}

} // namespace platform::x11
