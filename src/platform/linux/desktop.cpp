#include "platform/desktop.h"

#include "platform/linux/x11.h"
#include "platform/media.h"
#include "platform/providers.h"

#include <QApplication>
#include <QCursor>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <unistd.h>

namespace platform {

namespace {

constexpr int TwipsPerPixel = 15;
constexpr std::uint32_t IconicState = 3;

// Windows that no user would call a window: panels and the desktop's own background.
bool Is_Furniture(xcb_window_t window) {
    const auto types = x11::Items(window, "_NET_WM_WINDOW_TYPE");
    const auto isOne = [&](const char* name) {
        return std::find(types.begin(), types.end(), x11::Atom(name)) != types.end();
    };
    return isOne("_NET_WM_WINDOW_TYPE_DOCK") || isOne("_NET_WM_WINDOW_TYPE_DESKTOP");
}

bool Is_Ours(xcb_window_t window) {
    const auto process = x11::Items(window, "_NET_WM_PID");
    const QWindowList ours = QGuiApplication::allWindows();
    return (!process.empty() && process.front() == static_cast<std::uint32_t>(getpid())) ||
           std::any_of(ours.begin(), ours.end(), [&](const QWindow* one) {
               return one->handle() != nullptr && one->winId() == window;
           });
}

class LinuxDesktop : public Desktop {
public:
    Size Screen_Size() override {
        if (const QScreen* screen = QGuiApplication::primaryScreen()) {
            last = {screen->geometry().width(), screen->geometry().height()};
        }
        return last;
    }

    int TwipsPerPixelX() override { return TwipsPerPixel; }
    int TwipsPerPixelY() override { return TwipsPerPixel; }

    std::optional<Point> Cursor_Position() override {
        if (QGuiApplication::primaryScreen() == nullptr) {
            return std::nullopt;
        }
        const QPoint place = QCursor::pos();
        return Point{place.x(), place.y()};
    }

    void Beep() override {
        if (!Media::Is_Provided() || !Media::Get().Play_Tone()) {
            QApplication::beep();
        }
    }

    QString Foreground_Title() override {
        const auto active = x11::Items(x11::Root(), "_NET_ACTIVE_WINDOW");
        if (active.empty() || active.front() == XCB_NONE) {
            return {};
        }
        const QByteArray title = x11::Bytes(active.front(), "_NET_WM_NAME");
        return title.isEmpty() ? QString::fromLatin1(x11::Bytes(active.front(), "WM_NAME"))
                               : QString::fromUtf8(title);
    }

    void Minimize_All() override {
        for (const xcb_window_t window : x11::Items(x11::Root(), "_NET_CLIENT_LIST")) {
            if (!Is_Ours(window) && !Is_Furniture(window)) {
                x11::Tell_Manager(window, "WM_CHANGE_STATE", {IconicState, 0, 0, 0, 0});
            }
        }
    }

private:
    Size last{1024, 768}; // while no screen is connected
};

} // namespace

std::unique_ptr<Desktop> Make_Desktop() {
    return std::make_unique<LinuxDesktop>();
}

} // namespace platform
