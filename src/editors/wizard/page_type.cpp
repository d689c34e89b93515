#include "editors/wizard/page_type.h"

#include "editors/wizard/click_label.h"

#include <QLabel>

using namespace Qt::StringLiterals;
using namespace page_parts;

namespace {

constexpr int FirstTop = 20;
constexpr int Pitch = 33;
constexpr int TextLeft = 112;

struct TypeText {
    QString Caption;
    QString Text;
    QString Example;
};

const std::array<TypeText, WizardTypeCount> typeTexts{{
    {u"Exact date:"_s, u"The reminder will be displayed on a single day."_s, u"On 10/05/08"_s},
    {u"Every day:"_s, u"The reminder will be displayed every day."_s, {}},
    {u"Weekday:"_s, u"The reminder will be displayed on the selected days every week."_s,
     u"Every Monday and Friday"_s},
    {u"Every month:"_s, u"The reminder will be displayed on the selected day each month."_s,
     u"Every 5th of the month"_s},
    {u"Every X days:"_s, u"The reminder will be displayed every X days."_s, u"Every 2 days"_s},
    {u"Birthday:"_s, u"The reminder will be displayed a single day every year."_s, {}},
}};

} // namespace

WizardTypePage::WizardTypePage(WizardState& wizardState, QWidget* parent)
    : WizardPageView(wizardState, 40, parent) {
    Add_Text(this, u"Select the reminder type:"_s, 0, 0, 0, TextLook::Heading);
    for (int i = 0; i < WizardTypeCount; ++i)
        Add_Type(i);
    Option2[static_cast<std::size_t>(state.Option2)]->setChecked(true);
}

void WizardTypePage::Add_Type(int index) {
    const auto at = static_cast<std::size_t>(index);
    const TypeText& text = typeTexts[at];
    const int top = FirstTop + index * Pitch;
    QRadioButton* option = Add_Option(this, u"Option2_%1"_s.arg(index), text.Caption, 8, top);
    option->setAccessibleDescription(text.Text + u' ' + text.Example);
    new ClickFilter(Add_Text(this, text.Text, TextLeft, top + 2), option);
    if (!text.Example.isEmpty())
        new ClickFilter(Add_Text(this, text.Example, TextLeft, top + 16, 0, TextLook::Hint),
                        option);
    connect(option, &QRadioButton::toggled, this, [this, index](bool on) {
        if (on)
            state.Option2 = static_cast<WizardType>(index);
    });
    Option2[at] = option;
}

QWidget* WizardTypePage::First_Field() const {
    return Option2[static_cast<std::size_t>(state.Option2)];
}
