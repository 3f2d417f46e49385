#pragma once

#include <SDL_mixer.h>
#include <atomic>
#include <chrono>
#include <map>
#include <string>

#include "desktop/system/Mixer.h"

namespace platform::desktop {

/// Sounds `.wav` files, over each other, and one piece of music at a time. What stops fades out, and the music goes
/// back under the channels that are to be heard over it. The device is open only while something sounds and a little
/// longer, so that silence costs nothing.
class SdlMixer : public Mixer {
public:
    SdlMixer() = default;
    ~SdlMixer() override;
    SdlMixer(const SdlMixer&) = delete;
    SdlMixer& operator=(const SdlMixer&) = delete;

    void Do(const MediaOrder& order) override;
    void UnderVoice(bool listens) override { underVoice_ = listens; }
    std::chrono::milliseconds Attend() override;

private:
    using Time = std::chrono::steady_clock::time_point;

    /// A channel that has sounded a `.wav` file since the device was opened.
    struct Sound {
        int number;  ///< of the mixer's channel
        std::string file;
        Mix_Chunk* chunk;
    };

    bool Open();
    void Close();
    void Play(const MediaOrder& order);
    void PlayMusic();
    void PlaySound(const MediaOrder& order);
    void Stop(const std::string& channel);
    void FreeMusic();
    /// Called on the mixer's thread after every block of sound: moves the music's volume.
    static void Balance(void* mixer, Uint8* stream, int length);

    bool open_ = false;
    Time nextTry_{};
    Time lastHeard_{};
    std::map<std::string, Sound> sounds_;
    std::string musicChannel_;
    std::string nextMusic_;  // waits for the end of the one that fades out
    Mix_Music* music_ = nullptr;
    std::atomic<bool> underVoice_ = false;
    double level_ = 0;  // of the music, decibels; the mixer's thread alone uses it while the device is open
};

}  // namespace platform::desktop
