// Dates and times as the user writes and reads them.
#pragma once

#include "core/time_routines.h"

#include <QString>

#include <array>

extern std::array<QString, 13> Global_MonthNames; // index 1..12, English
// The user's date pattern: "dd", "mm" and "yyyy" or "yy" in any order, with separators.
extern QString Global_DateFormat;

// Fills the month names.
void Init_DateText();

// Text in Global_DateFormat; the year is "----" when it is 0 and noYear is set.
QString FormatUserDate(std::int32_t day, std::int32_t month, std::int32_t year, bool noYear);
QString DayToDateString(Day day);
// "Today", "Tomorrow" or "Saturday, Jan 1 2000" with the system locale's names.
QString DayToFriendlyString(Day day);

// Fill the three numbers without checking them against the calendar; 0 or -1. An empty format is
// Global_DateFormat. The year is 0 when none is given and allowNoYear is set; below 2000 it grows
// by 2000.
int ParseUserDate(const QString& text, std::int32_t& day, std::int32_t& month, std::int32_t& year,
                  const QString& format, bool allowNoYear);
Day ParseUserDateToDay(const QString& text, const QString& format);
// For a date without a year, with a format from RemoveYearFromFormat; 0 or -1.
int ParseDayMonth(std::int32_t& day, std::int32_t& month, std::int32_t& year, const QString& text,
                  const QString& format);
QString RemoveYearFromFormat(const QString& format);
bool IsValidDateFormat(const QString& format);
// The given pattern of the system in lower case when it is a valid one, else "mm/dd/yyyy".
QString Default_DateFormat(const QString& systemPattern);

// "13:05" and "1h30m" as a Minute, -1 when the text is no time.
std::int32_t ParseTime_Colon(const QString& text);
std::int32_t ParseTime_HM(const QString& text);
QString MinutesToTime(std::int32_t minutes); // "hh:mm"
QString MinutesToHM(std::int32_t minutes);   // "1h30m", "1h", "5m", "0m"
// "1st", "2nd", "3rd", else N + "th"; 21 gives "21th": that is how the program prints it.
QString OrdinalText(std::int32_t number);
QString DigitsOnly(const QString& text);
