#pragma once

#include <QLibrary>
#include <SDL.h>
#include <SDL_mixer.h>

namespace platform::desktop {

/// The functions of SDL_mixer. The library is loaded while the program runs: it brings dozens of others along, which no
/// start should wait for, and without it the game plays on in silence.
class MixerLibrary {
public:
    /// Loads the library. False if it is not there, or too old; no function may be called then.
    bool Load();

    decltype(&Mix_OpenAudio) OpenAudio = nullptr;
    decltype(&Mix_CloseAudio) CloseAudio = nullptr;
    decltype(&Mix_SetSoundFonts) SetSoundFonts = nullptr;
    decltype(&Mix_AllocateChannels) AllocateChannels = nullptr;
    decltype(&Mix_LoadWAV_RW) LoadWav = nullptr;
    decltype(&Mix_FreeChunk) FreeChunk = nullptr;
    decltype(&Mix_PlayChannelTimed) PlayChannel = nullptr;
    decltype(&Mix_HaltChannel) HaltChannel = nullptr;
    decltype(&Mix_Playing) Playing = nullptr;
    decltype(&Mix_LoadMUSType_RW) LoadMusic = nullptr;
    decltype(&Mix_FreeMusic) FreeMusic = nullptr;
    decltype(&Mix_PlayMusic) PlayMusic = nullptr;
    decltype(&Mix_HaltMusic) HaltMusic = nullptr;
    decltype(&Mix_PlayingMusic) PlayingMusic = nullptr;
    decltype(&SDL_RWFromConstMem) FromMemory = nullptr;
    decltype(&SDL_QuitSubSystem) QuitSubSystem = nullptr;

private:
    QLibrary mixer_;
    QLibrary sdl_;
};

}  // namespace platform::desktop
