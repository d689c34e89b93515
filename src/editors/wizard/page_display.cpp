#include "editors/wizard/page_display.h"

#include "controls/chk_box.h"
#include "controls/click_filter.h"
#include "editors/wizard/sample_picture.h"

#include <QLabel>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace page_parts;

namespace {

constexpr int FirstTop = 18;
constexpr int Pitch = 36;
constexpr int TextLeft = 58;
constexpr int TextBelow = 18;   // its option
constexpr int SampleBelow = 22; // the box above it

struct ModeText {
    QString Caption;
    QString Text;
};

const std::array<ModeText, 3> modeTexts{{
    {u"Normal:"_s, u"The reminder will be displayed inside the toolbar."_s},
    {u"Important:"_s, u"The reminder will be displayed on a window next to the toolbar."_s},
    {u"Very important:"_s,
     u"The reminder will be displayed on a window at the center of the screen."_s},
}};

} // namespace

WizardDisplayPage::WizardDisplayPage(WizardState& wizardState, QWidget* parent)
    : WizardPageView(wizardState, 43, parent) {
    Add_Text(this, u"Select the display mode:"_s, 0, 0, 0, TextLook::Heading);
    int top = FirstTop;
    for (int i = 0; i < 3; ++i)
        top += Add_Mode(i, top);
    Check4 = Add_Check(this, u"Check4"_s, u"Minimize running applications"_s, TextLeft + 18,
                       top - 2, [this](bool on) { state.Check4 = on; });
    const int sampleTop = Check4->y() + SampleBelow;
    samplePicture = new SamplePicture({0, sampleTop, Width, Height - sampleTop}, this);
    Option3[static_cast<std::size_t>(state.Option3)]->setChecked(true);
    Show_State();
}

// Returns how much room it takes.
int WizardDisplayPage::Add_Mode(int index, int top) {
    const auto at = static_cast<std::size_t>(index);
    const auto mode = static_cast<ReminderType>(index);
    QRadioButton* option =
        Add_Option(this, u"Option3_%1"_s.arg(index), modeTexts[at].Caption, TextLeft, top);
    option->setAccessibleDescription(modeTexts[at].Text);
    new ClickFilter(new ModePicture(mode, {0, top}, this), option);
    const int textLeft = TextLeft + 18;
    QLabel* text = Add_Text(this, modeTexts[at].Text, textLeft, top + TextBelow, Width - textLeft);
    new ClickFilter(text, option);
    connect(option, &QRadioButton::toggled, this, [this, mode](bool on) {
        if (!on)
            return;
        state.Option3 = mode;
        Show_State();
    });
    Option3[at] = option;
    return std::max(Pitch, TextBelow + text->height() + 3);
}

void WizardDisplayPage::Show_State() {
    if (samplePicture == nullptr)
        return;
    const bool centered = state.Option3 == ReminderType::Centered;
    Check4->Set_Blocked(!centered);
    Check4->Set_Ticked(centered && state.Check4);
    samplePicture->Show_Sample(state.Option3, state.Text5.isEmpty() ? u"Reminder"_s : state.Text5);
}

QWidget* WizardDisplayPage::First_Field() const {
    return Option3[static_cast<std::size_t>(state.Option3)];
}
