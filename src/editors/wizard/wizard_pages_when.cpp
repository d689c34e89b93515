// "Date": one sub-page for each type of reminder, of which the one of the chosen type is in view.
// "Time": at the start of the program, and at up to eight times of the day. "Start date": from when
// on the reminder is active.
#include "controls/chk_box.h"
#include "controls/click_filter.h"
#include "controls/form.h"
#include "controls/page_parts.h"
#include "controls/text_fields.h"
#include "controls/wb_button.h"
#include "core/date_text.h"
#include "editors/calendar/calendar_rules.h"
#include "editors/calendar/day_grid.h"
#include "editors/wizard/wizard_page.h"
#include "editors/wizard/wizard_text.h"
#include "platform/record_text.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTimer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int ButtonHeight = 24;
constexpr QSize CalendarButton(136, ButtonHeight);
constexpr int HintRightOf = 8; // its field
constexpr int FieldTop = 24;   // of the sub-pages
constexpr int ButtonTop = 54;
constexpr int SentenceTop = 94;
constexpr int LongestMonth = 31;
constexpr int MonthRows = 5;
constexpr int WeekdayPitch = 24;
constexpr int TimesTop = 68;
constexpr int TimePitch = 26;
constexpr int TimeColumn = 140;
constexpr int TimeRows = 4;
constexpr int StartLeft = 122;
constexpr int StartOnTop = 58;
constexpr int StartFieldTop = 82;

// Characters of another kind are refused.
void Allow_Only(QLineEdit* field, bool (*allowed)(QChar), const QString& word) {
    Limit_Field(
        field,
        [allowed](const QString& text) {
            return Fits_RecString(text) && std::all_of(text.begin(), text.end(), allowed);
        },
        word);
}

// A field for a date, the pattern that it is read by, and the button of the calendar below.
struct DateParts {
    QLineEdit* Field;
    wbButton* Calendar;
};

DateParts Add_DateField(QWidget* parent, const QString& spoken, const QString& pattern,
                        const QPoint& place, int buttonTop) {
    QLineEdit* field = Add_Field(parent, spoken, {place, QSize(100, WizardPageView::FieldHeight)});
    Add_Text(parent, u"(%1)"_s.arg(pattern), field->geometry().right() + 1 + HintRightOf,
             place.y() + 4, TextLook::Hint);
    wbButton* button =
        Add_Button(parent, u"Open calendar..."_s, {QPoint(place.x(), buttonTop), CalendarButton});
    Add_Picture(button, IconName::Calendar, 5);
    return {field, button};
}

class WizardDatePage : public WizardPageView {
public:
    WizardDatePage(WizardState& wizardState, QWidget* parent)
        : WizardPageView(wizardState, 41, parent) {
        Build_ExactDate();
        QWidget* everyDay =
            Sub_Page(WizardType::EveryDay, u"No date setup required  for this type of reminder"_s);
        Add_Text(everyDay, u"Click \"Next\" to continue"_s, 0, FieldTop);
        Build_Weekdays();
        Build_EveryMonth();
        Build_EveryXDays();
        Build_Birthday();
    }
    void Load() override {
        for (std::size_t i = 0; i < subPages.size(); ++i)
            subPages[i]->setVisible(i == static_cast<std::size_t>(state.Type));
    }
    QWidget* First_Field() const override {
        return firstFields[static_cast<std::size_t>(state.Type)];
    }

private:
    QWidget* Sub_Page(WizardType type, const QString& heading) {
        auto* page = new QWidget(this);
        page->setGeometry(rect());
        page->hide();
        page->lower(); // the help picture stays on top
        Add_Text(page, heading, 0, 0, TextLook::Heading);
        return subPages[static_cast<std::size_t>(type)] = page;
    }

    // What is typed goes to the state, and a sentence says what it means.
    void Add_Sentence(WizardType type, QLineEdit* field, QString& kept, int top,
                      QString (*words)(const QString&)) {
        firstFields[static_cast<std::size_t>(type)] = field;
        QLabel* sentence = Add_Text(field->parentWidget(), {}, 0, top, TextLook::Plain, Width);
        connect(field, &QLineEdit::textChanged, this,
                [&kept, sentence, words](const QString& text) {
                    kept = text;
                    sentence->setText(words(text));
                });
        field->setText(kept);
    }

