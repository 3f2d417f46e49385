#include "desktop/system/MediaPlayer.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibrary>
#include <memory>
#include <utility>

#include "desktop/system/Assets.h"

namespace platform::desktop {

namespace {

/// The module lies beside the program, or where it was installed.
std::unique_ptr<Mixer> LoadMixer() {
    const QString program = QCoreApplication::applicationDirPath();
    for (const QString& folder : {program, program + '/' + ZARPI_MODULES}) {
        const auto make = reinterpret_cast<MakeMixer>(QLibrary::resolve(folder + '/' + ZARPI_MIXER, kMakeMixer));
        if (make != nullptr) return std::unique_ptr<Mixer>(make());
    }
    return nullptr;
}

}  // namespace

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
    worker_ = std::thread([this] { Work(); });
}

void MediaPlayer::Command(const MediaChannel& channel, MediaCommand command) {
    if (command == MediaCommand::Open)
        files_[channel.Name] = QFileInfo(AssetPath(channel.FileName)).absoluteFilePath().toStdString();
    if (command == MediaCommand::Open || command == MediaCommand::Prev) return;  // nothing to be heard
    MediaOrder order{channel.Name, files_[channel.Name], command, channel.OverMusic};
    {
        const std::lock_guard lock(mutex_);
        orders_.push_back(std::move(order));
    }
    wake_.notify_one();
}

void MediaPlayer::UnderVoice(bool listens) {
    {
        const std::lock_guard lock(mutex_);
        underVoice_ = listens;
    }
    wake_.notify_one();
}

void MediaPlayer::Work() {
    using namespace std::chrono_literals;
    const std::unique_ptr<Mixer> mixer = LoadMixer();
    std::unique_lock lock(mutex_);
    bool underVoice = false;
    while (!ending_) {
        if (std::exchange(underVoice, underVoice_) != underVoice_ && mixer != nullptr) mixer->UnderVoice(underVoice);
        if (orders_.empty()) {
            lock.unlock();
            const auto patience = mixer == nullptr ? 1h : mixer->Attend();
            lock.lock();
            wake_.wait_for(lock, patience, [&] { return ending_ || !orders_.empty() || underVoice != underVoice_; });
            continue;
        }
        const MediaOrder order = std::move(orders_.front());
        orders_.pop_front();
        lock.unlock();
        if (mixer != nullptr) mixer->Do(order);
        lock.lock();
    }
}

}  // namespace platform::desktop
