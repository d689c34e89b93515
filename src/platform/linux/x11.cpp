#include "platform/linux/x11.h"

#include <QGuiApplication>
#include <QWindow>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <poll.h>
#include <unistd.h>

namespace platform::x11 {

namespace {

struct Freer {
    void operator()(void* reply) const { std::free(reply); }
};
template <class Reply>
using Owned = std::unique_ptr<Reply, Freer>;

constexpr std::uint32_t MaxItems = 1U << 20U; // four bytes each
constexpr int TimeToAnswer = 500;             // ms

Owned<xcb_get_property_reply_t> Property(xcb_window_t window, const char* name) {
    xcb_connection_t* server = Connection();
    const xcb_atom_t atom = Atom(name);
    if (server == nullptr || window == XCB_NONE || atom == 0) {
        return nullptr;
    }
    const auto asked =
        xcb_get_property(server, 0, window, atom, XCB_GET_PROPERTY_TYPE_ANY, 0, MaxItems);
    xcb_generic_error_t* fault = nullptr; // the window may have gone meanwhile
    Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(server, asked, &fault));
    const Owned<xcb_generic_error_t> dropped(fault);
    return reply;
}

std::uint8_t Map_State(xcb_window_t window) {
    xcb_connection_t* server = Connection();
    if (server == nullptr || window == XCB_NONE) {
        return XCB_MAP_STATE_UNMAPPED;
    }
    const auto asked = xcb_get_window_attributes(server, window);
    xcb_generic_error_t* fault = nullptr;
    const Owned<xcb_get_window_attributes_reply_t> reply(
        xcb_get_window_attributes_reply(server, asked, &fault));
    const Owned<xcb_generic_error_t> dropped(fault);
    return reply == nullptr ? std::uint8_t{XCB_MAP_STATE_UNMAPPED} : reply->map_state;
}

// Requests on windows that others own can fail at any time: the error is ours, not the toolkit's.
// The server may have gone since the connection was asked for, which the request survives.
void Finish(xcb_connection_t* server, xcb_void_cookie_t request) {
    xcb_discard_reply(server, request.sequence);
    xcb_flush(server);
}

// XCB_NONE once the server is gone, which another thread of the toolkit's may notice at any time.
xcb_window_t Root_Of(xcb_connection_t* server) {
    const xcb_setup_t* setup = xcb_get_setup(server);
    return setup == nullptr ? xcb_window_t{XCB_NONE} : xcb_setup_roots_iterator(setup).data->root;
}

// A change of a property on a window of its own is answered with the server's time.
std::uint32_t Ask_Time(xcb_connection_t* server) {
    const xcb_window_t window = xcb_generate_id(server);
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(server, 0, window, Root_Of(server), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK,
                      &events);
    xcb_change_property(server, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8,
                        0, nullptr);
    xcb_flush(server);
    pollfd ready{xcb_get_file_descriptor(server), POLLIN, 0};
    while (poll(&ready, 1, TimeToAnswer) > 0 && xcb_connection_has_error(server) == 0) {
        while (const Owned<xcb_generic_event_t> event{xcb_poll_for_event(server)}) {
            if ((event->response_type & 0x7FU) == XCB_PROPERTY_NOTIFY) {
                return reinterpret_cast<const xcb_property_notify_event_t*>(event.get())->time;
            }
        }
    }
    return XCB_CURRENT_TIME;
}

} // namespace

xcb_connection_t* Connection() {
    if (qGuiApp == nullptr) {
        return nullptr;
    }
    const auto* application = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t* server = application == nullptr ? nullptr : application->connection();
    return server != nullptr && xcb_connection_has_error(server) == 0 ? server : nullptr;
}

xcb_window_t Root() {
    xcb_connection_t* server = Connection();
    return server == nullptr ? xcb_window_t{XCB_NONE} : Root_Of(server);
}

xcb_atom_t Atom(const char* name) {
    xcb_connection_t* server = Connection();
    if (server == nullptr) {
        return 0;
    }
    const auto asked =
        xcb_intern_atom(server, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(server, asked, nullptr));
    return reply == nullptr ? xcb_atom_t{0} : reply->atom;
}

std::vector<std::uint32_t> Items(xcb_window_t window, const char* property) {
    const auto reply = Property(window, property);
    if (reply == nullptr || reply->format != 32) {
        return {};
    }
    const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {first, first + reply->value_len};
}

QByteArray Bytes(xcb_window_t window, const char* property) {
    const auto reply = Property(window, property);
    if (reply == nullptr || reply->format != 8) {
        return {};
    }
    return {static_cast<const char*>(xcb_get_property_value(reply.get())),
            static_cast<qsizetype>(reply->value_len)};
}

void Set_Items(xcb_window_t window, const char* property, xcb_atom_t type,
               const std::vector<std::uint32_t>& items) {
    if (xcb_connection_t* server = Connection()) {
        Finish(server, xcb_change_property_checked(
                           server, XCB_PROP_MODE_REPLACE, window, Atom(property), type, 32,
                           static_cast<std::uint32_t>(items.size()), items.data()));
    }
}

void Remove_Property(xcb_window_t window, const char* property) {
    if (xcb_connection_t* server = Connection()) {
        Finish(server, xcb_delete_property_checked(server, window, Atom(property)));
    }
}

void Tell_Manager(xcb_window_t window, const char* message,
                  const std::array<std::uint32_t, 5>& data) {
    xcb_connection_t* server = Connection();
    if (server == nullptr) {
        return;
    }
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = Atom(message);
    std::copy(data.begin(), data.end(), std::begin(event.data.data32));
    Finish(server, xcb_send_event_checked(server, 0, Root(),
                                          XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY |
                                              XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                                          reinterpret_cast<const char*>(&event)));
}

bool Is_Mapped(xcb_window_t window) {
    return Map_State(window) != XCB_MAP_STATE_UNMAPPED;
}

bool Is_OnView(xcb_window_t window) {
    return Map_State(window) == XCB_MAP_STATE_VIEWABLE;
}

bool Is_Ours(xcb_window_t window) {
    const auto process = Items(window, "_NET_WM_PID");
    const QWindowList ours = QGuiApplication::allWindows();
    return (!process.empty() && process.front() == static_cast<std::uint32_t>(getpid())) ||
           std::any_of(ours.begin(), ours.end(), [&](const QWindow* one) {
               return one->handle() != nullptr && one->winId() == window;
           });
}

bool Manager_Knows(const char* name) {
    const auto known = Items(Root(), "_NET_SUPPORTED");
    return std::find(known.begin(), known.end(), Atom(name)) != known.end();
}

bool Has_Manager() {
    return !Items(Root(), "_NET_SUPPORTING_WM_CHECK").empty();
}

std::uint32_t Server_Time() {
    if (Connection() == nullptr) {
        return XCB_CURRENT_TIME;
    }
    // A connection of its own: the toolkit would take the answer from its own one.
    xcb_connection_t* server = xcb_connect(nullptr, nullptr);
    const std::uint32_t time =
        xcb_connection_has_error(server) == 0 ? Ask_Time(server) : XCB_CURRENT_TIME;
    xcb_disconnect(server);
    return time;
}

} // namespace platform::x11
