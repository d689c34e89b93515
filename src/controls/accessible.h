// What screen readers are told of the program's own controls.
#pragma once

#include <QAccessibleWidget>

#include <map>

// For all controls of a class; more than once does nothing.
template <class Control, class Told>
void Install_Accessible() {
    static const bool installed = [] {
        QAccessible::installFactory([](const QString&, QObject* object) -> QAccessibleInterface* {
            auto* control = qobject_cast<Control*>(object);
            return control == nullptr ? nullptr : new Told(control);
        });
        return true;
    }();
    Q_UNUSED(installed)
}

// A control that does one thing when it is pressed.
template <class Control>
class AccessiblePress : public QAccessibleWidget {
public:
    AccessiblePress(Control* control, QAccessible::Role role,
                    const QStringList& actions = {pressAction()})
        : QAccessibleWidget(control, role), presses(actions) {}

    // Worked out when a reader asks: a name told to the toolkit starts its bridge to the readers,
    // and that costs the start of the program its time.
    QString text(QAccessible::Text kind) const override {
        QString told = QAccessibleWidget::text(kind);
        if constexpr (requires { Own()->Caption(); }) {
            if (kind == QAccessible::Name && told.isEmpty())
                return Own()->Caption().isEmpty() ? Own()->toolTip() : Own()->Caption();
        }
        return told;
    }
    QStringList actionNames() const override { return presses + QAccessibleWidget::actionNames(); }
    void doAction(const QString& name) override {
        if (presses.contains(name))
            Press();
        else
            QAccessibleWidget::doAction(name);
    }

protected:
    virtual void Press() = 0;
    Control* Own() const { return static_cast<Control*>(widget()); }

private:
    QStringList presses; // all mean the same
};

// A control that paints its parts (tabs, rows): each is met as a child that can be pressed.
class AccessibleParts : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;
    ~AccessibleParts() override;

    // Asked only of parts that are there.
    virtual QAccessible::Role Part_Role(int part) const = 0;
    virtual QAccessible::State Part_State(int part) const = 0;
    virtual QString Part_Text(int part, QAccessible::Text kind) const = 0;
    virtual QRect Part_Rect(int part) const = 0; // pixels of the control
    virtual void Press_Part(int part) = 0;

    int childCount() const override = 0;
    QAccessibleInterface* child(int part) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    int indexOfChild(const QAccessibleInterface* one) const override;

private:
    mutable std::map<int, QAccessible::Id> known; // those that were asked for
};
