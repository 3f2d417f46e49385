#include "mixer/Blend.h"

#include <algorithm>
#include <limits>

namespace platform::desktop {

namespace {

constexpr std::size_t kLoudspeakers = 2;

std::int16_t Limited(double sample) {
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(std::lround(std::clamp<double>(sample, Limits::min(), Limits::max())));
}

}  // namespace

void Blend::Play(int channel, Samples sound, bool overMusic) {
    const std::lock_guard lock(mutex_);
    sounds_.insert_or_assign(channel, Sound{.rest = sound, .overMusic = overMusic});
}

void Blend::Stop(int channel) {
    const std::lock_guard lock(mutex_);
    const auto sound = sounds_.find(channel);
    if (sound != sounds_.end()) sound->second.level.GoTo(kMix.Silence, kMix.Stop);
}

void Blend::BeginMusic() {
    const std::lock_guard lock(mutex_);
    music_ = Level(0);
}

void Blend::ResumeMusic() {
    const std::lock_guard lock(mutex_);
    music_ = Level(kMix.Silence);
    music_.GoTo(0, kMix.Up);
}

void Blend::EndMusic() {
    const std::lock_guard lock(mutex_);
    music_.GoTo(kMix.Silence, kMix.Stop);
}

bool Blend::MusicHasEnded() const {
    const std::lock_guard lock(mutex_);
    return music_.IsAt(kMix.Silence);
}

bool Blend::IsSounding() const {
    const std::lock_guard lock(mutex_);
    return !sounds_.empty();
}

void Blend::UnderVoice(bool listens) {
    const std::lock_guard lock(mutex_);
    underVoice_ = listens;
}

void Blend::Silence() {
    const std::lock_guard lock(mutex_);
    sounds_.clear();
}

void Blend::Complete(Samples music) {
    const std::lock_guard lock(mutex_);
    const bool underSound = std::ranges::any_of(sounds_, [](const auto& sound) { return sound.second.overMusic; });
    const double level = MusicLevel(underSound, underVoice_);
    back_.GoTo(level, back_.IsAbove(level) ? kMix.Back : kMix.Up);
    for (std::size_t i = 0; i < music.size(); i += kLoudspeakers) {
        const double gain = music_.Next() * back_.Next();
        for (auto& sample : music.subspan(i, kLoudspeakers)) sample = Limited(sample * gain);
    }
    for (auto& [channel, sound] : sounds_) AddSound(sound, music);
    std::erase_if(sounds_,
                  [](const auto& entry) { return entry.second.rest.empty() || entry.second.level.IsAt(kMix.Silence); });
}

void Blend::AddSound(Sound& sound, Samples block) const {
    const std::size_t length = std::min(block.size(), sound.rest.size());
    for (std::size_t i = 0; i < length; i += kLoudspeakers) {
        const double gain = sound.level.Next();
        for (std::size_t side = i; side < i + kLoudspeakers; ++side) {
            block[side] = Limited(block[side] + sound.rest[side] * gain);
        }
    }
    sound.rest = sound.rest.subspan(length);
}

}  // namespace platform::desktop
