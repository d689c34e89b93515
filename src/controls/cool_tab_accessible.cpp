#include "controls/cool_tab_accessible.h"

#include "controls/cool_tab.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>

#include <map>

namespace {

class AccessibleTab : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    AccessibleTab(CoolTab* owner, int number) : strip(owner), index(number) {}

    bool isValid() const override { return !strip.isNull() && index < strip->TabCount(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return strip ? strip->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(strip);
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::PageTab; }
    QRect rect() const override {
        if (!isValid())
            return {};
        const QRect place = strip->Tab_Rect(index);
        return {strip->mapToGlobal(place.topLeft()), place.size()};
    }
    QString text(QAccessible::Text kind) const override {
        return isValid() && kind == QAccessible::Name ? strip->Tab_Caption(index) : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QAccessible::State state() const override {
        QAccessible::State now;
        now.invalid = !isValid();
        if (isValid()) {
            now.selectable = true;
            now.focusable = true;
            now.disabled = !strip->isEnabled();
            now.invisible = !strip->isVisible();
            now.selected = strip->Selected() == index;
            now.focused = now.selected && strip->hasFocus();
        }
        return now;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override {
        if (isValid() && name == pressAction())
            strip->Choose(index);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    QPointer<CoolTab> strip;
    int index;
};

class AccessibleStrip : public QAccessibleWidget {
public:
    explicit AccessibleStrip(CoolTab* strip) : QAccessibleWidget(strip, QAccessible::PageTabList) {}
    ~AccessibleStrip() override {
        for (const auto& [index, id] : known)
            QAccessible::deleteAccessibleInterface(id);
    }
    AccessibleStrip(const AccessibleStrip&) = delete;
    AccessibleStrip& operator=(const AccessibleStrip&) = delete;

    int childCount() const override { return Strip()->TabCount(); }
    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount())
            return nullptr;
        const auto found = known.find(index);
        if (found != known.end())
            return QAccessible::accessibleInterface(found->second);
        auto* tab = new AccessibleTab(Strip(), index);
        known[index] = QAccessible::registerAccessibleInterface(tab);
        return tab;
    }
    int indexOfChild(const QAccessibleInterface* tab) const override {
        for (const auto& [index, id] : known) {
            if (QAccessible::accessibleInterface(id) == tab)
                return index;
        }
        return -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        for (int i = 0; i < childCount(); ++i) {
            if (child(i)->rect().contains(x, y))
                return child(i);
        }
        return nullptr;
    }
    QAccessibleInterface* focusChild() const override {
        return Strip()->hasFocus() ? child(Strip()->Selected()) : nullptr;
    }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? Strip()->Tab_Caption(Strip()->Selected())
                                          : QAccessibleWidget::text(kind);
    }

private:
    CoolTab* Strip() const { return static_cast<CoolTab*>(widget()); }
    mutable std::map<int, QAccessible::Id> known;
};

QAccessibleInterface* Make_Accessible(const QString&, QObject* object) {
    auto* strip = qobject_cast<CoolTab*>(object);
    return strip == nullptr ? nullptr : new AccessibleStrip(strip);
}

} // namespace

void Install_CoolTabAccessibility() {
    static const bool installed = [] {
        QAccessible::installFactory(Make_Accessible);
        return true;
    }();
    Q_UNUSED(installed)
}

void Tell_TabSelection(CoolTab* strip) {
    if (!QAccessible::isActive() || !strip->isVisible() || strip->Selected() == -1)
        return;
    for (const auto kind : {QAccessible::Selection, QAccessible::Focus}) {
        if (kind == QAccessible::Focus && !strip->hasFocus())
            continue;
        QAccessibleEvent event(strip, kind);
        event.setChild(strip->Selected());
        QAccessible::updateAccessibility(&event);
    }
}
