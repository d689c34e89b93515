#include "controls/accessible.h"

#include <QPointer>
#include <QWidget>

namespace {

// It has no object of its own: its control stands for it.
class AccessiblePart : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    AccessiblePart(QWidget* owner, int number) : control(owner), part(number) {}

    bool isValid() const override { return control != nullptr && part < Parts().childCount(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override {
        return control ? control->window()->windowHandle() : nullptr;
    }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(control);
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override {
        return isValid() ? Parts().Part_Role(part) : QAccessible::NoRole;
    }
    QString text(QAccessible::Text kind) const override {
        return isValid() ? Parts().Part_Text(part, kind) : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override {
        return isValid() ? Parts().Part_Rect(part).translated(control->mapToGlobal(QPoint()))
                         : QRect();
    }
    QAccessible::State state() const override {
        if (isValid())
            return Parts().Part_State(part);
        QAccessible::State gone;
        gone.invalid = true;
        return gone;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override {
        if (isValid() && name == pressAction())
            Parts().Press_Part(part);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    AccessibleParts& Parts() const { return static_cast<AccessibleParts&>(*parent()); }

    QPointer<QWidget> control;
    int part;
};

} // namespace

AccessibleParts::~AccessibleParts() {
    for (const auto& [part, id] : known)
        QAccessible::deleteAccessibleInterface(id);
}

QAccessibleInterface* AccessibleParts::child(int part) const {
    if (part < 0 || part >= childCount())
        return nullptr;
    QAccessible::Id& id = known[part];
    if (id == 0)
        id = QAccessible::registerAccessibleInterface(new AccessiblePart(widget(), part));
    return QAccessible::accessibleInterface(id);
}

QAccessibleInterface* AccessibleParts::childAt(int x, int y) const {
    const QPoint place = widget()->mapFromGlobal(QPoint(x, y));
    for (int part = 0; part < childCount(); ++part)
        if (Part_Rect(part).contains(place))
            return child(part);
    return nullptr;
}

int AccessibleParts::indexOfChild(const QAccessibleInterface* one) const {
    for (const auto& [part, id] : known)
        if (QAccessible::accessibleInterface(id) == one)
            return part;
    return -1;
}
