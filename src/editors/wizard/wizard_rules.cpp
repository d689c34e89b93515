#include "editors/wizard/wizard_rules.h"

#include "core/categories.h"
#include "core/date_text.h"
#include "core/reminder_ref.h"
#include "editors/wizard/wizard_text.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype LongestTitle = 18;

const std::array<QString, WizardPageCount> pageNames{u"Type"_s,         u"Date"_s,    u"Time"_s,
                                                     u"Display mode"_s, u"Message"_s, u"Misc*"_s,
                                                     u"Start date"_s,   u"Finished"_s};

using Check = std::optional<WizardError>;

WizardError Warning(const QString& text) {
    return {text, platform::BoxStyle::Exclamation};
}

QString Trim_Blanks(const QString& text) {
    qsizetype from = 0;
    qsizetype to = text.size();
    while (from < to && text[from] == u' ')
        ++from;
    while (to > from && text[to - 1] == u' ')
        --to;
    return text.mid(from, to - from);
}

Check Take_Type(WizardState& state) {
    if (state.Type == WizardType::None)
        return WizardError{u"Please select a type"_s, platform::BoxStyle::Plain};
    return {};
}

Check Take_ExactDate(WizardState& state) {
    const Day day = ParseUserDateToDay(state.ExactDate, {});
    if (day == NoDay)
        return Warning("Invalid date: "_L1 + state.ExactDate);
    state.Made.Set_ExactDate(DayToDate(day), day);
    return {};
}

Check Take_Weekdays(WizardState& state) {
    state.Made.rs_DateType_Used = DateType::Weekdays;
    std::array<std::uint8_t, 8> days{};
    std::copy(state.Weekdays.begin(), state.Weekdays.end(), days.begin());
    if (days == std::array<std::uint8_t, 8>{})
        return Warning(u"Select at least one day"_s);
    state.Made.Set_Rs_Rdays(days);
    return {};
}

Check Take_EveryXDays(WizardState& state) {
    state.Made.rs_DateType_Used = DateType::EveryXDays;
    const std::int32_t days = Days_FromText(state.Days);
    if (days == -1)
        return Warning("Invalid value: "_L1 + state.Days);
    state.Made.rs_ReDays = static_cast<std::int16_t>(days);
    return {};
}

Check Take_Birthday(WizardState& state, const Moment& now) {
    std::int32_t day = 0;
    std::int32_t month = 0;
    // 2000 has every day of a year.
    if (Parse_Birthday(state.Birthday, day, month) != 0 || day == 0 ||
        DateToDay(day, month, 2000) == NoDay)
        return Warning("Invalid date: "_L1 + state.Birthday);
    state.Made.Set_ExactDate({day, month, 0}, DateToDay(day, month, now.Year));
    return {};
}

Check Take_Date(WizardState& state, const Moment& now) {
    // Coming back to this page starts from a fresh reminder; the later pages write theirs again.
    ReminderClass& reminder = state.Made;
    reminder = ReminderClass();
    reminder.SetDefaultValues();
    reminder.rs_REveryDay = false;
    reminder.rs_PlaySound = true;
    reminder.rs_SoundPath.clear();
    switch (state.Type) {
    case WizardType::ExactDate:
        return Take_ExactDate(state);
    case WizardType::EveryDay:
        // rs_REveryDay stays False, and that is meant: the reminder starts to fire when the list
        // window has saved it once.
        reminder.rs_DateType_Used = DateType::EveryDay;
        return {};
    case WizardType::Weekday:
        return Take_Weekdays(state);
    case WizardType::EveryMonth:
        reminder.rs_DateType_Used = DateType::DayOfMonth;
        reminder.rs_REDayOfMonth = state.DayOfMonth;
        return {};
    case WizardType::EveryXDays:
        return Take_EveryXDays(state);
    case WizardType::Birthday:
        return Take_Birthday(state, now);
    case WizardType::None:
        break;
    }
    return {};
}

Check Take_Time(WizardState& state) {
    const QString error = Rebuild_HourList(state).ErrorText;
    if (error.isEmpty())
        return {};
    return Warning(error == "--"_L1 ? u"Select at least one condition"_s
                                    : "Invalid value: "_L1 + error);
}

Check Take_DisplayMode(WizardState& state) {
    state.Made.rs_Reminder_Type = state.DisplayMode;
    state.Made.rs_Minimize_Apps = state.MinimizeApps && state.DisplayMode == ReminderType::Centered;
    return {};
}

