#include "platform/media_command.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

// A file's name may hold any word, so the last ones count.
std::optional<MediaCommand> Parse_Open(const QString& rest) {
    const qsizetype alias = rest.lastIndexOf(" ALIAS "_L1, -1, Qt::CaseInsensitive);
    const qsizetype type =
        alias < 0 ? -1 : rest.lastIndexOf(" TYPE "_L1, alias, Qt::CaseInsensitive);
    if (type < 1) {
        return std::nullopt;
    }
    MediaCommand command{MediaVerb::Open, rest.left(type),
                         rest.mid(type + 6, alias - type - 6).trimmed(),
                         rest.mid(alias + 7).trimmed(), 0};
    return command.type.isEmpty() || command.alias.isEmpty() ? std::nullopt
                                                             : std::optional(command);
}

std::optional<MediaCommand> Parse_Play(const QString& rest) {
    const QStringList words = rest.split(u' ', Qt::SkipEmptyParts);
    MediaCommand command{MediaVerb::Play, {}, {}, words.value(0), 0};
    if (words.size() == 1) {
        return command;
    }
    bool isNumber = false;
    command.from = words.value(2).toInt(&isNumber);
    const bool isFrom = words.value(1).compare("FROM"_L1, Qt::CaseInsensitive) == 0;
    return words.size() == 3 && isFrom && isNumber ? std::optional(command) : std::nullopt;
}

} // namespace

std::optional<MediaCommand> Parse_MediaCommand(const QString& command) {
    const qsizetype blank = command.indexOf(u' ');
    const QString verb = command.left(blank).toUpper();
    const QString rest = blank < 0 ? QString() : command.mid(blank + 1);
    if (verb == "OPEN"_L1) {
        return Parse_Open(rest);
    }
    if (verb == "PLAY"_L1) {
        return Parse_Play(rest);
    }
    if (verb == "CLOSE"_L1) {
        const QString alias = rest.trimmed();
        return alias.isEmpty() ? std::nullopt
                               : std::optional(MediaCommand{MediaVerb::Close, {}, {}, alias, 0});
    }
    return MediaCommand{};
}

} // namespace platform
