// The order of the windows on the screen, and who had the focus before, as the window manager tells
// them.
#pragma once

#include <QAbstractNativeEventFilter>
#include <xcb/xcb.h>

#include <functional>
#include <map>
#include <vector>

namespace platform::x11 {

class Stacking : public QAbstractNativeEventFilter {
public:
    Stacking();
    ~Stacking() override;

    // Brings the window to the top of its layer.
    void Raise_OverAll(xcb_window_t window);
    // The same if a window of another application is over it; those of the program that are over it
    // come along. Not in the place of a full-screen window, nor again in vain.
    void Raise_OverOthers(xcb_window_t window);
    // The window that had the focus before the one that has it now; none: XCB_NONE.
    xcb_window_t Focused_Before() const { return focusBefore; }
    void On_Restack(std::function<void()> handler) { restacked = std::move(handler); }

    bool nativeEventFilter(const QByteArray& kind, void* message, qintptr* result) override;

private:
    void Note_Focus();

    xcb_atom_t activeWindow;
    xcb_atom_t windowOrder;
    std::function<void()> restacked;
    xcb_window_t focus = XCB_NONE;
    xcb_window_t focusBefore = XCB_NONE;
    // Windows of others that stood over a window of ours when it was last raised.
    std::map<xcb_window_t, std::vector<xcb_window_t>> overIt;
};

} // namespace platform::x11
