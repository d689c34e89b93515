// The sound device while it is open, with one file and one tone at a time on it.
#pragma once

#include "platform/linux/sound_library.h"

#include <cstdint>
#include <string>
#include <vector>

namespace platform {

// Lives on the player's thread alone. Every call may hang as long as the sound server does.
class SoundOutput {
public:
    SoundOutput() = default;
    SoundOutput(const SoundOutput&) = delete;
    SoundOutput& operator=(const SoundOutput&) = delete;
    ~SoundOutput() { Close(); }

    // False when there is no output; true at once when it is open.
    bool Open();
    void Close();

    // Takes the place of the file before. from: ms.
    bool Play_File(const std::string& path, int from);
    void Stop_File();
    bool Play_Tone();
    bool Is_Sounding() const;

private:
    bool Play_Whole(const std::string& path, int from);

    const SoundLibrary* library = nullptr;
    Mix_Music* music = nullptr;
    Mix_Chunk* wave = nullptr; // a short file, whole
    Mix_Chunk* part = nullptr; // what of it is played
    Mix_Chunk* tone = nullptr;
    std::vector<std::int16_t> samples; // of the tone; the chunk reads them
};

} // namespace platform
