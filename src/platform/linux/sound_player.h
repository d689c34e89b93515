// Plays what it is told on a thread of its own. The program's one thread is that of its windows;
// this one knows nothing of them and exists because a sound server that hangs would hold them.
#pragma once

#include <functional>
#include <memory>
#include <string>

namespace platform {

class SoundPlayer {
public:
    // noOutput is called on the player's thread when a tone found nothing to sound on.
    explicit SoundPlayer(std::function<void()> noOutput);
    // Waits a moment for the thread; one that hangs in the sound server is left behind.
    ~SoundPlayer();
    SoundPlayer(const SoundPlayer&) = delete;
    SoundPlayer& operator=(const SoundPlayer&) = delete;

    // All return at once. The last file asked for takes the place of the one before. from: ms.
    void Play_File(const std::string& alias, const std::string& path, int from);
    void Stop_File(const std::string& alias);
    // False when the output was found missing a short while ago.
    bool Play_Tone();

private:
    struct Shared;

    std::shared_ptr<Shared> shared; // outlives this object in a thread that hangs
};

} // namespace platform
