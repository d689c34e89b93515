#include "editors/wizard/page_type.h"

#include "controls/click_filter.h"

#include <QLabel>

#include <algorithm>
#include <numeric>
#include <vector>

using namespace Qt::StringLiterals;
using namespace page_parts;

namespace {

constexpr int FirstTop = 20;
constexpr int MostGap = 9; // between two types
constexpr int TextLeft = 112;
constexpr int TextBelow = 2;   // the top of its option
constexpr int TextRightOf = 4; // the options, which a wide face makes longer

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
    int textLeft = TextLeft;
    for (int i = 0; i < WizardTypeCount; ++i)
        textLeft = std::max(textLeft, Add_Type(i)->geometry().right() + TextRightOf);
    Lay_Out(textLeft);
    Option2[static_cast<std::size_t>(state.Option2)]->setChecked(true);
}

QRadioButton* WizardTypePage::Add_Type(int index) {
    const auto at = static_cast<std::size_t>(index);
    const TypeText& text = typeTexts[at];
    QRadioButton* option = Add_Option(this, u"Option2_%1"_s.arg(index), text.Caption, 8, FirstTop);
    option->setAccessibleDescription(text.Text + u' ' + text.Example);
    connect(option, &QRadioButton::toggled, this, [this, index](bool on) {
        if (on)
            state.Option2 = static_cast<WizardType>(index);
    });
    return Option2[at] = option;
}

// One type below the other, each as high as its text and its example.
void WizardTypePage::Lay_Out(int textLeft) {
    std::array<std::vector<QLabel*>, WizardTypeCount> lines;
    std::array<int, WizardTypeCount> heights{};
    for (std::size_t i = 0; i < lines.size(); ++i) {
        lines[i] = {Add_Text(this, typeTexts[i].Text, textLeft, 0, Width - textLeft)};
        if (!typeTexts[i].Example.isEmpty())
            lines[i].push_back(Add_Text(this, typeTexts[i].Example, textLeft, 0, Width - textLeft,
                                        TextLook::Hint));
        heights[i] = TextBelow;
        for (const QLabel* line : lines[i])
            heights[i] += line->height();
        heights[i] = std::max(heights[i], Option2[i]->height());
    }
    const int needed = std::accumulate(heights.begin(), heights.end(), FirstTop);
    const int gap = std::clamp((Height - needed) / (WizardTypeCount - 1), 0, MostGap);
    int top = FirstTop;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        Option2[i]->move(Option2[i]->x(), top);
        int below = top + TextBelow;
        for (QLabel* line : lines[i]) {
            line->move(textLeft, below);
            below += line->height();
            new ClickFilter(line, Option2[i]);
        }
        top += heights[i] + gap;
    }
}

QWidget* WizardTypePage::First_Field() const {
    return Option2[static_cast<std::size_t>(state.Option2)];
}
