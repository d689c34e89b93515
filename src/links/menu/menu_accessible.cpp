#include "links/menu/menu_accessible.h"

#include "controls/accessible.h"
#include "links/menu/links_menu_v2.h"

namespace {

class AccessibleMenu : public AccessibleParts {
public:
    explicit AccessibleMenu(LinksMenuV2* menu) : AccessibleParts(menu, QAccessible::PopupMenu) {}

    int childCount() const override { return Menu()->Row_Count(); }
    QAccessible::Role Part_Role(int row) const override {
        return Menu()->Kind(row) == MenuRowKind::Separator ? QAccessible::Separator
                                                           : QAccessible::MenuItem;
    }
    QAccessible::State Part_State(int row) const override {
        QAccessible::State now;
        now.invisible = !Menu()->Is_Open();
        now.focusable = Menu()->Kind(row) != MenuRowKind::Separator;
        now.focused = Menu()->Selected_Row() == row;
        now.hasPopup = Menu()->Kind(row) == MenuRowKind::Category;
        return now;
    }
    QString Part_Text(int row, QAccessible::Text kind) const override {
        if (kind == QAccessible::Name)
            return Menu()->Caption(row);
        return kind == QAccessible::Description ? Menu()->Item(row).Description : QString();
    }
    QRect Part_Rect(int row) const override { return Menu()->Row_Rect(row); }
    void Press_Part(int row) override { Menu()->Click_Row(row); }

    QAccessibleInterface* focusChild() const override { return child(Menu()->Selected_Row()); }

private:
    LinksMenuV2* Menu() const { return static_cast<LinksMenuV2*>(widget()); }
};

} // namespace

void Install_MenuAccessibility() {
    Install_Accessible<LinksMenuV2, AccessibleMenu>();
}
