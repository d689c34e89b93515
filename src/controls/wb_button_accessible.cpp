#include "controls/wb_button_accessible.h"

#include "controls/accessible.h"
#include "controls/wb_button.h"

namespace {

class AccessibleButton : public AccessiblePress<wbButton> {
public:
    explicit AccessibleButton(wbButton* button) : AccessiblePress(button, QAccessible::Button) {}

protected:
    void Press() override {
        if (Own()->isEnabled())
            Q_EMIT Own()->Click();
    }
};

} // namespace

void Install_ButtonAccessibility() {
    Install_Accessible<wbButton, AccessibleButton>();
}
