// What all pages have in common, the first page, "Type": what kind of date the reminder has, and
// the last, "Finished".
#include "editors/wizard/wizard_page.h"

#include "controls/click_filter.h"
#include "controls/page_parts.h"
#include "controls/tooltip_picture.h"

#include <QLabel>
#include <QRadioButton>

#include <algorithm>
#include <array>
#include <numeric>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int HelpPictureWidth = 18;
constexpr int FirstTop = 20;
constexpr int MostGap = 9; // between two types
constexpr int TextLeft = 112;
constexpr int TextBelow = 2;   // the top of its option
constexpr int TextRightOf = 4; // the options, which a wide face makes longer

const struct {
    QString Caption;
    QString Text;
    QString Example;
} types[WizardTypeCount] = {
    {u"Exact date:"_s, u"The reminder will be displayed on a single day."_s, u"On 10/05/08"_s},
    {u"Every day:"_s, u"The reminder will be displayed every day."_s, {}},
    {u"Weekday:"_s, u"The reminder will be displayed on the selected days every week."_s,
     u"Every Monday and Friday"_s},
    {u"Every month:"_s, u"The reminder will be displayed on the selected day each month."_s,
     u"Every 5th of the month"_s},
    {u"Every X days:"_s, u"The reminder will be displayed every X days."_s, u"Every 2 days"_s},
    {u"Birthday:"_s, u"The reminder will be displayed a single day every year."_s, {}},
};

class TypePage : public WizardPageView {
public:
    TypePage(WizardState& wizardState, QWidget* parent) : WizardPageView(wizardState, 40, parent) {
        Add_Text(this, u"Select the reminder type:"_s, 0, 0, TextLook::Heading);
        int textLeft = TextLeft;
        for (const WizardType type :
             {WizardType::ExactDate, WizardType::EveryDay, WizardType::Weekday,
              WizardType::EveryMonth, WizardType::EveryXDays, WizardType::Birthday})
            textLeft = std::max(textLeft, Add_Type(type)->geometry().right() + TextRightOf);
        Lay_Out(textLeft);
        options[static_cast<std::size_t>(state.Type)]->setChecked(true);
    }
    QWidget* First_Field() const override { return options[static_cast<std::size_t>(state.Type)]; }

private:
    QRadioButton* Add_Type(WizardType type) {
        const auto& text = types[static_cast<std::size_t>(type)];
        QRadioButton* option = Add_Option(this, text.Caption, 8, FirstTop);
        option->setAccessibleDescription(text.Text + u' ' + text.Example);
        connect(option, &QRadioButton::toggled, this, [this, type](bool on) {
            if (on)
                state.Type = type;
        });
        return options[static_cast<std::size_t>(type)] = option;
    }

    // One type below the other, each as high as its text and its example.
    void Lay_Out(int textLeft) {
        std::array<std::vector<QLabel*>, WizardTypeCount> lines;
        std::array<int, WizardTypeCount> heights{};
        const int width = Width - textLeft;
        for (std::size_t i = 0; i < lines.size(); ++i) {
            lines[i] = {Add_Text(this, types[i].Text, textLeft, 0, TextLook::Plain, width)};
            if (!types[i].Example.isEmpty())
                lines[i].push_back(
                    Add_Text(this, types[i].Example, textLeft, 0, TextLook::Hint, width));
            heights[i] = TextBelow;
            for (const QLabel* line : lines[i])
                heights[i] += line->height();
            heights[i] = std::max(heights[i], options[i]->height());
        }
        const int needed = std::accumulate(heights.begin(), heights.end(), FirstTop);
        const int gap = std::clamp((Height - needed) / (WizardTypeCount - 1), 0, MostGap);
        int top = FirstTop;
        for (std::size_t i = 0; i < lines.size(); ++i) {
            options[i]->move(options[i]->x(), top);
            int below = top + TextBelow;
            for (QLabel* line : lines[i]) {
                line->move(textLeft, below);
                below += line->height();
                new ClickFilter(line, options[i]);
            }
            top += heights[i] + gap;
        }
    }

    std::array<QRadioButton*, WizardTypeCount> options{};
};

} // namespace

WizardPageView::WizardPageView(WizardState& wizardState, int helpNumber, QWidget* parent)
    : QWidget(parent), state(wizardState) {
    resize(Width, Height);
    hide();
    new TooltipPicture(helpNumber, Width - HelpPictureWidth, 0, this);
}

WizardPageView* Make_TypePage(WizardState& state, QWidget* parent) {
    return new TypePage(state, parent);
}

WizardPageView* Make_FinishedPage(WizardState& state, QWidget* parent) {
    auto* page = new WizardPageView(state, 47, parent);
    Add_Text(page,
             u"You have finished the reminder set up. Click \"Finish\" to complete the process."_s,
             0, 24, TextLook::Heading, WizardPageView::Width);
    Add_Text(page,
             u"You can later edit this reminder by clicking on the \"View reminders\" button of "
             "the main toolbar."_s,
             0, 64, TextLook::Plain, WizardPageView::Width);
    return page;
}
