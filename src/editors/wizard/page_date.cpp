#include "editors/wizard/page_date.h"

#include "controls/chk_box.h"
#include "controls/wb_button.h"
#include "core/date_text.h"
#include "editors/calendar/day_grid.h"
#include "editors/wizard/wizard_text.h"

#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace page_parts;

namespace {

constexpr int FieldTop = 24;
constexpr int ButtonTop = 54;
constexpr int SentenceTop = 94;
constexpr int LongestMonth = 31;
constexpr int MonthRows = 5;
constexpr int WeekdayPitch = 24;

const std::array<QString, 7> weekdays{u"Monday"_s, u"Tuesday"_s,  u"Wednesday"_s, u"Thursday"_s,
                                      u"Friday"_s, u"Saturday"_s, u"Sunday"_s};

} // namespace

WizardDatePage::WizardDatePage(WizardState& wizardState, QWidget* parent)
    : WizardPageView(wizardState, 41, parent) {
    Build_ExactDate();
    Build_EveryDay();
    Build_Weekdays();
    Build_EveryMonth();
    Build_EveryXDays();
    Build_Birthday();
}

QWidget* WizardDatePage::Sub_Page(WizardType type, const QString& heading) {
    auto* page = new QWidget(this);
    page->setGeometry(rect());
    page->hide();
    page->lower(); // the help picture stays on top
    Add_Text(page, heading, 0, 0, 0, TextLook::Heading);
    return DateParsPictureBox[static_cast<std::size_t>(type)] = page;
}

void WizardDatePage::Build_ExactDate() {
    QWidget* page =
        Sub_Page(WizardType::ExactDate, u"Enter the date when the reminder will be displayed:"_s);
    Text1 = Add_Field(page, u"Text1"_s, u"Date"_s, {0, FieldTop, 100, FieldHeight});
    Allow_Only(Text1, Is_DateCharacter, DateCharacters_Word());
    firstFields[0] = Text1;
    Add_Text(page, u"(%1)"_s.arg(Global_DateFormat), 108, FieldTop + 4, 0, TextLook::Hint)
        ->setObjectName(u"Label21"_s);
    wbButton* calendar = Add_CalendarButton(page, u"wbButton1"_s, {0, ButtonTop});
    connect(calendar, &wbButton::Click, this, &WizardPageView::CalendarAsked);
    const std::array<QString, 2> captions{u"Today"_s, u"Tomorrow"_s};
    for (int i = 0; i < 2; ++i) {
        wbButton* day =
            Add_Button(page, u"wbButton4_%1"_s.arg(i), captions[static_cast<std::size_t>(i)],
                       {142 + i * 82, ButtonTop, 76, ButtonHeight});
        connect(day, &wbButton::Click, this,
                [this, i] { Text1->setText(DayToDateString(Get_TodayDay() + i)); });
    }
    QLabel* sentence = Add_Text(page, {}, 0, SentenceTop, Width);
    sentence->setObjectName(u"Label20"_s);
    connect(Text1, &QLineEdit::textChanged, this, [this, sentence](const QString& text) {
        state.Text1 = text;
        sentence->setText(ExactDate_Sentence(text));
    });
    Text1->setText(state.Text1);
}

void WizardDatePage::Build_EveryDay() {
    QWidget* page =
        Sub_Page(WizardType::EveryDay, u"No date setup required  for this type of reminder"_s);
    Add_Text(page, u"Click \"Next\" to continue"_s, 0, FieldTop);
}

void WizardDatePage::Build_Weekdays() {
    QWidget* page =
        Sub_Page(WizardType::Weekday, u"Select the days when the reminder will be displayed:"_s);
    for (int i = 0; i < 7; ++i) {
        const auto at = static_cast<std::size_t>(i);
        ChkBox* day =
            Add_Check(page, u"Check1_%1"_s.arg(i), weekdays[at], 8, FieldTop + i * WeekdayPitch,
                      [this, at](bool on) { state.Check1[at] = on; });
        if (i == 0)
            firstFields[static_cast<std::size_t>(WizardType::Weekday)] = day;
    }
}

