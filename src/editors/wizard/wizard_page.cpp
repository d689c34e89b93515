#include "editors/wizard/wizard_page.h"

#include "controls/tooltip_picture.h"

namespace {

constexpr int HelpPictureWidth = 18;

} // namespace

WizardPageView::WizardPageView(WizardState& wizardState, int helpNumber, QWidget* parent)
    : QWidget(parent), state(wizardState) {
    resize(Width, Height);
    hide();
    new TooltipPicture(helpNumber, Width - HelpPictureWidth, 0, this);
}
