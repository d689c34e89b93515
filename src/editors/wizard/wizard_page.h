// One page of the wizard: shows its part of the state and writes into it what its user enters.
#pragma once

#include "editors/wizard/page_parts.h"
#include "editors/wizard/wizard_rules.h"

#include <QWidget>

class WizardPageView : public QWidget {
    Q_OBJECT
public:
    static constexpr int Width = 443; // pixels
    static constexpr int Height = 222;

    WizardPageView(WizardState& wizardState, int helpNumber, QWidget* parent);

    // As the page comes into view, or the wizard has changed the state.
    virtual void Show_State() {}
    // Null: the page has none.
    virtual QWidget* First_Field() const { return nullptr; }
    // That the calendar fills.
    virtual QWidget* Date_Field() const { return First_Field(); }

Q_SIGNALS:
    // For the date box of the page that is in view.
    void CalendarAsked();

protected:
    WizardState& state;
};
