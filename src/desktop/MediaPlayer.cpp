#include "desktop/MediaPlayer.h"

#include <QtGlobal>
#include <chrono>

#include "desktop/Mixer.h"

namespace platform::desktop {

MediaPlayer::~MediaPlayer() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    wake_.notify_one();
    if (worker_.joinable()) worker_.join();
}

void MediaPlayer::Start() {
    if (worker_.joinable()) return;
    // Without this SDL would take the signals that end a program for itself.
    qputenv("SDL_NO_SIGNAL_HANDLERS", "1");
    worker_ = std::thread([this] { Work(); });
}

void MediaPlayer::Command(const MediaChannel& channel, MediaCommand command) {
    if (command == MediaCommand::Open) files_[channel.Name] = ToUtf8(channel.FileName);
    if (command == MediaCommand::Open || command == MediaCommand::Prev) return;  // nothing to be heard
    Order order{channel.Name, files_[channel.Name], command};
    if (command == MediaCommand::Close) files_.erase(channel.Name);
    {
        const std::lock_guard lock(mutex_);
        orders_.push_back(std::move(order));
    }
    wake_.notify_one();
}

void MediaPlayer::Work() {
    using namespace std::chrono_literals;
    constexpr auto kLook = 1s;
    Mixer mixer;
    const auto called = [this] { return ending_ || !orders_.empty(); };
    std::unique_lock lock(mutex_);
    while (!ending_) {
        if (!orders_.empty()) {
            const Order order = std::move(orders_.front());
            orders_.pop_front();
            lock.unlock();
            mixer.Do(order.channel, order.file, order.command);
            lock.lock();
        } else if (!mixer.IsOpen()) {
            wake_.wait(lock, called);
        } else if (!wake_.wait_for(lock, kLook, called)) {
            lock.unlock();
            mixer.RestIfSilent();
            lock.lock();
        }
    }
}

}  // namespace platform::desktop
