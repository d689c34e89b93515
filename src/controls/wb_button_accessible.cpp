#include "controls/wb_button_accessible.h"

#include "controls/wb_button.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace {

class AccessibleButton : public QAccessibleWidget {
public:
    explicit AccessibleButton(wbButton* button) : QAccessibleWidget(button, QAccessible::Button) {}

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
