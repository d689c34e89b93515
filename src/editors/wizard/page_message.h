// "Message": the text of the reminder, with a preview of how it shows.
#pragma once

#include "editors/wizard/wizard_page.h"

class SamplePicture;

class WizardMessagePage : public WizardPageView {
    Q_OBJECT
public:
    WizardMessagePage(WizardState& wizardState, QWidget* parent);
    void Show_State() override;
    QWidget* First_Field() const override;

private:
    MemoField* Text5 = nullptr;
    SamplePicture* samplePicture = nullptr;
};
