// "Date": one sub-page for each type of reminder, of which the one of the chosen type is in view.
#pragma once

#include "editors/wizard/wizard_page.h"

#include <array>

class DayGrid;

class WizardDatePage : public WizardPageView {
    Q_OBJECT
public:
    WizardDatePage(WizardState& wizardState, QWidget* parent);
    void Show_State() override;
    QWidget* First_Field() const override;

private:
    QWidget* Sub_Page(WizardType type, const QString& heading);
    void Build_ExactDate();
    void Build_EveryDay();
    void Build_Weekdays();
    void Build_EveryMonth();
    void Build_EveryXDays();
    void Build_Birthday();

    std::array<QWidget*, WizardTypeCount> DateParsPictureBox{};
    std::array<QWidget*, WizardTypeCount> firstFields{};
    QLineEdit* Text1 = nullptr;
    QLineEdit* Text3 = nullptr;
    QLabel* Label13 = nullptr;
    DayGrid* DaysLabel = nullptr;
};
