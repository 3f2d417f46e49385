#pragma once

#include <algorithm>

/// How loud music and sounds are beside each other, and how they come and go: the same on every platform.
namespace platform {

/// The table. Levels are decibels, times milliseconds.
struct Mix {
    double UnderSound = -10;  ///< the music, while a sound plays that is to be heard over it
    double UnderVoice = -10;  ///< the music, all the while that somebody listens to a screen reader
    double Silence = -60;     ///< what stops has come down to this, at least, before it is cut off
    int Back = 50;            ///< in so long the music goes back
    int Up = 400;             ///< in so long it comes up again
    int Stop = 50;            ///< in so long a piece or a sound that is stopped fades out
};

inline constexpr Mix kMix;

/// The level of the music in decibels. What asks for the lowest level wins.
constexpr double MusicLevel(bool underSound, bool underVoice) {
    return std::min(underSound ? kMix.UnderSound : 0.0, underVoice ? kMix.UnderVoice : 0.0);
}

}  // namespace platform
