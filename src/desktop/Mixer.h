#pragma once

#include <chrono>
#include <map>
#include <string>

#include "desktop/MixerLibrary.h"
#include "platform/Services.h"

namespace platform::desktop {

/// Sounds `.wav` files, over each other, and one `.mid` file at a time. The device is open only while something sounds
/// and a little longer, so that silence costs nothing. One thread uses it; a file or device that fails is silent.
class Mixer {
public:
    Mixer() = default;
    ~Mixer();
    Mixer(const Mixer&) = delete;
    Mixer& operator=(const Mixer&) = delete;

    /// A command to the channel of this name; `file` is what it was last told to open.
    void Do(const std::string& channel, const std::string& file, MediaCommand command);

    /// Whether the device is open, so that RestIfSilent has to be called from time to time.
    [[nodiscard]] bool IsOpen() const { return open_; }
    /// Closes the device after a while of silence.
    void RestIfSilent();

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
    void PlayMusic(const std::string& channel, const std::string& file);
    void PlaySound(const std::string& channel, const std::string& file);
    void Stop(const std::string& channel);
    void StopMusic();
    [[nodiscard]] Mix_Music* LoadMusic(const QByteArray& midi) const;

    MixerLibrary library_;
    bool loaded_ = false;
    bool open_ = false;
    Time nextTry_{};
    Time lastHeard_{};
    std::map<std::string, Sound> sounds_;
    std::string musicChannel_;
    Mix_Music* music_ = nullptr;
    QByteArray musicBytes_;  // the mixer reads the piece from here while it sounds
};

}  // namespace platform::desktop
