// The date page and the reminder record: both ways, and what is refused.
#pragma once

#include "core/reminder.h"
#include "editors/pages/date_rules.h"

#include <limits>

// What a mark can stand around, by the mark's index.
enum class ErrorMark {
    Weeks = 0,
    DayOfMonth = 1, // has a place and is never shown
    Days = 2,
    ExactField = 3,
    ExactWeekdays = 4,
    StartField = 5,
    StartWeekdays = 6,
    HourRow = 7,
};

struct DateFault {
    QString Message;
    ErrorMark Mark = ErrorMark::Weeks;
};

inline constexpr Day StartDate_Failed = std::numeric_limits<Day>::min();

// Day of the start date, 0 = none; StartDate_Failed fills the fault.
Day Get_Start_Date(const DatePageState& state, const Moment& now, DateFault& fault);
// Nothing: saved. After a fault the record is left cleared until a later save succeeds.
std::optional<DateFault> Save_DateSetup(const DatePageState& state, ReminderClass& reminder,
                                        const Moment& now);

// The samples that a page without a reminder shows.
DatePageState Cleared_DatePage(const Moment& now);
DatePageState Load_DateSetup(const ReminderClass& reminder, const Moment& now);
// What the user has to be told of the record; mostly empty.
QString DateSetup_Warning(const ReminderClass& reminder);