    void Build_ExactDate() {
        QWidget* page = Sub_Page(WizardType::ExactDate,
                                 u"Enter the date when the reminder will be displayed:"_s);
        const auto [field, calendar] =
            Add_DateField(page, u"Date"_s, Global_DateFormat, {0, FieldTop}, ButtonTop);
        QLineEdit* date = field;
        Allow_Only(date, Is_DateCharacter, DateCharacters_Word());
        connect(calendar, &wbButton::Click, this, [this, date] {
            Q_EMIT Calendar_Asked(date, state.ExactDate,
                                  [date](const QString& chosen) { date->setText(chosen); });
        });
        const std::array<QString, 2> captions{u"Today"_s, u"Tomorrow"_s};
        for (int i = 0; i < 2; ++i) {
            wbButton* day = Add_Button(page, captions[static_cast<std::size_t>(i)],
                                       {142 + i * 82, ButtonTop, 76, ButtonHeight});
            connect(day, &wbButton::Click, date,
                    [date, i] { date->setText(DayToDateString(Get_TodayDay() + i)); });
        }
        Add_Sentence(WizardType::ExactDate, date, state.ExactDate, SentenceTop, ExactDate_Sentence);
    }

    void Build_Weekdays() {
        QWidget* page = Sub_Page(WizardType::Weekday,
                                 u"Select the days when the reminder will be displayed:"_s);
        for (int i = 0; i < CalendarColumns; ++i) {
            auto* day = new ChkBox(Weekday_Name(i), 8, FieldTop + i * WeekdayPitch, page);
            bool& kept = state.Weekdays[static_cast<std::size_t>(i)];
            connect(day, &ChkBox::Checked, this, [&kept] { kept = true; });
            connect(day, &ChkBox::Unchecked, this, [&kept] { kept = false; });
            if (i == 0)
                firstFields[static_cast<std::size_t>(WizardType::Weekday)] = day;
        }
    }

    void Build_EveryMonth() {
        QWidget* page = Sub_Page(WizardType::EveryMonth,
                                 u"Select the day when the reminder will be displayed:"_s);
        auto* grid = new DayGrid(MonthRows, page);
        grid->move(8, FieldTop);
        grid->Set_Days(0, LongestMonth, [](int day) { return OrdinalText(day); });
        grid->Select(grid->Cell_Of(state.DayOfMonth));
        firstFields[static_cast<std::size_t>(WizardType::EveryMonth)] = grid;
        QLabel* sentence = Add_Text(page, DayOfMonth_Sentence(state.DayOfMonth), 0,
                                    FieldTop + grid->height() + 10, TextLook::Plain, Width);
        connect(grid, &DayGrid::DaySelected, this, [this, grid, sentence](int cell) {
            state.DayOfMonth = grid->Day_Of(cell);
            sentence->setText(DayOfMonth_Sentence(state.DayOfMonth));
        });
    }

    void Build_EveryXDays() {
        QWidget* page =
            Sub_Page(WizardType::EveryXDays,
                     u"Enter after how many days the reminder will be displayed again:"_s);
        QLineEdit* days = Add_Field(page, u"Days"_s, {0, FieldTop, 60, FieldHeight});
        Allow_Only(days, Is_DigitCharacter, u"Only digits can stand here. Nothing was changed."_s);
        Add_Text(page, u"day(s)"_s, 68, FieldTop + 4);
        Add_Sentence(WizardType::EveryXDays, days, state.Days, ButtonTop + 4, EveryXDays_Sentence);
    }

    void Build_Birthday() {
        QWidget* page =
            Sub_Page(WizardType::Birthday, u"Enter the day and the month of the birthday:"_s);
        const auto [field, calendar] =
            Add_DateField(page, u"Day and month"_s, Birthday_Format(), {0, FieldTop}, ButtonTop);
        QLineEdit* birthday = field;
        Allow_Only(birthday, Is_DateCharacter, DateCharacters_Word());
        connect(calendar, &wbButton::Click, this, [this, birthday] {
            Q_EMIT Calendar_Asked(birthday, Birthday_ThisYear(state.Birthday, Read_Moment()),
                                  [birthday](const QString& chosen) {
                                      if (const QString text = Birthday_OfDate(chosen);
                                          !text.isEmpty())
                                          birthday->setText(text);
                                  });
        });
        Add_Sentence(WizardType::Birthday, birthday, state.Birthday, SentenceTop,
                     Birthday_Sentence);
    }

