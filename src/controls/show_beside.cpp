#include "controls/show_beside.h"

#include <QApplication>
#include <QCloseEvent>
#include <QWidget>

namespace {

// The toolkit closes all popups when a window is shown.
class RefusedClose : public QObject {
protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::Close) {
            return false;
        }
        event->ignore();
        return true;
    }
};

} // namespace

void Show_BesideMenus(QWidget& window) {
    RefusedClose refused;
    if (QWidget* popup = QApplication::activePopupWidget()) {
        popup->installEventFilter(&refused);
    }
    window.show();
}
