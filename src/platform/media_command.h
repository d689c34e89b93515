// The command strings of the sound player, taken apart.
#pragma once

#include <QString>

#include <optional>

namespace platform {

enum class MediaVerb { Open, Play, Close, Other };

struct MediaCommand {
    MediaVerb verb = MediaVerb::Other;
    QString file;  // Open: as it was written, blanks and all
    QString type;  // Open
    QString alias; // Open, Play, Close
    int from = 0;  // Play: ms from the start
};

// Words are read without case. Nothing when a known verb lacks something.
std::optional<MediaCommand> Parse_MediaCommand(const QString& command);

} // namespace platform
