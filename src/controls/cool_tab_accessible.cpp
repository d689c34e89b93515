#include "controls/cool_tab_accessible.h"

#include "controls/accessible.h"
#include "controls/cool_tab.h"

namespace {

class AccessibleStrip : public AccessibleParts {
public:
    explicit AccessibleStrip(CoolTab* strip) : AccessibleParts(strip, QAccessible::PageTabList) {}

    int childCount() const override { return Strip()->TabCount(); }
    QAccessible::Role Part_Role(int) const override { return QAccessible::PageTab; }
    QAccessible::State Part_State(int tab) const override {
        QAccessible::State now;
        now.selectable = true;
        now.focusable = true;
        now.disabled = !Strip()->isEnabled();
        now.invisible = !Strip()->isVisible();
        now.selected = Strip()->Selected() == tab;
        now.focused = now.selected && Strip()->hasFocus();
        return now;
    }
    QString Part_Text(int tab, QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? Strip()->Tab_Caption(tab) : QString();
    }
    QRect Part_Rect(int tab) const override { return Strip()->Tab_Rect(tab); }
    void Press_Part(int tab) override { Strip()->Choose(tab); }

    QAccessibleInterface* focusChild() const override {
        return Strip()->hasFocus() ? child(Strip()->Selected()) : nullptr;
    }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? Strip()->Tab_Caption(Strip()->Selected())
                                          : QAccessibleWidget::text(kind);
    }

private:
    CoolTab* Strip() const { return static_cast<CoolTab*>(widget()); }
};

} // namespace

void Install_CoolTabAccessibility() {
    Install_Accessible<CoolTab, AccessibleStrip>();
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
