#include "platform/linux/desktop_entry.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

// As every text of an entry is written.
QString Escaped(QString text) {
    return text.replace(u'\\', u"\\\\"_s).replace(u'\n', u"\\n"_s).replace(u'\r', u"\\r"_s);
}

// One word of an Exec line.
QString Exec_Word(const QString& word) {
    QString quoted;
    for (const QChar letter : word) {
        if (u"\"`$\\"_s.contains(letter)) {
            quoted += u'\\';
        }
        quoted += letter;
        if (letter == u'%') {
            quoted += letter; // alone it would be a field
        }
    }
    return u'"' + Escaped(quoted) + u'"';
}

} // namespace

QStringList Command_Words(const QString& command) {
    QStringList words;
    QString word;
    bool isQuoted = false;
    bool isStarted = false;
    for (const QChar letter : command) {
        if (letter == u'"') {
            isQuoted = !isQuoted;
            isStarted = true;
        } else if (letter.isSpace() && !isQuoted) {
            if (isStarted) {
                words.append(word);
            }
            word.clear();
            isStarted = false;
        } else {
            word += letter;
            isStarted = true;
        }
    }
    if (isStarted) {
        words.append(word);
    }
    return words;
}

std::string Autostart_Entry(const QString& name, const QStringList& words) {
    QStringList command;
    for (const QString& word : words) {
        command.append(Exec_Word(word));
    }
    // The entry stays when the program is removed; then TryExec tells the desktop to pass it over.
    return (u"[Desktop Entry]\nType=Application\nName="_s + name + u"\nIcon=tockly\nTryExec="_s +
            Escaped(words.first()) + u"\nExec="_s + command.join(u' ') + u"\nTerminal=false\n"_s)
        .toStdString();
}

} // namespace platform
