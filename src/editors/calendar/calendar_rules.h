// What the date picker shows: which cells of the grid belong to a month, and where it stands.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QStringList>

constexpr int CalendarRows = 6;
constexpr int CalendarColumns = 7; // Monday first
constexpr int FirstCalendarYear = 2000;
constexpr int LastTypedYear = 2099;

// In English, 0 = Monday.
QString Weekday_Name(int weekday);
// Month 1..12 of a year that has Days.
bool Is_CalendarMonth(int month, int year);
// Whether the box of years may go from the year on view to this one.
bool Is_TakenYear(int year, int onView);
// The cell of the month's first day, 0 = Monday .. 6 = Sunday.
int First_DayCell(int month, int year);
// Every year divisible by 4 has a 29 February.
int Days_OfMonth(int month, int year);
// What the box of years offers: to five years from now.
QStringList Offered_Years(int presentYear);
// The number at the start of what was typed; 0 when there is none.
int Typed_Year(const QString& text);

// Top left corner for a window of this size: right of the anchor, else left of it. Screen pixels.
QPoint Place_Beside(const QRect& anchor, const QSize& window, const QRect& screen);