Check Take_Message(WizardState& state) {
    QString text = Trim_Blanks(state.Message);
    if (text.endsWith("\r\n"_L1))
        text.chop(2);
    if (text.trimmed().isEmpty())
        return Warning(u"Message is empty"_s);
    state.Made.rs_Text = text;
    state.Made.rs_Title = Title_FromMessage(text);
    state.Title = state.Made.rs_Title;
    return {};
}

// The title box is not read back: the title stays the one of the message, and that is meant. A new
// category waits for the next time that the table takes up what the reminders use.
Check Take_Misc(WizardState& state) {
    state.Made.rs_Category = Category_FromText(state.Category);
    state.Made.rs_Icon = Icon_OfCategory(state.Made.rs_Category);
    return {};
}

Check Take_StartDate(WizardState& state) {
    state.Made.rs_ActivationDay = 0;
    if (state.Start == StartChoice::AlwaysActive || !Has_StartDate(state.Type))
        return {};
    const Day day = ParseUserDateToDay(state.StartDate, {});
    if (day == NoDay)
        return Warning("Invalid date: "_L1 + state.StartDate);
    state.Made.rs_ActivationDay = day;
    return {};
}

} // namespace

const QString& WizardPage_Name(WizardPage page) {
    return pageNames[static_cast<std::size_t>(page)];
}

bool Has_StartDate(WizardType type) {
    return type != WizardType::ExactDate && type != WizardType::Birthday;
}

WizardState New_WizardState(const Moment& now) {
    WizardState state;
    state.ExactDate = DayToDateString(now.Today);
    state.Birthday = Birthday_Text(now.DayOfMonth, now.Month);
    for (std::size_t i = 0; i < state.Times.size(); ++i)
        state.Times[i] = MinutesToTime(HourToMinutes(6 + 2 * static_cast<std::int32_t>(i), 0));
    return state;
}

Check Validate_WizardPage(WizardPage page, WizardState& state, const Moment& now) {
    switch (page) {
    case WizardPage::Type:
        return Take_Type(state);
    case WizardPage::Date:
        return Take_Date(state, now);
    case WizardPage::Time:
        return Take_Time(state);
    case WizardPage::DisplayMode:
        return Take_DisplayMode(state);
    case WizardPage::Message:
        return Take_Message(state);
    case WizardPage::Misc:
        return Take_Misc(state);
    case WizardPage::StartDate:
        return Take_StartDate(state);
    case WizardPage::Finished:
        break;
    }
    return {};
}

HourListView Rebuild_HourList(WizardState& state) {
    HourListView view;
    QStringList times;
    QStringList faults;
    state.Made.ClearAllHourSetup();
    if (state.AtStartUp) {
        times << u"start up"_s;
        state.Made.AddNewHourSetup({-1, -1, 0, 0});
    }
    for (std::size_t i = 0; i < state.Times.size(); ++i) {
        if (!state.AtTime[i])
            continue;
        const std::int32_t minute = ParseTime_Colon(state.Times[i]);
        view.Marked[i] = minute == -1;
        if (view.Marked[i]) {
            // A ticked box without a text is no fault beside a good one.
            if (!state.Times[i].isEmpty())
                faults << state.Times[i];
            continue;
        }
        times << MinutesToTime(minute);
        state.Made.AddNewHourSetup({-1, static_cast<std::int16_t>(minute), 0, 0});
    }
    view.List = times.join(", "_L1);
    view.ErrorText = faults.join(", "_L1);
    if (view.List.isEmpty() && view.ErrorText.isEmpty())
        view.ErrorText = u"--"_s;
    return view;
}

void Add_ToReminderTable(const WizardState& state) {
    // No identity of its own: the numbers stay 0 and 0, as for all reminders made here.
    Add_Reminder(std::make_unique<ReminderClass>(state.Made));
}

QString Title_FromMessage(const QString& message) {
    QString line = QString(message).replace("\r\n"_L1, ". "_L1).trimmed();
    if (line.size() <= LongestTitle)
        return line;
    // A character of two halves is not cut in the middle.
    const bool halved = line[LongestTitle - 1].isHighSurrogate();
    return line.left(LongestTitle - (halved ? 1 : 0)) + "..."_L1;
}
