// "Start date": from when on the reminder is active.
#pragma once

#include "editors/wizard/wizard_page.h"

#include <array>

class WizardStartPage : public WizardPageView {
    Q_OBJECT
public:
    WizardStartPage(WizardState& wizardState, QWidget* parent);
    void Show_State() override;
    QWidget* First_Field() const override;
    QWidget* Date_Field() const override;

private:
    void Build_Choices();
    void Choose(StartChoice choice);

    std::array<QRadioButton*, 2> Option1{};
    QLineEdit* Text8 = nullptr;
    wbButton* wbButton5 = nullptr;
    QLabel* sentence = nullptr;
};
