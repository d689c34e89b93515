#include "editors/pages/hour_rules.h"

#include "core/date_text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr std::int16_t AtStartUpMinute = -1;
constexpr std::int16_t On = -1;

QString Invalid_Time(const QString& text) {
    return u"Invalid time: \r\n"_s + text;
}

// Reads one text after the other, and keeps the message for the first that is no time.
class TimeReader {
public:
    std::int16_t Colon(const QString& text) { return Take(text, ParseTime_Colon(text)); }
    std::int16_t Period(const QString& text) { return Take(text, ParseTime_HM(text)); }
    const QString& Message() const { return message; }

private:
    std::int16_t Take(const QString& text, std::int32_t minutes) {
        if (minutes < 0 && message.isEmpty())
            message = Invalid_Time(text);
        return static_cast<std::int16_t>(minutes);
    }
    QString message;
};

// The message of a row that does not pass; empty: the setup is filled.
QString Read_Row(const HourRow& row, HourSetup& setup) {
    TimeReader reader;
    const HourRow before = row.Stored ? Row_Of(*row.Stored) : HourRow();
    const auto Stands = [&](HourCell cell) {
        return row.Stored && row.Text(cell) == before.Text(cell);
    };
    const bool repeats =
        row.Type == HourRowType::EveryFromTo || row.Type == HourRowType::EveryFromStartUp;
    setup = {static_cast<std::int16_t>(row.Enabled ? On : 0), AtStartUpMinute, 0, 0};
    if (repeats)
        setup.EveryXMinutes =
            Stands(HourCell::Period) ? row.Stored->EveryXMinutes : reader.Period(row.Period);
    if (row.Type == HourRowType::At || row.Type == HourRowType::EveryFromTo)
        setup.StartMinute =
            Stands(HourCell::Start) ? row.Stored->StartMinute : reader.Colon(row.Start);
    if (repeats)
        setup.EndMinute = Stands(HourCell::Until) ? row.Stored->EndMinute : reader.Colon(row.Until);
    if (!reader.Message().isEmpty())
        return reader.Message();
    if (Stands(HourCell::Start) && Stands(HourCell::Until))
        return {};
    // Equal times are refused as well, though the words say greater: that is meant.
    if (row.Type == HourRowType::EveryFromTo && setup.EndMinute <= setup.StartMinute)
        return u"'Starting at' value is greater than 'until' value"_s;
    return {};
}

QString Read_Condition(Condition condition, const ConditionFields& fields, HourSetup& setup) {
    TimeReader reader;
    setup = {On, AtStartUpMinute, 0, 0};
    if (condition == Condition::At) {
        setup.StartMinute = reader.Colon(fields.At);
    } else if (condition == Condition::Every) {
        setup.EveryXMinutes = reader.Period(fields.Every);
        // Read, and refused, even when the program's start counts instead. The next
        // save checks the order of the two times.
        const std::int16_t start = reader.Colon(fields.StartingAt);
        setup.StartMinute = fields.HasStart ? start : AtStartUpMinute;
        setup.EndMinute = reader.Colon(fields.Until);
    }
    return reader.Message();
}

} // namespace

QString HourRow::*HourRow::Field_Of(HourCell cell) {
    switch (cell) {
    case HourCell::Start:
        return &HourRow::Start;
    case HourCell::Until:
        return &HourRow::Until;
    case HourCell::Period:
        break;
    }
    return &HourRow::Period;
}

std::vector<HourRowPart> Parts_Of(HourRowType type) {
    switch (type) {
    case HourRowType::At:
        return {{u"At"_s, HourCell::Start}};
    case HourRowType::EveryFromTo:
        return {{u"Every"_s, HourCell::Period},
                {u"starting at"_s, HourCell::Start},
                {u"until"_s, HourCell::Until}};
    case HourRowType::EveryFromStartUp:
        return {{u"Every"_s, HourCell::Period}, {u"starting at start up until"_s, HourCell::Until}};
    case HourRowType::AtStartUp:
        break;
    }
    return {{u"At start up"_s, std::nullopt}};
}

HourRow Row_Of(const HourSetup& setup) {
    HourRow row;
    const bool startsUp = setup.StartMinute == AtStartUpMinute;
    const bool repeats = setup.EveryXMinutes != 0;
    if (repeats)
        row.Type = startsUp ? HourRowType::EveryFromStartUp : HourRowType::EveryFromTo;
    else
        row.Type = startsUp ? HourRowType::AtStartUp : HourRowType::At;
    row.Enabled = setup.Enabled == On;
    if (!startsUp)
        row.Start = MinutesToTime(setup.StartMinute);
    if (repeats) {
        row.Period = MinutesToHM(setup.EveryXMinutes);
        row.Until = MinutesToTime(setup.EndMinute);
    }
    return row;
}

std::vector<HourRow> Rows_Of(const ReminderClass& reminder) {
    std::vector<HourRow> rows;
    const std::int32_t count = reminder.HourSetupList_Size() + 1;
    rows.reserve(static_cast<std::size_t>(count));
    for (std::int32_t index = 0; index <= reminder.HourSetupList_Size(); ++index) {
        rows.push_back(Row_Of(reminder.GetHourSetup(index)));
        rows.back().Stored = reminder.GetHourSetup(index);
    }
    return rows;
}

std::optional<HourFault> Save_HourRows(const std::vector<HourRow>& rows, ReminderClass& reminder) {
    reminder.ClearAllHourSetup();
    for (std::size_t index = 0; index < rows.size(); ++index) {
        HourSetup setup;
        if (const QString message = Read_Row(rows[index], setup); !message.isEmpty())
            return HourFault{message, static_cast<int>(index)};
        reminder.AddNewHourSetup(setup);
    }
    return std::nullopt;
}

// The new row joins the others as they stand: what has been typed into them is not in the record
// yet, and a refused save may have left some of them out of it.
QString Add_Condition(Condition condition, const ConditionFields& fields,
                      std::vector<HourRow>& rows, ReminderClass& reminder) {
    const bool hasStartUp = std::any_of(rows.begin(), rows.end(), [](const HourRow& row) {
        return row.Type == HourRowType::AtStartUp;
    });
    if (condition == Condition::AtStartUp && hasStartUp)
        return {};
    HourSetup setup;
    QString message = Read_Condition(condition, fields, setup);
    if (message.isEmpty()) {
        reminder.AddNewHourSetup(setup);
        rows.push_back(Row_Of(setup));
    }
    return message;
}

// Off, whichever way the tick went: that is meant. The next save rebuilds the row from its tick,
// and that is what counts.
void Row_Tick_Changed(ReminderClass& reminder, int row) {
    if (row < 0 || row > reminder.HourSetupList_Size())
        return;
    HourSetup setup = reminder.GetHourSetup(row);
    setup.Enabled = 0;
    reminder.SetHourSetup(row, setup);
}
