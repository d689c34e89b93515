// "Display mode": where the reminder comes up.
#pragma once

#include "editors/wizard/wizard_page.h"

#include <array>

class SamplePicture;

class WizardDisplayPage : public WizardPageView {
    Q_OBJECT
public:
    WizardDisplayPage(WizardState& wizardState, QWidget* parent);
    void Show_State() override;
    QWidget* First_Field() const override;

private:
    int Add_Mode(int index, int top);

    std::array<QRadioButton*, 3> Option3{};
    ChkBox* Check4 = nullptr;
    SamplePicture* samplePicture = nullptr;
};
