// What the add-reminder wizard asks, as plain data, and the rules that turn it into a reminder.
#pragma once

#include "core/categories.h"
#include "core/reminder.h"
#include "platform/dialogs.h"

#include <QString>

#include <array>
#include <cstdint>
#include <optional>

enum class WizardPage : std::int16_t {
    Type = 0,
    Date = 1,
    Time = 2,
    DisplayMode = 3,
    Message = 4,
    Misc = 5,
    StartDate = 6,
    Finished = 7
};
constexpr int WizardPageCount = 8;
// "Type", "Date", ..., "Misc*", as the side list names them.
const QString& WizardPage_Name(WizardPage page);

enum class WizardType : std::int32_t {
    None = -1,
    ExactDate = 0,
    EveryDay = 1,
    Weekday = 2,
    EveryMonth = 3,
    EveryXDays = 4,
    Birthday = 5
};
constexpr int WizardTypeCount = 6;
// An exact date and a birthday have no start date.
bool Has_StartDate(WizardType type);

enum class StartChoice { AlwaysActive = 0, StartOn = 1 };
constexpr int WizardTimeCount = 8;

// The contents of the pages, and what has been made of them so far.
struct WizardState {
    WizardType Type = WizardType::ExactDate;
    QString ExactDate;
    std::array<bool, 7> Weekdays{}; // Monday first
    std::int32_t DayOfMonth = 15;
    QString Days = QStringLiteral("2");
    QString Birthday; // day and month
    bool AtStartUp = false;
    std::array<bool, WizardTimeCount> AtTime{};
    std::array<QString, WizardTimeCount> Times;
    ReminderType DisplayMode = ReminderType::NextToToolbar;
    bool MinimizeApps = false;
    QString Message; // lines end with CR LF
    QString Title;
    QString Category = NoCategoryText;
    StartChoice Start = StartChoice::AlwaysActive;
    QString StartDate;

    ReminderClass Made;
};
// As the wizard opens: today's dates and eight times of the day.
WizardState New_WizardState(const Moment& now);

struct WizardError {
    QString Text;
    platform::BoxStyle Style = platform::BoxStyle::Exclamation;
};
// Checks a page and takes it over into Made. Nothing: the page passes.
std::optional<WizardError> Validate_WizardPage(WizardPage page, WizardState& state,
                                               const Moment& now);

struct HourListView {
    QString List;      // "start up, 06:00"
    QString ErrorText; // empty: all is well; "--": no condition; else the texts at fault
    std::array<bool, WizardTimeCount> Marked{};
};
// Builds the hour list of Made anew.
HourListView Rebuild_HourList(WizardState& state);

// Puts Made into a free slot of the table.
void Add_ToReminderTable(const WizardState& state);

// The title that a message gives: one line, at most 18 characters and "...".
QString Title_FromMessage(const QString& message);
