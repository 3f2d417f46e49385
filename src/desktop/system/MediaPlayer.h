#pragma once

#include <condition_variable>
#include <deque>
#include <map>
#include <mutex>
#include <thread>

#include "desktop/system/Mixer.h"
#include "platform/Services.h"

namespace platform::desktop {

/// Passes media commands to a thread of its own, in their order, so that no window ever waits for a device or a file.
class MediaPlayer : public Media {
public:
    MediaPlayer() = default;
    ~MediaPlayer() override;

    /// Commands are kept from the beginning and carried out from here on. Without its module the player is silent.
    void Start();

    void Command(const MediaChannel& channel, MediaCommand command) override;

    /// Whether somebody listens to a screen reader: the music goes back at once, and stays there until nobody does.
    void UnderVoice(bool listens);

private:
    void Work();

    std::map<std::string, std::string> files_;  // what each channel was last told to open
    std::mutex mutex_;
    std::condition_variable wake_;
    std::deque<MediaOrder> orders_;
    bool underVoice_ = false;
    bool ending_ = false;
    std::thread worker_;
};

}  // namespace platform::desktop
