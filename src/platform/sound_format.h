// Tells by a file's own bytes, without a sound device, whether it holds sound that can be played.
#pragma once

#include <QString>

#include <optional>

namespace platform {

enum class SoundFormat {
    None,      // no file, or nothing that can be played
    PlainWave, // RIFF/WAVE
    Other,     // MP3, OGG, FLAC, AIFF, MIDI and tracker modules
};

// What a wave says of its samples.
struct WaveShape {
    int Channels = 0;
    int SampleBits = 0; // of one channel, as they lie in the file
    qint64 Frequency = 0;
    qint64 DataSize = 0; // bytes of samples

    double Seconds() const {
        return 8.0 * static_cast<double>(DataSize) / SampleBits / Channels /
               static_cast<double>(Frequency);
    }
};

// Nothing when the file is no wave that can be played.
std::optional<WaveShape> Shape_Of_Wave(const QString& path);
SoundFormat Format_Of_File(const QString& path);

} // namespace platform
