// "Type": what kind of date the reminder has.
#pragma once

#include "editors/wizard/wizard_page.h"

#include <array>

class WizardTypePage : public WizardPageView {
    Q_OBJECT
public:
    WizardTypePage(WizardState& wizardState, QWidget* parent);
    QWidget* First_Field() const override;

private:
    QRadioButton* Add_Type(int index);
    void Lay_Out(int textLeft);

    std::array<QRadioButton*, WizardTypeCount> Option2{};
};
