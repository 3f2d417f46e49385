#pragma once

#include <cstdint>
#include <map>
#include <mutex>
#include <span>

#include "mixer/Level.h"
#include "platform/Mix.h"

namespace platform::desktop {

/// Samples for two loudspeakers in turn.
using Samples = std::span<std::int16_t>;

/// What comes last before the loudspeakers: gives the music its level and adds the sounds, frame by frame, so that no
/// fade depends on the size of a block. One thread orders, the device's own takes.
class Blend {
public:
    /// Starts a sound on a channel, in place of what the channel sounds. The samples stay the caller's and are needed
    /// until the sound is over or Silence has been called.
    void Play(int channel, Samples sound, bool overMusic);
    /// Fades a sound out.
    void Stop(int channel);
    /// Music begins at its full level.
    void BeginMusic();
    /// Music that comes back in the midst of a piece rises to its level.
    void ResumeMusic();
    /// Fades the music out.
    void EndMusic();
    /// Whether music that was ended has faded out.
    [[nodiscard]] bool MusicHasEnded() const;
    [[nodiscard]] bool IsSounding() const;
    void UnderVoice(bool listens);
    /// Forgets all sounds.
    void Silence();

    /// Turns a block of music into what is to be heard.
    void Complete(Samples music);

private:
    struct Sound {
        Samples rest;
        bool overMusic;
        Level level{0};
    };

    void AddSound(Sound& sound, Samples block) const;

    mutable std::mutex mutex_;
    std::map<int, Sound> sounds_;
    bool underVoice_ = false;
    Level music_{0};  // of the piece itself
    Level back_{0};   // under what is to be heard over it
};

}  // namespace platform::desktop
