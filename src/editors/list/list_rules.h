// The rules of the reminder list: which reminders a filter shows, what a card says, and what
// becomes of a category's text.
#pragma once

#include "core/reminder_ref.h"

#include <QString>

#include <cstdint>
#include <vector>

class QPlainTextEdit;

// The first two items of the filter box.
extern const QString FilterAll;
extern const QString FilterNone;

// Slots of the reminders that the filter shows, in the order of the table. filter: the text of the
// filter box.
std::vector<std::int32_t> Visible_Slots(const QString& filter);

// What a card says beside its title: "(Tomorrow)", "( )" for -1.
QString NextRun_Caption(Day nextRun);
// Asks a copy, so that looking at a reminder leaves its cycle unstarted.
Day NextRun_ForDisplay(const ReminderClass& reminder, const Moment& now);

// Names the title, and what tells the reminder from others of that title: a new one is "Reminder".
QString Delete_Question(const ReminderClass& reminder, const Moment& now);

// The category that a reminder made, or pasted, under a filter gets.
QString Category_OfNew(const QString& filter);
QString Category_OfPasted(const QString& filter);

// A text that only stands for one still to be typed.
bool Is_SampleText(const QString& text);
// Selects it, so that the first letter takes its place.
void Select_SampleText(QPlainTextEdit& box);

// A used reminder with a new number and default values.
ReminderRef Add_New_Reminder(const QString& category);

// Slots of the used reminders of a category. name without regard to case.
std::vector<std::int32_t> Slots_OfCategory(const QString& name);
