#include "mixer/SdlMixer.h"

#include <QtGlobal>
#include <SDL.h>
#include <algorithm>
#include <cmath>

#include "mixer/Rendition.h"
#include "platform/Mix.h"

namespace platform::desktop {

namespace {

using namespace std::chrono_literals;

constexpr auto kLinger = 4s;         // from the last sound to the closing of the device
constexpr auto kRetryAfter = 30s;    // from a device that did not open to the next attempt
constexpr auto kLook = 1s;           // while the device is open
constexpr auto kLookAtFading = 5ms;  // while a piece waits for the end of another
constexpr auto kAsleep = 1h;         // nothing is due

constexpr int kRate = 44100;
constexpr int kStereo = 2;
constexpr int kBlock = 512;    // frames, 12 ms: the steps of every fade
constexpr int kOverMusic = 1;  // tag of the channels that the music goes back under

constexpr double kBlocksPerMillisecond = kRate / 1000.0 / kBlock;

bool IsMusic(const std::string& file) {
    return file.ends_with(".mid");
}

}  // namespace

SdlMixer::~SdlMixer() {
    Close();
}

void SdlMixer::Do(const MediaOrder& order) {
    switch (order.Command) {
        case MediaCommand::Play:
            if (!order.File.empty() && Open()) Play(order);
            break;
        case MediaCommand::Pause:
        case MediaCommand::Close: Stop(order.Channel); break;
        case MediaCommand::Open:  // the file is read when it is to sound
        case MediaCommand::Prev: break;
    }
}

bool SdlMixer::Open() {
    if (open_) return true;
    const auto now = std::chrono::steady_clock::now();
    if (now < nextTry_) return false;
    nextTry_ = now + kRetryAfter;
    SDL_SetHint(SDL_HINT_APP_NAME, "Juego de Zarpi");
    SDL_SetHint(SDL_HINT_AUDIO_DEVICE_STREAM_NAME, "Música y sonidos");
    if (Mix_OpenAudio(kRate, AUDIO_S16SYS, kStereo, kBlock) != 0) return false;
    Mix_AllocateChannels(0);
    level_ = 0;
    Mix_VolumeMusic(MIX_MAX_VOLUME);
    Mix_SetPostMix(&Balance, this);
    nextTry_ = {};
    open_ = true;
    return true;
}

void SdlMixer::Play(const MediaOrder& order) {
    lastHeard_ = std::chrono::steady_clock::now();
    if (!IsMusic(order.File)) {
        PlaySound(order);
        return;
    }
    if (!musicChannel_.empty()) Stop(musicChannel_);
    musicChannel_ = order.Channel;
    nextMusic_ = order.File;
    PlayMusic();
}

/// Starts the piece that waits, unless another one still fades out.
void SdlMixer::PlayMusic() {
    if (nextMusic_.empty() || Mix_PlayingMusic() != 0) return;
    FreeMusic();
    SDL_RWops* const stream = SDL_RWFromFile(FileToSound(nextMusic_).c_str(), "rb");
    nextMusic_.clear();
    if (stream != nullptr) music_ = Mix_LoadMUS_RW(stream, SDL_TRUE);
    if (music_ != nullptr) Mix_PlayMusic(music_, 1);
}

void SdlMixer::PlaySound(const MediaOrder& order) {
    const auto [it, isNew] = sounds_.try_emplace(order.Channel, Sound{static_cast<int>(sounds_.size()), {}, nullptr});
    Sound& sound = it->second;
    if (isNew) {
        Mix_AllocateChannels(static_cast<int>(sounds_.size()));
        if (order.OverMusic) Mix_GroupChannel(sound.number, kOverMusic);
    }
    if (sound.file != order.File) {
        if (sound.chunk != nullptr) Mix_FreeChunk(sound.chunk);
        sound.chunk = Mix_LoadWAV(order.File.c_str());
        sound.file = order.File;
    }
    if (sound.chunk == nullptr) return;
    Mix_Volume(sound.number, MIX_MAX_VOLUME);  // it may have been fading
    Mix_PlayChannel(sound.number, sound.chunk, 0);
}

void SdlMixer::Stop(const std::string& channel) {
    if (!open_) return;
    if (channel == musicChannel_) {
        musicChannel_.clear();
        nextMusic_.clear();
        Mix_FadeOutMusic(kMix.Stop);
    }
    const auto sound = sounds_.find(channel);
    if (sound != sounds_.end()) Mix_FadeOutChannel(sound->second.number, kMix.Stop);
}

void SdlMixer::FreeMusic() {
    if (music_ != nullptr) Mix_FreeMusic(music_);
    music_ = nullptr;
}

std::chrono::milliseconds SdlMixer::Attend() {
    if (!open_) return kAsleep;
    PlayMusic();
    if (!nextMusic_.empty()) return kLookAtFading;
    constexpr int kAll = -1;
    const auto now = std::chrono::steady_clock::now();
    if (Mix_Playing(kAll) != 0 || Mix_PlayingMusic() != 0) lastHeard_ = now;
    if (now - lastHeard_ < kLinger) return kLook;
    Close();
    return kAsleep;
}

void SdlMixer::Balance(void* mixer, Uint8* /*stream*/, int /*length*/) {
    auto& self = *static_cast<SdlMixer*>(mixer);
    const double target = MusicLevel(Mix_GroupNewer(kOverMusic) != -1, self.underVoice_);
    const double back = kMix.UnderSound / (kMix.Back * kBlocksPerMillisecond);
    const double up = -kMix.UnderSound / (kMix.Up * kBlocksPerMillisecond);
    const double next =
        self.level_ > target ? std::max(target, self.level_ + back) : std::min(target, self.level_ + up);
    if (next == self.level_) return;
    self.level_ = next;
    Mix_VolumeMusic(static_cast<int>(std::lround(std::pow(10, next / 20) * MIX_MAX_VOLUME)));
}

void SdlMixer::Close() {
    if (!open_) return;
    Mix_HaltMusic();
    FreeMusic();
    for (auto& [channel, sound] : sounds_) {
        Mix_HaltChannel(sound.number);
        if (sound.chunk != nullptr) Mix_FreeChunk(sound.chunk);
    }
    sounds_.clear();
    musicChannel_.clear();
    nextMusic_.clear();
    Mix_CloseAudio();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);  // with it goes the thread that looks for new devices
    open_ = false;
}

}  // namespace platform::desktop

extern "C" Q_DECL_EXPORT platform::desktop::Mixer* zarpi_make_mixer() {
    return new platform::desktop::SdlMixer;
}
