#include "platform/linux/sound_output.h"

#include "platform/sound_format.h"

#include <QFile>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace platform {

namespace {

constexpr int Frequency = 44100; // samples a second
constexpr int Channels = 2;
constexpr int SampleSize = 2; // bytes
constexpr int BufferSamples = 2048;

constexpr int ToneChannel = 0;
constexpr int FileChannel = 1;
// A longer wave is read while it plays, so that its length costs no memory.
constexpr double LongSound = 20;        // seconds
constexpr qint64 LongFile = 4LL << 20U; // bytes

constexpr double TonePitch = 880;     // Hz
constexpr double ToneSeconds = 0.15;  //
constexpr double SoftSeconds = 0.015; // rise and fall, which keep it from clicking
constexpr double ToneLevel = 0.4;

std::vector<std::int16_t> Make_Tone() {
    const int count = static_cast<int>(Frequency * ToneSeconds);
    const double soft = Frequency * SoftSeconds;
    std::vector<std::int16_t> samples;
    samples.reserve(static_cast<std::size_t>(count) * Channels);
    for (int at = 0; at < count; ++at) {
        const double edge = std::min({at / soft, (count - at) / soft, 1.0});
        const double wave = std::sin(2 * std::numbers::pi * TonePitch * at / Frequency);
        samples.insert(samples.end(), Channels,
                       static_cast<std::int16_t>(INT16_MAX * ToneLevel * edge * wave));
    }
    return samples;
}

} // namespace

bool SoundOutput::Open() {
    if (library != nullptr) {
        return true;
    }
    const SoundLibrary* loaded = SoundLibrary::Load();
    if (loaded == nullptr) {
        return false;
    }
    loaded->SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1"); // the program's end is its own affair
    loaded->SetHint("SDL_APP_NAME", "Tockly");
    if (loaded->InitSubSystem(SDL_INIT_AUDIO) != 0) {
        loaded->CleanUpThread();
        return false;
    }
    if (loaded->OpenAudioDevice(Frequency, AUDIO_S16SYS, Channels, BufferSamples, nullptr, 0) !=
        0) {
        loaded->QuitSubSystem(SDL_INIT_AUDIO);
        loaded->CleanUpThread();
        return false;
    }
    library = loaded;
    return true;
}

void SoundOutput::Close() {
    if (library == nullptr) {
        return;
    }
    Stop_File();
    if (tone != nullptr) {
        library->FreeChunk(tone);
        tone = nullptr;
    }
    library->CloseAudio();
    library->QuitSubSystem(SDL_INIT_AUDIO);
    library->CleanUpThread(); // no thread of its own making: nobody else would
    library = nullptr;
}

bool SoundOutput::Play_File(const std::string& path, int from) {
    Stop_File();
    const auto shape = Shape_Of_Wave(QFile::decodeName(path.c_str()));
    if (shape && shape->Seconds() < LongSound && shape->DataSize < LongFile) {
        return Play_Whole(path, from);
    }
    // A wave is one by its bytes: the library would go by the name.
    music = shape ? library->LoadMusicOfType(library->OpenFile(path.c_str(), "rb"), MUS_WAV, 1)
                  : library->LoadMusic(path.c_str());
    if (shape && music == nullptr) {
        return Play_Whole(path, from); // a coding that the library reads in one piece only
    }
    // Once, without fading; the place is taken before the first sample sounds.
    if (music == nullptr || library->FadeInMusicPos(music, 1, 0, from / 1000.0) != 0) {
        Stop_File();
        return false;
    }
    return true;
}

// The library's way for long files loses the last moments of a wave of another frequency, which
// may be all of a short one.
bool SoundOutput::Play_Whole(const std::string& path, int from) {
    wave = library->LoadWave(path.c_str());
    const std::int64_t skipped =
        std::int64_t{std::max(from, 0)} * Frequency / 1000 * Channels * SampleSize;
    if (wave == nullptr || skipped >= wave->alen) {
        return false;
    }
    part = library->QuickLoadRaw(wave->abuf + skipped,
                                 wave->alen - static_cast<std::uint32_t>(skipped));
    return part != nullptr && library->PlayChannel(FileChannel, part, 0, -1) >= 0;
}

void SoundOutput::Stop_File() {
    if (part != nullptr) {
        library->HaltChannel(FileChannel);
        library->FreeChunk(part);
        part = nullptr;
    }
    if (wave != nullptr) {
        library->FreeChunk(wave);
        wave = nullptr;
    }
    if (music != nullptr) {
        library->FreeMusic(music);
        music = nullptr;
    }
}

bool SoundOutput::Play_Tone() {
    if (tone == nullptr) {
        samples = Make_Tone();
        tone = library->QuickLoadRaw(
            reinterpret_cast<std::uint8_t*>(samples.data()),
            static_cast<std::uint32_t>(samples.size() * sizeof samples.front()));
    }
    return tone != nullptr && library->PlayChannel(ToneChannel, tone, 0, -1) >= 0;
}

bool SoundOutput::Is_Sounding() const {
    return library != nullptr && (library->PlayingMusic() != 0 || library->Playing(-1) != 0);
}

} // namespace platform
