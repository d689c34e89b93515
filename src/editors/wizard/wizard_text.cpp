#include "editors/wizard/wizard_text.h"

#include "core/date_text.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

bool Is_Separator(QChar letter) {
    return !letter.isLetterOrNumber();
}

QString Without_OuterSeparators(QString text) {
    while (!text.isEmpty() && Is_Separator(text.front()))
        text.remove(0, 1);
    while (!text.isEmpty() && Is_Separator(text.back()))
        text.chop(1);
    return text;
}

// ParseDayMonth knows the slash alone: "25.03." has to read as "25/03".
QString With_Slashes(const QString& text) {
    QString slashed = Without_OuterSeparators(text);
    std::replace_if(slashed.begin(), slashed.end(), Is_Separator, QChar(u'/'));
    return slashed;
}

QString Fill(QLatin1String sentence, QLatin1String mark, const QString& value) {
    return QString(sentence).replace(mark, value);
}

} // namespace

QString Birthday_Format() {
    return Without_OuterSeparators(RemoveYearFromFormat(Global_DateFormat.toLower()));
}

QString Birthday_Text(std::int32_t day, std::int32_t month) {
    return Birthday_Format()
        .replace("dd"_L1, QString::number(day).rightJustified(2, u'0'))
        .replace("mm"_L1, QString::number(month).rightJustified(2, u'0'));
}

int Parse_Birthday(const QString& text, std::int32_t& day, std::int32_t& month) {
    std::int32_t year = 0;
    return ParseDayMonth(day, month, year, With_Slashes(text), With_Slashes(Birthday_Format()));
}

QString Birthday_ThisYear(const QString& text, const Moment& now) {
    std::int32_t day = 0;
    std::int32_t month = 0;
    const bool valid = Parse_Birthday(text, day, month) == 0;
    return valid ? FormatUserDate(day, month, now.Year, false) : QString();
}

QString Birthday_OfDate(const QString& date) {
    CalendarDate read;
    const bool valid = ParseUserDate(date, read.day, read.month, read.year, {}, false) == 0;
    return valid ? Birthday_Text(read.day, read.month) : QString();
}

// The separators of the user's own pattern count too: "25.03.2026" could not be typed otherwise.
bool Is_DateCharacter(QChar letter) {
    return Is_DigitCharacter(letter) || letter == u'/' ||
           (Is_Separator(letter) && Global_DateFormat.contains(letter));
}

QString DateCharacters_Word() {
    return u"Only a date like %1 can stand here, in digits. Nothing was changed."_s.arg(
        Global_DateFormat);
}

bool Is_DigitCharacter(QChar letter) {
    return letter >= u'0' && letter <= u'9';
}

std::int32_t Days_FromText(const QString& text) {
    const QString typed = text.trimmed();
    const auto end = std::find_if_not(typed.begin(), typed.end(), Is_DigitCharacter);
    std::int64_t days = 0;
    for (auto digit = typed.begin();
         digit != end && days <= std::numeric_limits<std::int16_t>::max(); ++digit)
        days = days * 10 + (digit->unicode() - u'0');
    return days < 1 || days > std::numeric_limits<std::int16_t>::max()
               ? -1
               : static_cast<std::int32_t>(days);
}

QString ExactDate_Sentence(const QString& date) {
    return Fill("The reminder will be displayed on: [date]"_L1, "[date]"_L1, date);
}

QString Birthday_Sentence(const QString& date) {
    return Fill("The reminder will be displayed every year on: [date]"_L1, "[date]"_L1, date);
}

QString StartDate_Sentence(const QString& date) {
    return Fill("The reminder will be activated on: [date]"_L1, "[date]"_L1, date);
}

QString DayOfMonth_Sentence(std::int32_t day) {
    return Fill("The reminder will be displayed the [ddd] day of each month."_L1, "[ddd]"_L1,
                OrdinalText(day));
}

QString EveryXDays_Sentence(const QString& days) {
    const std::int32_t number = Days_FromText(days);
    return number == -1 ? u"Invalid value"_s
                        : Fill("The reminder will be displayed every [dd] day(s)"_L1, "[dd]"_L1,
                               QString::number(number));
}
