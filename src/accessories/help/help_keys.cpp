#include "accessories/help/help_keys.h"

#include "accessories/help/frm_html_view.h"
#include "accessories/help/help.h"
#include "controls/help_topic.h"

#include <QApplication>
#include <QKeyEvent>

namespace {

bool Is_HelpKey(const QKeyEvent& event) {
    return event.key() == Qt::Key_F1 && event.modifiers() == Qt::NoModifier;
}

// A box that waits for its answer would hold the help back.
bool Waits_ForAnswer() {
    return QApplication::activeModalWidget() != nullptr ||
           QApplication::activePopupWidget() != nullptr;
}

} // namespace

HelpKeys::HelpKeys() {
    qApp->installEventFilter(this);
}

bool HelpKeys::eventFilter(QObject* watched, QEvent* event) {
    const bool isKey = event->type() == QEvent::KeyPress;
    if ((!isKey && event->type() != QEvent::WindowActivate) || !watched->isWidgetType() ||
        Waits_ForAnswer())
        return false;
    const auto& widget = static_cast<const QWidget&>(*watched);
    const QString page = HelpTopic_Of(widget);
    if (page.isEmpty())
        return false;
    if (isKey && Is_HelpKey(static_cast<const QKeyEvent&>(*event))) {
        Show_HelpPage(page);
        return true;
    }
    // The help itself stays where it is.
    if (!isKey && widget.isWindow() && qobject_cast<const frmHTMLview*>(&widget) == nullptr)
        Update_HelpTopic(page);
    return false;
}
