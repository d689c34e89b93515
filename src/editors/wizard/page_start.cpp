#include "editors/wizard/page_start.h"

#include "controls/click_filter.h"
#include "controls/wb_button.h"
#include "core/date_text.h"
#include "editors/wizard/wizard_text.h"

#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace page_parts;

namespace {

constexpr int TextLeft = 122;
constexpr int StartOnTop = 58;
constexpr int FieldTop = 82;

} // namespace

WizardStartPage::WizardStartPage(WizardState& wizardState, QWidget* parent)
    : WizardPageView(wizardState, 46, parent) {
    Build_Choices();
    Text8 = Add_Field(this, u"Text8"_s, u"Start date"_s, {TextLeft, FieldTop, 100, FieldHeight});
    // The pattern that the box is really read by.
    Add_Text(this, u"(%1)"_s.arg(Global_DateFormat), TextLeft + 108, FieldTop + 4, 0,
             TextLook::Hint);
    wbButton5 = Add_CalendarButton(this, u"wbButton5"_s, {TextLeft, FieldTop + 28});
    connect(wbButton5, &wbButton::Click, this, &WizardPageView::CalendarAsked);
    sentence = Add_Text(this, StartDate_Sentence({}), TextLeft, FieldTop + 64, Width - TextLeft);
    sentence->setObjectName(u"Label12"_s);
    Add_Text(this, u"It comes from the day after on; on the start date itself it stays quiet."_s,
             TextLeft, FieldTop + 84, Width - TextLeft, TextLook::Hint);
    connect(Text8, &QLineEdit::textChanged, this, [this](const QString& text) {
        state.Text8 = text;
        sentence->setText(StartDate_Sentence(text));
    });
    Show_State();
}

void WizardStartPage::Build_Choices() {
    Add_Text(this, u"Start date:"_s, 0, 0, 0, TextLook::Heading);
    const std::array<QString, 2> captions{u"Always active: "_s, u"Start on:"_s};
    const std::array<QString, 2> texts{
        u"The reminder will be activated when you finish the wizard."_s,
        // The wording is meant to stay.
        u"The reminder will activated on the selected date."_s};
    for (int i = 0; i < 2; ++i) {
        const auto at = static_cast<std::size_t>(i);
        const int top = i == 0 ? 24 : StartOnTop;
        Option1[at] = Add_Option(this, u"Option1_%1"_s.arg(i), captions[at], 8, top);
        Option1[at]->setAccessibleDescription(texts[at]);
        new ClickFilter(Add_Text(this, texts[at], TextLeft, top + 2, Width - TextLeft),
                        Option1[at]);
        connect(Option1[at], &QRadioButton::toggled, this, [this, i](bool on) {
            if (on)
                Choose(static_cast<StartChoice>(i));
        });
    }
}

void WizardStartPage::Choose(StartChoice choice) {
    state.Option1 = choice;
    if (wbButton5 == nullptr)
        return;
    Text8->setEnabled(choice == StartChoice::StartOn);
    wbButton5->setEnabled(choice == StartChoice::StartOn);
    sentence->setEnabled(choice == StartChoice::StartOn);
}

void WizardStartPage::Show_State() {
    const bool hasStart = Has_StartDate(state.Option2);
    // A choice made for another type does not stay set behind a blocked button.
    if (!hasStart)
        state.Option1 = StartChoice::AlwaysActive;
    Option1[1]->setEnabled(hasStart);
    Option1[static_cast<std::size_t>(state.Option1)]->setChecked(true);
    Text8->setText(state.Text8);
    Choose(state.Option1);
}

QWidget* WizardStartPage::First_Field() const {
    return Option1[static_cast<std::size_t>(state.Option1)];
}

QWidget* WizardStartPage::Date_Field() const {
    return Text8;
}
