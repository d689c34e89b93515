#include "controls/window_shadows.h"

#include "platform/window.h"
#include "settings/global_settings.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

WindowShadows::WindowShadows(QObject* parent) : QObject(parent) {
    qApp->installEventFilter(this);
}

bool WindowShadows::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Show || !watched->isWidgetType()) {
        return false;
    }
    const auto* window = static_cast<QWidget*>(watched);
    // Menus and lists have what the toolkit gives them.
    if (window->isWindow() && window->windowType() != Qt::Popup && Global_IsWinXP) {
        platform::Windows::Get().Set_Shadow(window->winId(), Global_UseShadows);
    }
    return false;
}
