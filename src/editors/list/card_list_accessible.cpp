#include "editors/list/card_list_accessible.h"

#include "editors/list/card_list.h"

#include <QAccessibleWidget>

namespace {

class AccessibleCard : public QAccessibleWidget {
public:
    explicit AccessibleCard(CardView* card) : QAccessibleWidget(card, QAccessible::ListItem) {}

    QAccessible::State state() const override {
        QAccessible::State told = QAccessibleWidget::state();
        told.selectable = true;
        told.selected = static_cast<const CardView*>(widget())->Is_Highlighted();
        return told;
    }
    QStringList actionNames() const override {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override {
        if (name == pressAction())
            Q_EMIT static_cast<CardView*>(widget())->Click();
        else
            QAccessibleWidget::doAction(name);
    }
};

QAccessibleInterface* Make_Accessible(const QString&, QObject* object) {
    if (auto* card = qobject_cast<CardView*>(object))
        return new AccessibleCard(card);
    if (auto* list = qobject_cast<CardList*>(object))
        return new QAccessibleWidget(list, QAccessible::List);
    return nullptr;
}

} // namespace

void Install_CardAccessibility() {
    static const bool installed = [] {
        QAccessible::installFactory(Make_Accessible);
        return true;
    }();
    Q_UNUSED(installed)
}
