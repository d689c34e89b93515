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

// What the record gave the page's fields. A field that still stands so is not checked: a limit
// refuses what was typed, never what was stored. Empty texts, of no record, never match.
struct StoredDate {
    QString Text1, Text2, Text3;
    std::array<QString, 2> Text4;
    std::int16_t ReWeeks = 0;
    std::int16_t ReDays = 0;
    std::int32_t DayOfMonth = 0;
    std::uint8_t SRDay = 0;
    std::uint8_t SRMonth = 0;
    std::int16_t SRYear = 0;
    Day SRLongday = 0;
    Day ActivationDay = 0;
};
// The fields that show a value of the record.
StoredDate Stored_Date(const DatePageState& state, const ReminderClass& reminder);

// Day of the start date, 0 = none; StartDate_Failed fills the fault.
Day Get_Start_Date(const DatePageState& state, const StoredDate& stored, const Moment& now,
                   DateFault& fault);
// Nothing: saved. After a fault the record is left cleared until a later save succeeds.
std::optional<DateFault> Save_DateSetup(const DatePageState& state, const StoredDate& stored,
                                        ReminderClass& reminder, const Moment& now);

// The samples that a page without a reminder shows.
DatePageState Cleared_DatePage(const Moment& now);
DatePageState Load_DateSetup(const ReminderClass& reminder, const Moment& now);
// What the user has to be told of the record; mostly empty.
QString DateSetup_Warning(const ReminderClass& reminder);
