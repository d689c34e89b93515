// Times of day as the user writes and reads them.
#include "core/date_text.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr std::int32_t NoTime = -1;
constexpr int TooLarge = 1000; // for hours and minutes alike

std::optional<int> To_Number(QStringView digits) {
    if (digits.isEmpty())
        return std::nullopt;
    int number = 0;
    for (const QChar digit : digits) {
        if (digit < u'0' || digit > u'9')
            return std::nullopt;
        number = std::min(number * 10 + (digit.unicode() - u'0'), TooLarge);
    }
    return number;
}

std::int32_t Minute_Of(int hours, int minutes) {
    return hours > 23 || minutes > 59 ? NoTime : HourToMinutes(hours, minutes);
}

QString Two_Digits(std::int32_t number) {
    return QString::number(number).rightJustified(2, u'0');
}

} // namespace

std::int32_t ParseTime_Colon(const QString& text) {
    const QString time = text.trimmed();
    const qsizetype colon = time.indexOf(u':');
    if (colon < 0)
        return NoTime;
    const std::optional<int> hours = To_Number(QStringView(time).left(colon));
    const std::optional<int> minutes = To_Number(QStringView(time).mid(colon + 1));
    return hours && minutes ? Minute_Of(*hours, *minutes) : NoTime;
}

std::int32_t ParseTime_HM(const QString& text) {
    std::optional<int> hours;
    std::optional<int> minutes;
    QString run;
    for (const QChar letter : text.toLower()) {
        if (letter >= u'0' && letter <= u'9') {
            run += letter;
            continue;
        }
        if (letter != u'h' && letter != u'm')
            continue;
        if (const std::optional<int> number = To_Number(run))
            (letter == u'h' ? hours : minutes) = number;
        run.clear();
    }
    return hours || minutes ? Minute_Of(hours.value_or(0), minutes.value_or(0)) : NoTime;
}

QString MinutesToTime(std::int32_t minutes) {
    return Two_Digits(minutes / 60) + u':' + Two_Digits(minutes % 60);
}

QString MinutesToHM(std::int32_t minutes) {
    const std::int32_t hours = minutes / 60;
    const std::int32_t rest = minutes % 60;
    QString text;
    if (hours != 0)
        text += QString::number(hours) + u'h';
    if (rest != 0 || hours == 0)
        text += QString::number(rest) + u'm';
    return text;
}
