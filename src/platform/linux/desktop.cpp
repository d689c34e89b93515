#include "platform/desktop.h"

#include "platform/linux/x11.h"
#include "platform/media.h"
#include "platform/providers.h"

#include <QApplication>
#include <QCursor>
#include <QScreen>

#include <algorithm>
#include <utility>

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

class LinuxDesktop : public Desktop {
public:
    std::vector<QRect> Screens() override {
        const QList<QScreen*> found = QGuiApplication::screens(); // the primary one first
        if (!found.isEmpty()) {
            last.clear();
            for (const QScreen* screen : found) {
                last.push_back(screen->geometry());
            }
        }
        return last;
    }

    void On_ScreensChange(std::function<void()> changed) override {
        handler = std::move(changed);
        if (watch != nullptr || qGuiApp == nullptr) {
            return;
        }
        watch = std::make_unique<QObject>();
        const auto tell = [this] {
            if (handler) {
                handler();
            }
        };
        const auto follow = [this, tell](QScreen* screen) {
            QObject::connect(screen, &QScreen::geometryChanged, watch.get(), tell);
        };
        for (QScreen* screen : QGuiApplication::screens()) {
            follow(screen);
        }
        QObject::connect(qGuiApp, &QGuiApplication::screenAdded, watch.get(),
                         [tell, follow](QScreen* screen) {
                             follow(screen);
                             tell();
                         });
        // While it is told, the screen that goes is still among the others.
        QObject::connect(qGuiApp, &QGuiApplication::screenRemoved, watch.get(), tell,
                         Qt::QueuedConnection);
        QObject::connect(qGuiApp, &QGuiApplication::primaryScreenChanged, watch.get(), tell);
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
            if (!x11::Is_Ours(window) && !Is_Furniture(window)) {
                x11::Tell_Manager(window, "WM_CHANGE_STATE", {IconicState, 0, 0, 0, 0});
            }
        }
    }

private:
    std::vector<QRect> last{QRect(0, 0, 1024, 768)}; // while no screen is connected
    std::unique_ptr<QObject> watch;
    std::function<void()> handler;
};

} // namespace

std::unique_ptr<Desktop> Make_Desktop() {
    return std::make_unique<LinuxDesktop>();
}

} // namespace platform
