#include "platform/date_pattern.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr qsizetype MaxPattern = 10; // as much as a locale's short date was ever given

// Letters in quotes are words of the language ("r." for year), not fields.
QString Without_Quoted(const QString& format) {
    QString kept;
    bool isQuoted = false;
    for (const QChar letter : format) {
        if (letter == u'\'') {
            isQuoted = !isQuoted;
        } else if (!isQuoted) {
            kept.append(letter);
        }
    }
    return kept;
}

QString Field(QChar letter, qsizetype count) {
    if (letter == u'd') {
        return u"dd"_s;
    }
    if (letter == u'M') {
        return u"mm"_s;
    }
    return count == 2 ? u"yy"_s : u"yyyy"_s;
}

bool Is_Separator(QChar letter) {
    return letter == u' ' || letter == u'/' || letter == u'.' || letter == u'-' || letter == u',';
}

} // namespace

QString Date_Pattern(const QString& format) {
    const QString plain = Without_Quoted(format);
    if (plain.contains("MMM"_L1)) {
        return {};
    }
    QString pattern;
    for (qsizetype at = 0; at < plain.size();) {
        const QChar letter = plain[at];
        const auto end =
            std::find_if(plain.begin() + at, plain.end(), [&](QChar c) { return c != letter; });
        const qsizetype count = end - plain.begin() - at;
        if (letter == u'd' || letter == u'M' || letter == u'y') {
            pattern += Field(letter, count);
        } else if (Is_Separator(letter) && !pattern.isEmpty()) {
            pattern += QString(count, letter);
        }
        at += count;
    }
    pattern = pattern.trimmed();
    if (pattern.size() > MaxPattern) {
        pattern.remove(u' ');
    }
    return pattern.left(MaxPattern);
}

} // namespace platform
