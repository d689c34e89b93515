#include "platform/linux/sound_library.h"

#include <dlfcn.h>

namespace platform {

namespace {

template <class Function>
bool Find(void* library, const char* name, Function& function) {
    function = reinterpret_cast<Function>(dlsym(library, name));
    return function != nullptr;
}

bool Find_All(void* from, SoundLibrary& all) {
    return Find(from, "SDL_SetHint", all.SetHint) &&
           Find(from, "SDL_InitSubSystem", all.InitSubSystem) &&
           Find(from, "SDL_QuitSubSystem", all.QuitSubSystem) &&
           Find(from, "SDL_TLSCleanup", all.CleanUpThread) &&
           Find(from, "Mix_OpenAudioDevice", all.OpenAudioDevice) &&
           Find(from, "Mix_CloseAudio", all.CloseAudio) &&
           Find(from, "SDL_RWFromFile", all.OpenFile) && Find(from, "Mix_LoadMUS", all.LoadMusic) &&
           Find(from, "Mix_LoadMUSType_RW", all.LoadMusicOfType) &&
           Find(from, "Mix_FreeMusic", all.FreeMusic) &&
           Find(from, "Mix_FadeInMusicPos", all.FadeInMusicPos) &&
           Find(from, "Mix_PlayingMusic", all.PlayingMusic) &&
           Find(from, "Mix_LoadWAV", all.LoadWave) &&
           Find(from, "Mix_QuickLoad_RAW", all.QuickLoadRaw) &&
           Find(from, "Mix_FreeChunk", all.FreeChunk) &&
           Find(from, "Mix_PlayChannelTimed", all.PlayChannel) &&
           Find(from, "Mix_HaltChannel", all.HaltChannel) && Find(from, "Mix_Playing", all.Playing);
}

} // namespace

const SoundLibrary* SoundLibrary::Load() {
    static SoundLibrary all;
    static const bool isLoaded = [] {
        // Never unloaded: its threads and exit handlers may outlive every use.
        void* library = dlopen("libSDL2_mixer-2.0.so.0", RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
        return library != nullptr && Find_All(library, all);
    }();
    return isLoaded ? &all : nullptr;
}

} // namespace platform
