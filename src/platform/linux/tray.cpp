#include "platform/tray.h"

#include "platform/providers.h"

#include <QIcon>
#include <QMenu>
#include <QSystemTrayIcon>

#include <utility>

namespace platform {

namespace {

// The toolkit's icon finds its host again by itself when the host comes back.
class LinuxTray : public Tray {
public:
    bool Is_Available() override { return QSystemTrayIcon::isSystemTrayAvailable(); }

    void Add_Icon(TrayIcon wanted) override {
        Remove_Icon();
        icon = new QSystemTrayIcon(QIcon(wanted.Picture));
        menu = new QMenu;
        Fill_Menu(wanted);
        icon->setToolTip(wanted.Tip);
        // Many hosts tell only this much of a right click: the menu has to be the icon's own.
        icon->setContextMenu(menu);
        QObject::connect(icon, &QSystemTrayIcon::activated, icon,
                         [click = std::move(wanted.On_LeftClick)](auto reason) {
                             if (reason == QSystemTrayIcon::Trigger && click) {
                                 const auto held = click; // the icon may go while it runs
                                 held();
                             }
                         });
        icon->show();
    }

    void Remove_Icon() override {
        if (icon == nullptr) {
            return;
        }
        // The call may come out of the icon's own click or menu.
        icon->hide();
        icon->disconnect();
        icon->deleteLater();
        menu->deleteLater();
        icon = nullptr;
        menu = nullptr;
    }

private:
    void Fill_Menu(const TrayIcon& wanted) {
        for (std::size_t i = 0; i < wanted.Menu.size(); ++i) {
            const TrayItem& item = wanted.Menu[i];
            if (item.Caption.isEmpty()) {
                menu->addSeparator();
                continue;
            }
            QAction* action = menu->addAction(item.Caption);
            action->setEnabled(item.Enabled);
            QObject::connect(action, &QAction::triggered, action,
                             [work = wanted.On_Menu, index = static_cast<int>(i)] {
                                 if (work) {
                                     const auto held = work;
                                     held(index);
                                 }
                             });
        }
    }

    // Removed before the toolkit goes, or left to the end of the process.
    QSystemTrayIcon* icon = nullptr;
    QMenu* menu = nullptr;
};

} // namespace

std::unique_ptr<Tray> Make_Tray() {
    return std::make_unique<LinuxTray>();
}

} // namespace platform
