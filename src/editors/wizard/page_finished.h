// "Finished": the closing texts.
#pragma once

#include "editors/wizard/wizard_page.h"

class WizardFinishedPage : public WizardPageView {
    Q_OBJECT
public:
    WizardFinishedPage(WizardState& wizardState, QWidget* parent);
};
