#include "controls/wb_button_accessible.h"

#include "controls/wb_button.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace {

class AccessibleButton : public QAccessibleWidget {
public:
    explicit AccessibleButton(wbButton* button) : QAccessibleWidget(button, QAccessible::Button) {}

    // Worked out when a reader asks: a name told to the toolkit starts its bridge to the readers,
    // and that costs the start of the program its time.
    QString text(QAccessible::Text kind) const override {
        const auto* button = static_cast<const wbButton*>(widget());
        QString told = QAccessibleWidget::text(kind);
        if (kind != QAccessible::Name || !told.isEmpty()) {
            return told;
        }
        return button->Caption().isEmpty() ? button->toolTip() : button->Caption();
    }
    QStringList actionNames() const override {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override {
        auto* button = static_cast<wbButton*>(widget());
        if (name != pressAction()) {
            QAccessibleWidget::doAction(name);
        } else if (button->isEnabled()) {
            Q_EMIT button->Click();
        }
    }
};

QAccessibleInterface* Make_Accessible(const QString&, QObject* object) {
    auto* button = qobject_cast<wbButton*>(object);
    return button == nullptr ? nullptr : new AccessibleButton(button);
}

} // namespace

void Install_ButtonAccessibility() {
    static const bool installed = [] {
        QAccessible::installFactory(Make_Accessible);
        return true;
    }();
    Q_UNUSED(installed)
}