    std::array<QWidget*, WizardTypeCount> subPages{};
    std::array<QWidget*, WizardTypeCount> firstFields{};
};

class TimePage : public WizardPageView {
public:
    TimePage(WizardState& wizardState, QWidget* parent) : WizardPageView(wizardState, 42, parent) {
        Add_Text(this, u"Set the time when the reminder will be displayed:"_s, 0, 0,
                 TextLook::Heading);
        Add_Text(this, u"(Click to select a condition, you can select multiple conditions)"_s, 0,
                 16, TextLook::Hint);
        const QString startUp = u"The reminder will be displayed when Tockly is loaded"_s;
        atStartUp = new ChkBox(u"At start up:"_s, 8, 41, this);
        atStartUp->setAccessibleDescription(startUp);
        for (const auto& change : {&ChkBox::Checked, &ChkBox::Unchecked})
            connect(atStartUp, change, this, [this] {
                state.AtStartUp = atStartUp->Is_Ticked();
                Load();
            });
        Add_Text(this, startUp, 112, 42);
        for (int i = 0; i < WizardTimeCount; ++i)
            Add_Time(i);
        isDefault.fill(true);
        const int listTop = TimesTop + TimeRows * TimePitch + 6;
        Add_Text(this, u"The reminder will be run at:"_s, 0, listTop, TextLook::Heading);
        list = Add_Text(this, {}, 0, listTop + 16, TextLook::Plain, Width);
    }
    void Load() override {
        // The fields are filled one after the other before the list is there.
        if (list == nullptr)
            return;
        const HourListView view = Rebuild_HourList(state);
        list->setText(view.List);
        for (std::size_t i = 0; i < times.size(); ++i)
            Mark_Field(times[i], view.Marked[i]);
    }
    QWidget* First_Field() const override { return atStartUp; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto found = std::find(times.begin(), times.end(), watched);
        if (found == times.end())
            return WizardPageView::eventFilter(watched, event);
        const auto at = static_cast<std::size_t>(found - times.begin());
        if (event->type() == QEvent::KeyPress) {
            const QString typed = static_cast<QKeyEvent*>(event)->text();
            if (!typed.isEmpty() && Is_DigitCharacter(typed.front())) {
                ticks[at]->Set_Ticked(true);
                Take_Tick(at);
            }
        } else if (event->type() == QEvent::FocusIn && isDefault[at]) {
            isDefault[at] = false;
            // After the press that brought the focus, which would take the selection off again.
            QTimer::singleShot(0, times[at], &QLineEdit::selectAll);
        }
        return WizardPageView::eventFilter(watched, event);
    }

private:
    void Add_Time(int index) {
        const auto at = static_cast<std::size_t>(index);
        const int left = 8 + index / TimeRows * TimeColumn;
        const int top = TimesTop + index % TimeRows * TimePitch;
        ticks[at] = new ChkBox(u"At:"_s, left, top + 3, this);
        ticks[at]->setAccessibleName(u"At time %1"_s.arg(index + 1));
        for (const auto& change : {&ChkBox::Checked, &ChkBox::Unchecked})
            connect(ticks[at], change, this, [this, at] { Take_Tick(at); });
        times[at] = Add_Field(this, u"Time %1"_s.arg(index + 1), {left + 48, top, 52, FieldHeight});
        times[at]->setText(state.Times[at]);
        times[at]->installEventFilter(this);
        connect(times[at], &QLineEdit::textChanged, this, [this, at](const QString& text) {
            state.Times[at] = text;
            Load();
        });
    }
    void Take_Tick(std::size_t at) {
        state.AtTime[at] = ticks[at]->Is_Ticked();
        Load();
    }
    // A red ground for a time at fault.
    static void Mark_Field(QLineEdit* field, bool marked) {
        constexpr ColorValue markColor = 0xC0C0FF;
        QPalette colors = Form_Palette();
        if (marked)
            colors.setColor(QPalette::Base, palette::To_Color(markColor));
        field->setPalette(colors);
    }

