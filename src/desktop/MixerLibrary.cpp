#include "desktop/MixerLibrary.h"

namespace platform::desktop {

namespace {

/// The names of the libraries, with the version of their interface where the system tells it apart.
#if defined(Q_OS_WIN)
constexpr const char* kMixer = "SDL2_mixer";
constexpr const char* kSdl = "SDL2";
constexpr int kVersion = -1;
#elif defined(Q_OS_MACOS)
constexpr const char* kMixer = "SDL2_mixer-2.0";
constexpr const char* kSdl = "SDL2-2.0";
constexpr int kVersion = 0;
#else
constexpr const char* kMixer = "SDL2_mixer-2.0";
constexpr const char* kSdl = "SDL2-2.0";
constexpr int kVersion = 0;
#endif

template <class Function>
bool Resolve(QLibrary& library, const char* name, Function& function) {
    function = reinterpret_cast<Function>(library.resolve(name));
    return function != nullptr;
}

}  // namespace

bool MixerLibrary::Load() {
    mixer_.setFileNameAndVersion(kMixer, kVersion);
    sdl_.setFileNameAndVersion(kSdl, kVersion);
    return mixer_.load() && sdl_.load() && Resolve(mixer_, "Mix_OpenAudio", OpenAudio) &&
           Resolve(mixer_, "Mix_CloseAudio", CloseAudio) && Resolve(mixer_, "Mix_SetSoundFonts", SetSoundFonts) &&
           Resolve(mixer_, "Mix_AllocateChannels", AllocateChannels) && Resolve(mixer_, "Mix_LoadWAV_RW", LoadWav) &&
           Resolve(mixer_, "Mix_FreeChunk", FreeChunk) && Resolve(mixer_, "Mix_PlayChannelTimed", PlayChannel) &&
           Resolve(mixer_, "Mix_HaltChannel", HaltChannel) && Resolve(mixer_, "Mix_Playing", Playing) &&
           Resolve(mixer_, "Mix_LoadMUSType_RW", LoadMusic) && Resolve(mixer_, "Mix_FreeMusic", FreeMusic) &&
           Resolve(mixer_, "Mix_PlayMusic", PlayMusic) && Resolve(mixer_, "Mix_HaltMusic", HaltMusic) &&
           Resolve(mixer_, "Mix_PlayingMusic", PlayingMusic) && Resolve(sdl_, "SDL_RWFromConstMem", FromMemory) &&
           Resolve(sdl_, "SDL_QuitSubSystem", QuitSubSystem);
}

}  // namespace platform::desktop
