#pragma once

#include <SDL_mixer.h>
#include <chrono>
#include <map>
#include <optional>
#include <string>

#include "desktop/system/Mixer.h"
#include "mixer/Blend.h"

namespace platform::desktop {

/// Sounds `.wav` files, over each other, and one piece of music at a time. The device is open only while something
/// sounds and a little longer, so that silence costs nothing. Where there is no device, or it goes away, the piece goes
/// on unheard and is heard again from where it has come to as soon as a device can be opened.
class SdlMixer : public Mixer {
public:
    SdlMixer() = default;
    ~SdlMixer() override;
    SdlMixer(const SdlMixer&) = delete;
    SdlMixer& operator=(const SdlMixer&) = delete;

    void Do(const MediaOrder& order) override;
    void UnderVoice(bool listens) override { blend_.UnderVoice(listens); }
    std::chrono::milliseconds Attend() override;

private:
    using Time = std::chrono::steady_clock::time_point;

    /// What the music is to be, heard or not.
    struct Piece {
        std::string channel;
        std::string file;
        Time began;
        bool isPlaying = false;  ///< by the device
    };
    /// A channel that has sounded a `.wav` file since the device was opened.
    struct Sound {
        int number;
        std::string file;
        Mix_Chunk* chunk;
    };

    bool Open();
    void Close();
    void LetGoOfLostDevice();
    void Play(const MediaOrder& order);
    void PlayMusic();
    void StartMusic();
    void PlaySound(const MediaOrder& order);
    void Stop(const std::string& channel);
    void FreeMusic();
    /// Called on the device's thread with every block.
    static void Complete(void* blend, Uint8* stream, int length);

    bool open_ = false;
    Time nextTry_{};
    Time lastHeard_{};
    std::map<std::string, Sound> sounds_;
    std::optional<Piece> piece_;
    Mix_Music* music_ = nullptr;  // that the device plays; it may still be fading out when the piece is another
    Blend blend_;
};

}  // namespace platform::desktop
