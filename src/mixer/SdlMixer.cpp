#include "mixer/SdlMixer.h"

#include <QFile>
#include <QtGlobal>
#include <SDL.h>

namespace platform::desktop {

namespace {

using namespace std::chrono_literals;

constexpr auto kLinger = 4s;          // from the last sound to the closing of the device
constexpr auto kRetryAfter = 1s;      // from a device that did not open to the next attempt
constexpr auto kLook = 500ms;         // while the device is open
constexpr auto kLookAtFading = 5ms;   // while a piece fades out
constexpr auto kAsleep = 1h;          // nothing is due
constexpr auto kLongestPiece = 3min;  // what began earlier is over
constexpr auto kMissed = 1s;          // of a piece, before it is taken up where it has come to

constexpr int kStereo = 2;
/// Frames, 23 ms. With as many, 27 ms go by from a key to the ear; with twice as many 52, and with half as many the
/// gaps on a machine under load are three times as many.
constexpr int kBlock = 1024;

/// The recording beside the notes, where there is one. Notes of the player's own have none in their folder.
std::string FileToSound(const std::string& midi) {
    const std::string ogg = midi.substr(0, midi.rfind('.')) + ".ogg";
    return QFile::exists(QString::fromStdString(ogg)) ? ogg : midi;
}

bool IsMusic(const std::string& file) {
    return file.ends_with(".mid");
}

/// Whether the system has told that an open device is gone.
bool HasLostDevice() {
    constexpr Uint32 kListed = 0;  // a device that was not open
    bool lost = false;
    SDL_PumpEvents();
    for (SDL_Event event; SDL_PeepEvents(&event, 1, SDL_GETEVENT, SDL_FIRSTEVENT, SDL_LASTEVENT) == 1;) {
        lost = lost || (event.type == SDL_AUDIODEVICEREMOVED && event.adevice.which != kListed);
    }
    return lost;
}

Samples SamplesOf(const Mix_Chunk& chunk) {
    return {reinterpret_cast<std::int16_t*>(chunk.abuf), chunk.alen / sizeof(std::int16_t)};
}

}  // namespace

SdlMixer::~SdlMixer() {
    Close();
}

void SdlMixer::Do(const MediaOrder& order) {
    switch (order.Command) {
        case MediaCommand::Play:
            if (!order.File.empty()) Play(order);
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
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");  // the signals that end a program are not SDL's
    constexpr int kNoChanges = 0;
    if (Mix_OpenAudioDevice(kRate, AUDIO_S16SYS, kStereo, kBlock, nullptr, kNoChanges) != 0) {
        SDL_QuitSubSystem(SDL_INIT_AUDIO);  // the next attempt looks for a sound server anew
        return false;
    }
    Mix_SetPostMix(&Complete, &blend_);
    lastHeard_ = now;
    nextTry_ = {};
    open_ = true;
    return true;
}

void SdlMixer::Play(const MediaOrder& order) {
    lastHeard_ = std::chrono::steady_clock::now();
    const bool isOpen = Open();
    if (!IsMusic(order.File)) {
        if (isOpen) PlaySound(order);
        return;
    }
    piece_ = Piece{.channel = order.Channel, .file = order.File, .began = lastHeard_};
    blend_.EndMusic();
    PlayMusic();
}

/// Starts the piece that waits, unless another one still fades out.
void SdlMixer::PlayMusic() {
    if (!open_) return;
    if (Mix_PlayingMusic() != 0 && blend_.MusicHasEnded()) Mix_HaltMusic();
    if (piece_ && !piece_->isPlaying && Mix_PlayingMusic() == 0) StartMusic();
}

void SdlMixer::StartMusic() {
    FreeMusic();
    piece_->isPlaying = true;
    if (SDL_RWops* const stream = SDL_RWFromFile(FileToSound(piece_->file).c_str(), "rb")) {
        music_ = Mix_LoadMUS_RW(stream, SDL_TRUE);
    }
    const std::chrono::duration<double> gone = std::chrono::steady_clock::now() - piece_->began;
    if (music_ == nullptr || (gone > kMissed && gone.count() > Mix_MusicDuration(music_))) {
        piece_.reset();
        return;
    }
    gone > kMissed ? blend_.ResumeMusic() : blend_.BeginMusic();
    Mix_PlayMusic(music_, 1);
    if (gone > kMissed) Mix_SetMusicPosition(gone.count());
}

void SdlMixer::PlaySound(const MediaOrder& order) {
    const auto [it, isNew] = sounds_.try_emplace(order.Channel, Sound{static_cast<int>(sounds_.size()), {}, nullptr});
    Sound& sound = it->second;
    if (sound.file != order.File) {
        if (sound.chunk != nullptr) {
            blend_.Silence();
            Mix_FreeChunk(sound.chunk);
        }
        sound.chunk = Mix_LoadWAV(order.File.c_str());
        sound.file = order.File;
    }
    if (sound.chunk != nullptr) blend_.Play(sound.number, SamplesOf(*sound.chunk), order.OverMusic);
}

void SdlMixer::Stop(const std::string& channel) {
    if (piece_ && piece_->channel == channel) {
        piece_.reset();
        blend_.EndMusic();
    }
    const auto sound = sounds_.find(channel);
    if (sound != sounds_.end()) blend_.Stop(sound->second.number);
}

void SdlMixer::FreeMusic() {
    if (music_ != nullptr) Mix_FreeMusic(music_);
    music_ = nullptr;
}

std::chrono::milliseconds SdlMixer::Attend() {
    const auto now = std::chrono::steady_clock::now();
    LetGoOfLostDevice();
    if (piece_ && !piece_->isPlaying && now - piece_->began > kLongestPiece) piece_.reset();
    if (!open_ && (!piece_ || !Open())) return piece_ ? kRetryAfter : kAsleep;
    PlayMusic();
    const bool isPlaying = Mix_PlayingMusic() != 0;
    if (isPlaying && (!piece_ || !piece_->isPlaying)) return kLookAtFading;
    if (isPlaying || blend_.IsSounding()) lastHeard_ = now;
    if (now - lastHeard_ < kLinger) return kLook;
    piece_.reset();
    Close();
    return kAsleep;
}

void SdlMixer::LetGoOfLostDevice() {
    if (!open_ || !HasLostDevice()) return;
    const bool isPlaying = Mix_PlayingMusic() != 0;
    Close();
    if (!piece_) return;
    if (piece_->isPlaying && !isPlaying) {
        piece_.reset();
    } else {
        piece_->isPlaying = false;
    }
}

void SdlMixer::Complete(void* blend, Uint8* stream, int length) {
    static_cast<Blend*>(blend)->Complete(
        {reinterpret_cast<std::int16_t*>(stream), static_cast<std::size_t>(length) / sizeof(std::int16_t)});
}

void SdlMixer::Close() {
    if (!open_) return;
    Mix_HaltMusic();
    FreeMusic();
    blend_.Silence();
    for (auto& [channel, sound] : sounds_) {
        if (sound.chunk != nullptr) Mix_FreeChunk(sound.chunk);
    }
    sounds_.clear();
    Mix_CloseAudio();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);  // with it goes the thread that looks for new devices
    open_ = false;
}

}  // namespace platform::desktop

extern "C" Q_DECL_EXPORT platform::desktop::Mixer* zarpi_make_mixer() {
    return new platform::desktop::SdlMixer;
}
