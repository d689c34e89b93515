// What the short dialog for a new reminder asks, as plain data, and the rules that turn it into a
// reminder.
#pragma once

#include "core/reminder.h"
#include "core/reminder_ref.h"

#include <QString>

#include <array>

enum class DayChoice { Today, Tomorrow, Date };
constexpr int QuickTimeCount = 3;

struct QuickAddState {
    QString Title;
    QString Text; // lines end with CR LF
    QString Category;
    ReminderType DisplayMode = ReminderType::InsideToolbar;
    DayChoice When = DayChoice::Today;
    QString Date; // for DayChoice::Date
    bool AtStartUp = false;
    std::array<bool, QuickTimeCount> At{true, false, false};
    std::array<QString, QuickTimeCount> Times;
};
extern const QString QuickTitle; // until the user enters another
extern const QString QuickText;
QuickAddState New_QuickAddState(const Moment& now);

// A slot of the table that neither fires nor is saved until it is accepted.
ReminderRef Make_PendingReminder(const Moment& now);
void Accept_Pending(const ReminderRef& pending);
// Leaves no trace: the slot is free again.
void Drop_Pending(const ReminderRef& pending);

enum class BadValues { Report, Skip };
// Copies the dialog to the reminder. Empty, or the warning that ended it: the later fields of the
// reminder are then as they were.
QString Apply_ToReminder(const QuickAddState& state, ReminderClass& reminder, BadValues bad,
                         const Moment& now);
// The text follows a title that was entered while the text is still the first one.
bool Text_FollowsTitle(const QuickAddState& state);