void WizardDatePage::Build_EveryMonth() {
    QWidget* page =
        Sub_Page(WizardType::EveryMonth, u"Select the day when the reminder will be displayed:"_s);
    DaysLabel = new DayGrid(MonthRows, page);
    DaysLabel->move(8, FieldTop);
    DaysLabel->Set_Days(0, LongestMonth, [](int day) { return OrdinalText(day); });
    DaysLabel->Select(state.DayLabelTag);
    firstFields[static_cast<std::size_t>(WizardType::EveryMonth)] = DaysLabel;
    Label13 = Add_Text(page, DayOfMonth_Sentence(state.DayLabelTag), 0,
                       FieldTop + DaysLabel->height() + 10, Width);
    Label13->setObjectName(u"Label13"_s);
    connect(DaysLabel, &DayGrid::DaySelected, this, [this](int cell) {
        state.DayLabelTag = cell;
        Label13->setText(DayOfMonth_Sentence(cell));
    });
}

void WizardDatePage::Build_EveryXDays() {
    QWidget* page = Sub_Page(WizardType::EveryXDays,
                             u"Enter after how many days the reminder will be displayed again:"_s);
    QLineEdit* Text2 = Add_Field(page, u"Text2"_s, u"Days"_s, {0, FieldTop, 60, FieldHeight});
    Allow_Only(Text2, Is_DigitCharacter, u"Only digits can stand here. Nothing was changed."_s);
    firstFields[static_cast<std::size_t>(WizardType::EveryXDays)] = Text2;
    Add_Text(page, u"day(s)"_s, 68, FieldTop + 4);
    QLabel* sentence = Add_Text(page, {}, 0, ButtonTop + 4, Width);
    sentence->setObjectName(u"Label16"_s);
    connect(Text2, &QLineEdit::textChanged, this, [this, sentence](const QString& text) {
        state.Text2 = text;
        sentence->setText(EveryXDays_Sentence(text));
    });
    Text2->setText(state.Text2);
}

void WizardDatePage::Build_Birthday() {
    QWidget* page =
        Sub_Page(WizardType::Birthday, u"Enter the day and the month of the birthday:"_s);
    Text3 = Add_Field(page, u"Text3"_s, u"Day and month"_s, {0, FieldTop, 100, FieldHeight});
    Allow_Only(Text3, Is_DateCharacter, DateCharacters_Word());
    firstFields[static_cast<std::size_t>(WizardType::Birthday)] = Text3;
    Add_Text(page, u"(%1)"_s.arg(Birthday_Format()), 108, FieldTop + 4, 0, TextLook::Hint)
        ->setObjectName(u"Label22"_s);
    wbButton* calendar = Add_CalendarButton(page, u"wbButton2"_s, {0, ButtonTop});
    connect(calendar, &wbButton::Click, this, &WizardPageView::CalendarAsked);
    QLabel* sentence = Add_Text(page, {}, 0, SentenceTop, Width);
    sentence->setObjectName(u"Label19"_s);
    connect(Text3, &QLineEdit::textChanged, this, [this, sentence](const QString& text) {
        state.Text3 = text;
        sentence->setText(Birthday_Sentence(text));
    });
    Text3->setText(state.Text3);
}

void WizardDatePage::Show_State() {
    Text1->setText(state.Text1);
    Text3->setText(state.Text3);
    for (int i = 0; i < WizardTypeCount; ++i)
        DateParsPictureBox[static_cast<std::size_t>(i)]->setVisible(static_cast<WizardType>(i) ==
                                                                    state.Option2);
}

QWidget* WizardDatePage::First_Field() const {
    return firstFields[static_cast<std::size_t>(state.Option2)];
}
