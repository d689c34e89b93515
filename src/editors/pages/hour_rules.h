// The hour list of a reminder as rows of texts, back again, and the conditions that are added.
#pragma once

#include "core/reminder.h"

#include <QString>

#include <optional>
#include <vector>

enum class HourRowType { AtStartUp = 1, At = 2, EveryFromTo = 3, EveryFromStartUp = 4 };
enum class HourCell { Start = 1, Until = 2, Period = 3 };

struct HourRow {
    HourRowType Type = HourRowType::AtStartUp;
    bool Enabled = false;
    QString Start;  // "20:30"
    QString Until;  // "20:30"
    QString Period; // "1h30m"
    // What the record gave: a field that still shows it is not checked. None for a row to be added.
    std::optional<HourSetup> Stored{};

    QString& Text(HourCell cell) { return this->*Field_Of(cell); }
    const QString& Text(HourCell cell) const { return this->*Field_Of(cell); }
    bool operator==(const HourRow&) const = default;

private:
    static QString HourRow::*Field_Of(HourCell cell);
};

// The parts of a row in their order: captions, each with the field that follows it, if any.
struct HourRowPart {
    QString Caption;
    std::optional<HourCell> Cell;
};
std::vector<HourRowPart> Parts_Of(HourRowType type);

// As a new row.
HourRow Row_Of(const HourSetup& setup);
// The record's rows.
std::vector<HourRow> Rows_Of(const ReminderClass& reminder);

struct HourFault {
    QString Message;
    int Row = 0;
};
// Rebuilds the record's list. Nothing: all rows passed. After a fault the record holds the rows
// before it, until a later save.
std::optional<HourFault> Save_HourRows(const std::vector<HourRow>& rows, ReminderClass& reminder);

enum class Condition { AtStartUp = 0, At = 1, Every = 2 };
struct ConditionFields {
    QString At;
    QString Every;
    QString StartingAt;
    QString Until;
    bool HasStart = false; // else it starts with the program
};
// Adds to the record and to the rows. The text is the message for a field that cannot be read;
// empty also when a second "At start up" was passed over in silence.
QString Add_Condition(Condition condition, const ConditionFields& fields,
                      std::vector<HourRow>& rows, ReminderClass& reminder);
// After a click on a row's tick box.
void Row_Tick_Changed(ReminderClass& reminder, int row);
