// Dates and sentences as the pages of the wizard show and take them.
#pragma once

#include "editors/wizard/wizard_rules.h"

// A date without a year in the user's pattern, and that pattern.
QString Birthday_Format();
QString Birthday_Text(std::int32_t day, std::int32_t month);
// 0 or -1.
int Parse_Birthday(const QString& text, std::int32_t& day, std::int32_t& month);

// The date of the birthday that the calendar opens on, empty for none; and the birthday of a date
// that it gives back.
QString Birthday_ThisYear(const QString& text, const Moment& now);
QString Birthday_OfDate(const QString& date);

// What the boxes for dates take.
bool Is_DateCharacter(QChar letter);
QString DateCharacters_Word();
bool Is_DigitCharacter(QChar letter);
// The number in the box for days; -1 for one that no reminder can hold, below 1 included.
std::int32_t Days_FromText(const QString& text);

QString ExactDate_Sentence(const QString& date);
QString Birthday_Sentence(const QString& date);
QString StartDate_Sentence(const QString& date);
QString DayOfMonth_Sentence(std::int32_t day);
QString EveryXDays_Sentence(const QString& days);
