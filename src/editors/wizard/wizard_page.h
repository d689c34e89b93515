// The pages of the wizard: each shows its part of the state and writes into it what its user
// enters.
#pragma once

#include "editors/wizard/wizard_rules.h"

#include <QWidget>

#include <functional>

using DateTaker = std::function<void(const QString& date)>;

class WizardPageView : public QWidget {
    Q_OBJECT
public:
    static constexpr int Width = 443; // pixels
    static constexpr int Height = 222;
    static constexpr int FieldHeight = 21;

    WizardPageView(WizardState& wizardState, int helpNumber, QWidget* parent);

    // As the page comes into view.
    virtual void Load() {}
    // Null: the page has none.
    virtual QWidget* First_Field() const { return nullptr; }

Q_SIGNALS:
    // date: on which the calendar opens; taken: gets the one that is chosen for the field.
    void Calendar_Asked(QWidget* field, const QString& date, const DateTaker& taken);

protected:
    WizardState& state;
};

WizardPageView* Make_TypePage(WizardState& state, QWidget* parent);
WizardPageView* Make_DatePage(WizardState& state, QWidget* parent);
WizardPageView* Make_TimePage(WizardState& state, QWidget* parent);
WizardPageView* Make_DisplayPage(WizardState& state, QWidget* parent);
WizardPageView* Make_MessagePage(WizardState& state, QWidget* parent);
WizardPageView* Make_MiscPage(WizardState& state, QWidget* parent);
WizardPageView* Make_StartPage(WizardState& state, QWidget* parent);
WizardPageView* Make_FinishedPage(WizardState& state, QWidget* parent);
