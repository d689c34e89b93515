// SDL2_mixer, loaded when the first sound is played: its decoders bring some forty libraries along,
// which a program that is mostly silent need not carry from its start.
#pragma once

#include <SDL2/SDL.h>
#include <SDL2/SDL_mixer.h>

namespace platform {

struct SoundLibrary {
    decltype(&SDL_SetHint) SetHint = nullptr;
    decltype(&SDL_InitSubSystem) InitSubSystem = nullptr;
    decltype(&SDL_QuitSubSystem) QuitSubSystem = nullptr;
    decltype(&SDL_TLSCleanup) CleanUpThread = nullptr;
    decltype(&Mix_OpenAudioDevice) OpenAudioDevice = nullptr;
    decltype(&Mix_CloseAudio) CloseAudio = nullptr;
    decltype(&SDL_RWFromFile) OpenFile = nullptr;
    decltype(&Mix_LoadMUS) LoadMusic = nullptr;
    decltype(&Mix_LoadMUSType_RW) LoadMusicOfType = nullptr;
    decltype(&Mix_FreeMusic) FreeMusic = nullptr;
    decltype(&Mix_FadeInMusicPos) FadeInMusicPos = nullptr;
    decltype(&Mix_PlayingMusic) PlayingMusic = nullptr;
    decltype(&Mix_LoadWAV) LoadWave = nullptr;
    decltype(&Mix_QuickLoad_RAW) QuickLoadRaw = nullptr;
    decltype(&Mix_FreeChunk) FreeChunk = nullptr;
    decltype(&Mix_PlayChannelTimed) PlayChannel = nullptr;
    decltype(&Mix_HaltChannel) HaltChannel = nullptr;
    decltype(&Mix_Playing) Playing = nullptr;

    // The library, once loaded; nullptr when it is not installed. From one thread only.
    static const SoundLibrary* Load();
};

} // namespace platform
