// "Misc*": the title and the category.
#pragma once

#include "editors/wizard/wizard_page.h"

class WizardMiscPage : public WizardPageView {
    Q_OBJECT
public:
    WizardMiscPage(WizardState& wizardState, QWidget* parent);
    void Show_State() override;
    QWidget* First_Field() const override;

private:
    QLineEdit* Text7 = nullptr;
    ComboBox* Combo1 = nullptr;
};