    ChkBox* atStartUp = nullptr;
    std::array<ChkBox*, WizardTimeCount> ticks{};
    std::array<QLineEdit*, WizardTimeCount> times{};
    std::array<bool, WizardTimeCount> isDefault{}; // not entered yet
    QLabel* list = nullptr;
};

class StartPage : public WizardPageView {
public:
    StartPage(WizardState& wizardState, QWidget* parent) : WizardPageView(wizardState, 46, parent) {
        const int width = Width - StartLeft;
        Add_Text(this, u"Start date:"_s, 0, 0, TextLook::Heading);
        Add_Choice(StartChoice::AlwaysActive, u"Always active: "_s,
                   u"The reminder will be activated when you finish the wizard."_s, 24);
        // The wording is meant to stay.
        Add_Choice(StartChoice::StartOn, u"Start on:"_s,
                   u"The reminder will activated on the selected date."_s, StartOnTop);
        const DateParts parts = Add_DateField(this, u"Start date"_s, Global_DateFormat,
                                              {StartLeft, StartFieldTop}, StartFieldTop + 28);
        date = parts.Field;
        calendar = parts.Calendar;
        connect(calendar, &wbButton::Click, this, [this] {
            Q_EMIT Calendar_Asked(date, state.StartDate,
                                  [this](const QString& chosen) { date->setText(chosen); });
        });
        sentence = Add_Text(this, StartDate_Sentence({}), StartLeft, StartFieldTop + 64,
                            TextLook::Plain, width);
        Add_Text(this,
                 u"It comes from the day after on; on the start date itself it stays quiet."_s,
                 StartLeft, StartFieldTop + 84, TextLook::Hint, width);
        connect(date, &QLineEdit::textChanged, this, [this](const QString& text) {
            state.StartDate = text;
            sentence->setText(StartDate_Sentence(text));
        });
        for (const StartChoice choice : {StartChoice::AlwaysActive, StartChoice::StartOn})
            connect(Option(choice), &QRadioButton::toggled, this, [this, choice](bool on) {
                if (on)
                    Choose(choice);
            });
    }
    void Load() override {
        const bool hasStart = Has_StartDate(state.Type);
        // A choice made for another type does not stay set behind a blocked button.
        if (!hasStart)
            state.Start = StartChoice::AlwaysActive;
        Option(StartChoice::StartOn)->setEnabled(hasStart);
        Option(state.Start)->setChecked(true);
        Choose(state.Start);
    }
    QWidget* First_Field() const override { return Option(state.Start); }

private:
    QRadioButton* Option(StartChoice choice) const {
        return options[static_cast<std::size_t>(choice)];
    }
    void Add_Choice(StartChoice choice, const QString& caption, const QString& text, int top) {
        QRadioButton* option = Add_Option(this, caption, 8, top);
        option->setAccessibleDescription(text);
        new ClickFilter(
            Add_Text(this, text, StartLeft, top + 2, TextLook::Plain, Width - StartLeft), option);
        options[static_cast<std::size_t>(choice)] = option;
    }
    void Choose(StartChoice choice) {
        state.Start = choice;
        for (QWidget* part : {static_cast<QWidget*>(date), static_cast<QWidget*>(calendar),
                              static_cast<QWidget*>(sentence)})
            part->setEnabled(choice == StartChoice::StartOn);
    }

    std::array<QRadioButton*, 2> options{};
    QLineEdit* date = nullptr;
    wbButton* calendar = nullptr;
    QLabel* sentence = nullptr;
};

} // namespace

WizardPageView* Make_DatePage(WizardState& state, QWidget* parent) {
    return new WizardDatePage(state, parent);
}

WizardPageView* Make_TimePage(WizardState& state, QWidget* parent) {
    return new TimePage(state, parent);
}

WizardPageView* Make_StartPage(WizardState& state, QWidget* parent) {
    return new StartPage(state, parent);
}
