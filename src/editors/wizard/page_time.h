// "Time": at the start of the program, and at up to eight times of the day.
#pragma once

#include "editors/wizard/wizard_page.h"

#include <array>

class WizardTimePage : public WizardPageView {
    Q_OBJECT
public:
    WizardTimePage(WizardState& wizardState, QWidget* parent);
    void Show_State() override;
    QWidget* First_Field() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Add_Time(int index);
    void Take_Condition(std::size_t index, bool on);

    ChkBox* Check2 = nullptr;
    std::array<ChkBox*, WizardTimeCount> Check3{};
    std::array<QLineEdit*, WizardTimeCount> Text4{};
    std::array<bool, WizardTimeCount> isDefault{}; // not entered yet
    QLabel* Label26 = nullptr;
};
