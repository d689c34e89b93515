// Tells by a file's own bytes, without a sound device, whether it holds sound that can be played.
#pragma once

#include <QString>

namespace platform {

enum class SoundFormat {
    None,      // no file, or nothing that can be played
    PlainWave, // RIFF/WAVE
    Other,     // MP3, OGG, FLAC, AIFF, MIDI and tracker modules
};

SoundFormat Format_Of_File(const QString& path);

} // namespace platform
