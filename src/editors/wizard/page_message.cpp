#include "editors/wizard/page_message.h"

#include "controls/text_fields.h"
#include "editors/wizard/sample_picture.h"

#include <QLabel>

using namespace Qt::StringLiterals;
using namespace page_parts;

namespace {

constexpr int SampleTop = 142;

} // namespace

WizardMessagePage::WizardMessagePage(WizardState& wizardState, QWidget* parent)
    : WizardPageView(wizardState, 44, parent) {
    Add_Text(this, u"Enter the reminder message:"_s, 0, 0, 0, TextLook::Heading);
    Text5 = Add_Memo(this, u"Text5"_s, u"Reminder message"_s, {0, 20, Width, 82});
    Add_Text(this, u"This message will be visible when the reminder is displayed."_s, 0, 106, 0,
             TextLook::Hint);
    Add_Text(this, u"Preview:"_s, 0, 125, 0, TextLook::Heading);
    samplePicture = new SamplePicture({0, SampleTop, Width, Height - SampleTop}, this);
    connect(Text5, &MemoField::textChanged, this, [this] {
        state.Text5 = Memo_Text(Text5);
        Show_State();
    });
}

void WizardMessagePage::Show_State() {
    samplePicture->Show_Sample(state.Option3, state.Text5);
}

QWidget* WizardMessagePage::First_Field() const {
    return Text5;
}
