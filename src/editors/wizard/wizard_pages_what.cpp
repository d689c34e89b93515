// "Display mode": where the reminder comes up. "Message": what it says, with a preview. "Misc*":
// the title and the category.
#include "controls/chk_box.h"
#include "controls/click_filter.h"
#include "controls/combo_box.h"
#include "controls/page_parts.h"
#include "controls/text_fields.h"
#include "core/categories.h"
#include "editors/pages/page_controls.h"
#include "editors/wizard/sample_picture.h"
#include "editors/wizard/wizard_page.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int FirstTop = 18;
constexpr int Pitch = 36;
constexpr int TextLeft = 58;
constexpr int TextBelow = 18;   // its option
constexpr int SampleBelow = 22; // the box above it
constexpr int SampleTop = 142;  // on the page of the message

const struct {
    ReminderType Mode;
    QString Caption;
    QString Text;
} modes[] = {
    {ReminderType::InsideToolbar, u"Normal:"_s,
     u"The reminder will be displayed inside the toolbar."_s},
    {ReminderType::NextToToolbar, u"Important:"_s,
     u"The reminder will be displayed on a window next to the toolbar."_s},
    {ReminderType::Centered, u"Very important:"_s,
     u"The reminder will be displayed on a window at the center of the screen."_s},
};

class DisplayPage : public WizardPageView {
public:
    DisplayPage(WizardState& wizardState, QWidget* parent)
        : WizardPageView(wizardState, 43, parent) {
        Add_Text(this, u"Select the display mode:"_s, 0, 0, TextLook::Heading);
        int top = FirstTop;
        for (std::size_t i = 0; i < options.size(); ++i)
            top += Add_Mode(i, top);
        minimize = new ChkBox(u"Minimize running applications"_s, TextLeft + 18, top - 2, this);
        for (const auto& change : {&ChkBox::Checked, &ChkBox::Unchecked})
            connect(minimize, change, this, [this] { state.MinimizeApps = minimize->Is_Ticked(); });
        const int sampleTop = minimize->y() + SampleBelow;
        sample = new SamplePicture({0, sampleTop, Width, Height - sampleTop}, this);
        options[static_cast<std::size_t>(state.DisplayMode)]->setChecked(true);
        for (std::size_t i = 0; i < options.size(); ++i)
            connect(options[i], &QRadioButton::toggled, this, [this, i](bool on) {
                if (!on)
                    return;
                state.DisplayMode = modes[i].Mode;
                Load();
            });
    }
    void Load() override {
        const bool centered = state.DisplayMode == ReminderType::Centered;
        minimize->Set_Blocked(!centered);
        minimize->Set_Ticked(centered && state.MinimizeApps);
        sample->Show_Sample(state.DisplayMode,
                            state.Message.isEmpty() ? u"Reminder"_s : state.Message);
    }
    QWidget* First_Field() const override {
        return options[static_cast<std::size_t>(state.DisplayMode)];
    }

private:
    // Returns how much room it takes.
    int Add_Mode(std::size_t at, int top) {
        QRadioButton* option = Add_Option(this, modes[at].Caption, TextLeft, top);
        option->setAccessibleDescription(modes[at].Text);
        new ClickFilter(new ModePicture(modes[at].Mode, {0, top}, this), option);
        const int textLeft = TextLeft + 18;
        QLabel* text = Add_Text(this, modes[at].Text, textLeft, top + TextBelow, TextLook::Plain,
                                Width - textLeft);
        new ClickFilter(text, option);
        options[at] = option;
        return std::max(Pitch, TextBelow + text->height() + 3);
    }

    std::array<QRadioButton*, 3> options{};
    ChkBox* minimize = nullptr;
    SamplePicture* sample = nullptr;
};

class WizardMessagePage : public WizardPageView {
public:
    WizardMessagePage(WizardState& wizardState, QWidget* parent)
        : WizardPageView(wizardState, 44, parent) {
        Add_Text(this, u"Enter the reminder message:"_s, 0, 0, TextLook::Heading);
        message = Add_Memo(this, u"Reminder message"_s, {0, 20, Width, 82});
        Add_Text(this, u"This message will be visible when the reminder is displayed."_s, 0, 106,
                 TextLook::Hint);
        Add_Text(this, u"Preview:"_s, 0, 125, TextLook::Heading);
        sample = new SamplePicture({0, SampleTop, Width, Height - SampleTop}, this);
        connect(message, &MemoField::textChanged, this, [this] {
            state.Message = Text_ForRecord(message->Text());
            Load();
        });
    }
    void Load() override { sample->Show_Sample(state.DisplayMode, state.Message); }
    QWidget* First_Field() const override { return message; }

private:
    MemoField* message = nullptr;
    SamplePicture* sample = nullptr;
};

class WizardMiscPage : public WizardPageView {
public:
    WizardMiscPage(WizardState& wizardState, QWidget* parent)
        : WizardPageView(wizardState, 45, parent) {
        Add_Text(this, u"*These settings are optional"_s, 0, 0, TextLook::Hint);
        Add_Text(this, u"Title:"_s, 0, 24, TextLook::Heading);
        title = Add_Field(this, u"Title"_s, {0, 40, 220, FieldHeight});
        Add_Text(this, u"Select the category:"_s, 0, 72, TextLook::Heading);
        ComboBox* category = pages::Add_CategoryBox(this, {0, 88, 220, FieldHeight + 1});
        category->addItems(QStringList{NoCategoryText} + Category_Names());
        category->setEditText(NoCategoryText);
        Add_Text(this,
                 u"They are used to organize the reminders, for easier browsing. You can skip this "
                 "page clicking the \"Next\" button."_s,
                 0, 122, TextLook::Plain, Width);
        Add_Text(this, u"To add a new category type the name in the box, and click \"Next\""_s, 0,
                 160, TextLook::Plain, Width);
        connect(category, &ComboBox::editTextChanged, this,
                [this](const QString& text) { state.Category = text; });
    }
    void Load() override { title->setText(state.Title); }
    QWidget* First_Field() const override { return title; }

private:
    QLineEdit* title = nullptr;
};

} // namespace

WizardPageView* Make_DisplayPage(WizardState& state, QWidget* parent) {
    return new DisplayPage(state, parent);
}

WizardPageView* Make_MessagePage(WizardState& state, QWidget* parent) {
    return new WizardMessagePage(state, parent);
}

WizardPageView* Make_MiscPage(WizardState& state, QWidget* parent) {
    return new WizardMiscPage(state, parent);
}
