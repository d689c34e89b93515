#include "editors/wizard/page_misc.h"

#include "controls/combo_box.h"

#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace page_parts;

WizardMiscPage::WizardMiscPage(WizardState& wizardState, QWidget* parent)
    : WizardPageView(wizardState, 45, parent) {
    Add_Text(this, u"*These settings are optional"_s, 0, 0, 0, TextLook::Hint);
    Add_Text(this, u"Title:"_s, 0, 24, 0, TextLook::Heading);
    Text7 = Add_Field(this, u"Text7"_s, u"Title"_s, {0, 40, 220, FieldHeight});
    Add_Text(this, u"Select the category:"_s, 0, 72, 0, TextLook::Heading);
    Combo1 = Add_CategoryBox(this, {0, 88, 220, FieldHeight + 1});
    Add_Text(this,
             u"They are used to organize the reminders, for easier browsing. You can skip this "
             "page clicking the \"Next\" button."_s,
             0, 122, Width);
    Add_Text(this, u"To add a new category type the name in the box, and click \"Next\""_s, 0, 160,
             Width);
    connect(Combo1, &ComboBox::editTextChanged, this,
            [this](const QString& text) { state.Combo1 = text; });
}

void WizardMiscPage::Show_State() {
    Text7->setText(state.Text7);
}

QWidget* WizardMiscPage::First_Field() const {
    return Text7;
}
