// Dates as the user writes and reads them.
#include "core/date_text.h"

#include <QDate>
#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

std::array<QString, 13> Global_MonthNames;
QString Global_DateFormat = u"mm/dd/yyyy"_s;

namespace {

bool Is_Digit(QChar letter) {
    return letter >= u'0' && letter <= u'9';
}

// Endless digits stay a number that no calendar has.
std::int32_t To_Number(const QString& digits) {
    std::int64_t number = 0;
    for (const QChar digit : digits)
        number = std::min<std::int64_t>(number * 10 + (digit.unicode() - u'0'),
                                        std::numeric_limits<std::int32_t>::max());
    return static_cast<std::int32_t>(number);
}

QString Two_Digits(std::int32_t number) {
    return QString::number(number).rightJustified(2, u'0');
}

bool Replace_First(QString& pattern, QLatin1String letters, const QString& value) {
    const qsizetype at = pattern.indexOf(letters);
    if (at < 0)
        return false;
    pattern.replace(at, letters.size(), value);
    return true;
}

std::array<QString, 3> Split_DateText(const QString& text) {
    std::array<QString, 3> parts;
    std::size_t current = 0;
    for (const QChar letter : text.trimmed()) {
        if (Is_Digit(letter))
            parts[current] += letter;
        else if (!parts[current].isEmpty() && ++current == parts.size())
            break;
    }
    return parts;
}

struct DateLabel {
    qsizetype position;
    std::int32_t* target;
};

std::array<DateLabel, 3> Order_Labels(const QString& format, std::int32_t& day, std::int32_t& month,
                                      std::int32_t& year) {
    const QString pattern = (format.isEmpty() ? Global_DateFormat : format).toLower();
    std::array<DateLabel, 3> labels{{{pattern.indexOf("dd"_L1), &day},
                                     {pattern.indexOf("mm"_L1), &month},
                                     {pattern.indexOf("yy"_L1), &year}}};
    std::stable_sort(labels.begin(), labels.end(), [](const DateLabel& a, const DateLabel& b) {
        return a.position < b.position;
    });
    return labels;
}

} // namespace

void Init_DateText() {
    Global_MonthNames = {QString(),    u"January"_s,  u"February"_s, u"March"_s,  u"April"_s,
                         u"May"_s,     u"June"_s,     u"July"_s,     u"August"_s, u"September"_s,
                         u"October"_s, u"November"_s, u"December"_s};
}

QString FormatUserDate(std::int32_t day, std::int32_t month, std::int32_t year, bool noYear) {
    const QString yearText = year == 0 && noYear ? u"----"_s : QString::number(year);
    QString text = Global_DateFormat.toLower();
    Replace_First(text, "dd"_L1, Two_Digits(day));
    Replace_First(text, "mm"_L1, Two_Digits(month));
    if (!Replace_First(text, "yyyy"_L1, yearText))
        Replace_First(text, "yy"_L1, yearText.mid(2, 2));
    return text;
}

QString DayToDateString(Day day) {
    const CalendarDate date = DayToDate(day);
    return FormatUserDate(date.day, date.month, date.year, false);
}

QString DayToFriendlyString(Day day) {
    const Day today = Get_TodayDay();
    if (day == today)
        return u"Today"_s;
    if (day == std::int64_t{today} + 1)
        return u"Tomorrow"_s;
    const CalendarDate date = DayToDate(day);
    const QDate known(date.year, date.month, date.day);
    // A leap day that only this calendar has follows the weekday of the day before.
    const int weekday =
        known.isValid() ? known.dayOfWeek() : QDate(date.year, 2, 28).dayOfWeek() % 7 + 1;
    const QLocale locale = QLocale::system();
    return u"%1, %2 %3 %4"_s.arg(locale.dayName(weekday),
                                 locale.monthName(date.month, QLocale::ShortFormat),
                                 QString::number(date.day), QString::number(date.year));
}

int ParseUserDate(const QString& text, std::int32_t& day, std::int32_t& month, std::int32_t& year,
                  const QString& format, bool allowNoYear) {
    const std::array<QString, 3> parts = Split_DateText(text);
    const bool hasYear = !parts[2].isEmpty();
    if (parts[0].isEmpty() || parts[1].isEmpty() || (!hasYear && !allowNoYear))
        return -1;
    year = 0;
    std::size_t next = 0;
    for (const DateLabel& label : Order_Labels(format, day, month, year)) {
        // Without a year the two parts are day and month, wherever the pattern has its year.
        if (label.target == &year && !hasYear)
            continue;
        *label.target = To_Number(parts[next++]);
    }
    if (hasYear && year < 2000)
        year += 2000;
    return 0;
}

Day ParseUserDateToDay(const QString& text, const QString& format) {
    std::int32_t day = 0;
    std::int32_t month = 0;
    std::int32_t year = 0;
    if (ParseUserDate(text, day, month, year, format, false) != 0)
        return NoDay;
    return DateToDay(day, month, year);
}

int ParseDayMonth(std::int32_t& day, std::int32_t& month, std::int32_t& year, const QString& text,
                  const QString& format) {
    day = month = year = 0;
    const QStringList texts = text.split(u'/');
    const QStringList labels = format.toLower().split(u'/');
    if (texts.size() != labels.size())
        return -1;
    for (qsizetype index = 0; index < texts.size(); ++index) {
        const QString digits = DigitsOnly(texts[index]);
        if (digits.isEmpty() || digits.size() > labels[index].size())
            return -1;
        const QChar letter = labels[index].front();
        if (letter == u'd')
            day = To_Number(digits);
        else if (letter == u'm')
            month = To_Number(digits);
        else if (letter == u'y')
            year = To_Number(digits);
    }
    return 0;
}

QString RemoveYearFromFormat(const QString& format) {
    QString pattern = format;
    pattern.remove(QChar(u'y'), Qt::CaseInsensitive);
    pattern.replace("//"_L1, "/"_L1);
    if (pattern.endsWith(u'/'))
        pattern.chop(1);
    return pattern;
}

bool IsValidDateFormat(const QString& format) {
    const QString pattern = format.toLower();
    return pattern.contains("dd"_L1) && pattern.contains("mm"_L1) && pattern.contains("yy"_L1);
}

QString Default_DateFormat(const QString& systemPattern) {
    return IsValidDateFormat(systemPattern) ? systemPattern.toLower() : u"mm/dd/yyyy"_s;
}

QString OrdinalText(std::int32_t number) {
    switch (number) {
    case 1:
        return u"1st"_s;
    case 2:
        return u"2nd"_s;
    case 3:
        return u"3rd"_s;
    default:
        return QString::number(number) + "th"_L1;
    }
}

QString DigitsOnly(const QString& text) {
    QString digits;
    std::copy_if(text.begin(), text.end(), std::back_inserter(digits), Is_Digit);
    return digits;
}
