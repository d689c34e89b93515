#include "controls/chk_box_accessible.h"

#include "controls/accessible.h"
#include "controls/chk_box.h"

namespace {

class AccessibleChkBox : public AccessiblePress<ChkBox> {
public:
    explicit AccessibleChkBox(ChkBox* box)
        : AccessiblePress(box, QAccessible::CheckBox, {pressAction(), toggleAction()}) {}

    QAccessible::Role role() const override {
        return Own()->Is_Radio() ? QAccessible::RadioButton : QAccessible::CheckBox;
    }
    QAccessible::State state() const override {
        QAccessible::State now = QAccessibleWidget::state();
        now.checkable = true;
        now.checked = Own()->Is_Ticked();
        now.disabled = now.disabled || Own()->Is_Blocked();
        return now;
    }

protected:
    void Press() override { Own()->Toggle(); }
};

} // namespace

void Install_ChkBoxAccessibility() {
    Install_Accessible<ChkBox, AccessibleChkBox>();
}
