#include "editors/list/card_list_accessible.h"

#include "controls/accessible.h"
#include "editors/list/card_list.h"

namespace {

class AccessibleCard : public AccessiblePress<CardView> {
public:
    explicit AccessibleCard(CardView* card) : AccessiblePress(card, QAccessible::ListItem) {}

    QAccessible::State state() const override {
        QAccessible::State told = QAccessibleWidget::state();
        told.selectable = true;
        told.selected = Own()->Is_Highlighted();
        return told;
    }

protected:
    void Press() override { Q_EMIT Own()->Click(); }
};

class AccessibleList : public QAccessibleWidget {
public:
    explicit AccessibleList(CardList* list) : QAccessibleWidget(list, QAccessible::List) {}
};

} // namespace

void Install_CardAccessibility() {
    Install_Accessible<CardView, AccessibleCard>();
    Install_Accessible<CardList, AccessibleList>();
}
