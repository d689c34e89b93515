// The few requests that the program makes of the X server itself. Off X11 there is no connection,
// and everything built on it does nothing.
#pragma once

#include <QByteArray>
#include <xcb/xcb.h>

#include <array>
#include <cstdint>
#include <vector>

namespace platform::x11 {

// The toolkit's connection; nullptr when it draws elsewhere or the server is gone.
xcb_connection_t* Connection();
xcb_window_t Root();
// 0 for a name that the server never heard of and may not learn.
xcb_atom_t Atom(const char* name);

// Property of 32-bit items, and of bytes; empty when the window has none.
std::vector<std::uint32_t> Items(xcb_window_t window, const char* property);
QByteArray Bytes(xcb_window_t window, const char* property);
void Set_Items(xcb_window_t window, const char* property, xcb_atom_t type,
               const std::vector<std::uint32_t>& items);
void Remove_Property(xcb_window_t window, const char* property);

// A message about a window to the window manager.
void Tell_Manager(xcb_window_t window, const char* message,
                  const std::array<std::uint32_t, 5>& data);
// Mapped at all, and on view: the workspace that it is on is the present one.
bool Is_Mapped(xcb_window_t window);
bool Is_OnView(xcb_window_t window);
// A window of this program.
bool Is_Ours(xcb_window_t window);
// A window manager of the usual kind runs.
bool Has_Manager();
// The window manager knows what the name stands for.
bool Manager_Knows(const char* name);
// The server's clock, ms; 0 (the current time) when it does not answer.
std::uint32_t Server_Time();

} // namespace platform::x11
