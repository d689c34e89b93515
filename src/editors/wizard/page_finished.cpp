#include "editors/wizard/page_finished.h"

#include <QLabel>

using namespace Qt::StringLiterals;
using namespace page_parts;

WizardFinishedPage::WizardFinishedPage(WizardState& wizardState, QWidget* parent)
    : WizardPageView(wizardState, 47, parent) {
    Add_Text(this,
             u"You have finished the reminder set up. Click \"Finish\" to complete the process."_s,
             0, 24, Width, TextLook::Heading);
    Add_Text(this,
             u"You can later edit this reminder by clicking on the \"View reminders\" button of "
             "the main toolbar."_s,
             0, 64, Width);
}
