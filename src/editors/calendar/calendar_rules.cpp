#include "editors/calendar/calendar_rules.h"

#include "core/date_text.h"

#include <algorithm>
#include <array>

namespace {

constexpr int OfferedAhead = 5;
constexpr int Gap = 4; // pixels between the anchor and the window
constexpr qsizetype YearDigits = 6;

constexpr std::array<const char16_t*, CalendarColumns> weekdayNames{
    u"Monday", u"Tuesday", u"Wednesday", u"Thursday", u"Friday", u"Saturday", u"Sunday"};

} // namespace

QString Weekday_Name(int weekday) {
    return QString::fromUtf16(weekdayNames[static_cast<std::size_t>(weekday)]);
}

bool Is_CalendarMonth(int month, int year) {
    return month >= 1 && month <= 12 && DateToDay(1, month, year) != NoDay;
}

bool Is_TakenYear(int year, int onView) {
    return year == onView || (year >= FirstCalendarYear && year <= LastTypedYear);
}

int First_DayCell(int month, int year) {
    // Day 3 is a Monday.
    return (DateToDay(1, month, year) + 4) % CalendarColumns;
}

int Days_OfMonth(int month, int year) {
    return DaysInMonth(month, year);
}

QStringList Offered_Years(int presentYear) {
    QStringList years;
    for (int year = FirstCalendarYear; year <= presentYear + OfferedAhead; ++year)
        years << QString::number(year);
    return years;
}

int Typed_Year(const QString& text) {
    const QString typed = text.trimmed();
    const auto end = std::find_if(typed.begin(), typed.end(), [](QChar letter) {
        return letter < QChar(u'0') || letter > QChar(u'9');
    });
    return typed.left(std::min<qsizetype>(end - typed.begin(), YearDigits)).toInt();
}

QPoint Place_Beside(const QRect& anchor, const QSize& window, const QRect& screen) {
    const int right = anchor.x() + anchor.width() + Gap;
    const bool fits = right + window.width() <= screen.right() + 1;
    return {fits ? right : anchor.x() - Gap - window.width(), anchor.y()};
}
