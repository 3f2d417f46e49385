#pragma once

#include <chrono>
#include <string>

#include "platform/Services.h"

namespace platform::desktop {

/// A command to a channel.
struct MediaOrder {
    std::string Channel;
    std::string File;  ///< what the channel was last told to open; UTF-8, by bare name
    MediaCommand Command;
    bool OverMusic;  ///< the music goes back while the channel sounds
};

/// Sounds files. It lies in a module of its own, `mixer`, which is loaded when the window is up: the libraries that it
/// brings along would make every start wait. One thread uses it.
class Mixer {
public:
    virtual ~Mixer() = default;

    /// Carries out an order; a file or device that fails is silent.
    virtual void Do(const MediaOrder& order) = 0;

    /// Whether somebody listens to a screen reader, under whose voice the music goes back.
    virtual void UnderVoice(bool listens) = 0;

    /// Does what is due, and tells when to come again at the latest.
    virtual std::chrono::milliseconds Attend() = 0;
};

/// What the module exports, by this name: makes a mixer, which is the caller's to delete.
using MakeMixer = Mixer* (*)();
constexpr const char* kMakeMixer = "zarpi_make_mixer";

}  // namespace platform::desktop
