#include "controls/chk_box_accessible.h"

#include "controls/chk_box.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace {

class AccessibleChkBox : public QAccessibleWidget {
public:
    explicit AccessibleChkBox(ChkBox* box) : QAccessibleWidget(box, QAccessible::CheckBox) {}

    QAccessible::Role role() const override {
        return Box()->Is_Radio() ? QAccessible::RadioButton : QAccessible::CheckBox;
    }
    QAccessible::State state() const override {
        QAccessible::State now = QAccessibleWidget::state();
        now.checkable = true;
        now.checked = Box()->Is_Ticked();
        now.disabled = now.disabled || Box()->Is_Blocked();
        return now;
    }
    QString text(QAccessible::Text kind) const override {
        QString told = QAccessibleWidget::text(kind);
        if (kind != QAccessible::Name || !told.isEmpty())
            return told;
        return Box()->Caption().isEmpty() ? Box()->toolTip() : Box()->Caption();
    }
    QStringList actionNames() const override {
        return QStringList{pressAction(), toggleAction()} + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override {
        if (name == pressAction() || name == toggleAction())
            Box()->Toggle();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    ChkBox* Box() const { return static_cast<ChkBox*>(widget()); }
};

QAccessibleInterface* Make_Accessible(const QString&, QObject* object) {
    auto* box = qobject_cast<ChkBox*>(object);
    return box == nullptr ? nullptr : new AccessibleChkBox(box);
}

} // namespace

void Install_ChkBoxAccessibility() {
    static const bool installed = [] {
        QAccessible::installFactory(Make_Accessible);
        return true;
    }();
    Q_UNUSED(installed)
}
