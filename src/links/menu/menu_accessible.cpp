#include "links/menu/menu_accessible.h"

#include "links/menu/links_menu_v2.h"

#include <QAccessibleWidget>

#include <map>

namespace {

// One row. It has no object of its own: its menu stands for it.
class AccessibleRow : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    AccessibleRow(LinksMenuV2* form, int number) : menu(form), row(number) {}

    bool isValid() const override { return menu != nullptr && row < menu->Row_Count(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(menu.data());
    }
    QAccessible::Role role() const override {
        return isValid() && menu->Kind(row) == MenuRowKind::Separator ? QAccessible::Separator
                                                                      : QAccessible::MenuItem;
    }
    QString text(QAccessible::Text kind) const override {
        if (!isValid())
            return {};
        if (kind == QAccessible::Name)
            return menu->Caption(row);
        return kind == QAccessible::Description ? menu->Item(row).Description : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override {
        return isValid() ? menu->Row_Rect(row).translated(menu->mapToGlobal(QPoint(0, 0)))
                         : QRect();
    }
    QAccessible::State state() const override {
        QAccessible::State now;
        if (!isValid())
            return now;
        now.invisible = !menu->Is_Open();
        now.focusable = menu->Kind(row) != MenuRowKind::Separator;
        now.focused = menu->Selected_Row() == row;
        now.hasPopup = menu->Kind(row) == MenuRowKind::Category;
        return now;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override {
        if (isValid() && name == pressAction())
            menu->Click_Row(row);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    QPointer<LinksMenuV2> menu;
    int row;
};

class AccessibleMenu : public QAccessibleWidget {
public:
    explicit AccessibleMenu(LinksMenuV2* menu) : QAccessibleWidget(menu, QAccessible::PopupMenu) {}
    ~AccessibleMenu() override {
        for (const auto& [row, id] : rows)
            QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return Menu()->Row_Count(); }
    QAccessibleInterface* child(int row) const override {
        if (row < 0 || row >= childCount())
            return nullptr;
        const auto known = rows.find(row);
        if (known != rows.end())
            return QAccessible::accessibleInterface(known->second);
        auto* made = new AccessibleRow(Menu(), row);
        rows[row] = QAccessible::registerAccessibleInterface(made);
        return made;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        const QPoint place = Menu()->mapFromGlobal(QPoint(x, y));
        int row = 0;
        while (row < childCount() && !Menu()->Row_Rect(row).contains(place))
            ++row;
        return child(row);
    }
    int indexOfChild(const QAccessibleInterface* one) const override {
        for (const auto& [row, id] : rows) {
            if (QAccessible::accessibleInterface(id) == one)
                return row;
        }
        return -1;
    }
    QAccessibleInterface* focusChild() const override { return child(Menu()->Selected_Row()); }

private:
    LinksMenuV2* Menu() const { return static_cast<LinksMenuV2*>(widget()); }

    mutable std::map<int, QAccessible::Id> rows; // those that were asked for
};

QAccessibleInterface* Make_Accessible(const QString&, QObject* object) {
    auto* menu = qobject_cast<LinksMenuV2*>(object);
    return menu == nullptr ? nullptr : new AccessibleMenu(menu);
}

} // namespace

void Install_MenuAccessibility() {
    static const bool installed = [] {
        QAccessible::installFactory(Make_Accessible);
        return true;
    }();
    Q_UNUSED(installed)
}
