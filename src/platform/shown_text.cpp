#include "platform/shown_text.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr qsizetype Longest = 500;    // characters
constexpr qsizetype KeptAtEnd = 150;  // where a path names its file, and a sentence its question
constexpr qsizetype LongestWord = 40; // characters that stay on one line
constexpr QChar Gap(0x2026);
constexpr QChar MayBreak(0x200B);

QString Cut_InMiddle(const QString& text) {
    if (text.size() <= Longest) {
        return text;
    }
    qsizetype start = Longest - KeptAtEnd - 1;
    qsizetype end = text.size() - KeptAtEnd;
    // A character of two halves goes as a whole.
    start -= text[start - 1].isHighSurrogate() ? 1 : 0;
    end += text[end].isLowSurrogate() ? 1 : 0;
    return text.first(start) + Gap + text.sliced(end);
}

} // namespace

QString Shown_Text(const QString& text) {
    QString shown;
    qsizetype length = 0;
    for (const QChar character : Cut_InMiddle(text)) {
        length = character.isSpace() ? 0 : length + 1;
        if (length > LongestWord && !character.isLowSurrogate()) {
            shown += MayBreak;
            length = 1;
        }
        shown += character;
    }
    return shown;
}

QString Tip_Text(const QString& text) {
    if (text.isEmpty()) {
        return {};
    }
    QString lines = text;
    lines.replace(u"\r\n"_s, u"\n"_s)
        .replace(u'\r', u'\n')
        .replace(QChar::ParagraphSeparator, u'\n');
    return u"<qt>"_s + Shown_Text(lines).toHtmlEscaped().replace(u"\n"_s, u"<br>"_s) + u"</qt>"_s;
}

} // namespace platform
