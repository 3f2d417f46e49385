#include "desktop/Mixer.h"

#include <QFile>
#include <QTemporaryFile>
#include <algorithm>
#include <array>

#include "desktop/MidiPrograms.h"
#include "desktop/SoundFont.h"
#include "desktop/Strings.h"

namespace platform::desktop {

namespace {

using namespace std::chrono_literals;

constexpr auto kLinger = 4s;       // from the last sound to the closing of the device
constexpr auto kRetryAfter = 30s;  // from a device that did not open to the next attempt

/// Where systems keep a small set of General MIDI instruments; the game folder comes first.
constexpr std::array<const char*, 8> kSoundFonts = {
    "TimGM6mb.sf2",
    "/usr/share/sounds/sf2/TimGM6mb.sf2",
    "/usr/share/soundfonts/TimGM6mb.sf2",
    "/usr/local/share/sounds/sf2/TimGM6mb.sf2",
    "/usr/share/sounds/sf2/default-GM.sf2",
    "/usr/share/sounds/sf3/default-GM.sf3",
    "/usr/share/soundfonts/default.sf2",
    "/usr/share/sounds/sf2/FluidR3_GM.sf2",
};

bool IsMusic(const std::string& file) {
    return file.ends_with(".mid");
}

/// Empty if there is none.
QString FindSoundFont() {
    const auto* const found = std::ranges::find_if(kSoundFonts, [](const char* path) { return QFile::exists(path); });
    return found == kSoundFonts.end() ? QString() : QString(*found);
}

/// The whole file; empty if it cannot be read.
QByteArray Content(const std::string& name) {
    QFile file(ToQt(std::string_view(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

Mixer::~Mixer() {
    Close();
}

void Mixer::Do(const std::string& channel, const std::string& file, MediaCommand command) {
    switch (command) {
        case MediaCommand::Play:
            if (file.empty() || !Open()) return;
            lastHeard_ = std::chrono::steady_clock::now();
            if (IsMusic(file)) {
                PlayMusic(channel, file);
            } else {
                PlaySound(channel, file);
            }
            break;
        case MediaCommand::Pause:
        case MediaCommand::Close: Stop(channel); break;
        case MediaCommand::Open:  // the file is read when it is to sound
        case MediaCommand::Prev: break;
    }
}

bool Mixer::Open() {
    if (open_) return true;
    const auto now = std::chrono::steady_clock::now();
    if (now < nextTry_) return false;
    nextTry_ = now + kRetryAfter;
    constexpr int kRate = 44100;
    constexpr int kStereo = 2;
    constexpr int kSamples = 1024;  // 23 ms, the longest that a sound is late
    if (!loaded_) loaded_ = library_.Load();
    if (!loaded_ || library_.OpenAudio(kRate, AUDIO_S16SYS, kStereo, kSamples) != 0) return false;
    library_.AllocateChannels(0);
    nextTry_ = {};
    open_ = true;
    return true;
}

void Mixer::PlayMusic(const std::string& channel, const std::string& file) {
    StopMusic();
    musicBytes_ = Content(file);
    musicChannel_ = channel;
    if (!musicBytes_.isEmpty()) music_ = LoadMusic(musicBytes_);
    if (music_ != nullptr) library_.PlayMusic(music_, 1);
}

/// The mixer reads SoundFonts by name alone, and at once: the instruments of this piece stand in a file for that long.
Mix_Music* Mixer::LoadMusic(const QByteArray& midi) const {
    QFile font(FindSoundFont());
    if (!font.open(QIODevice::ReadOnly)) return nullptr;
    const uchar* const bytes = font.map(0, font.size());
    QTemporaryFile part;
    if (bytes != nullptr && part.open()) part.write(CutSoundFont({bytes, font.size()}, ProgramsOf(midi)));
    const bool isCut = part.size() > 0 && part.flush();
    library_.SetSoundFonts((isCut ? part.fileName() : font.fileName()).toUtf8().constData());
    font.close();
    SDL_RWops* const stream = library_.FromMemory(midi.constData(), static_cast<int>(midi.size()));
    return library_.LoadMusic(stream, MUS_MID, SDL_TRUE);
}

void Mixer::PlaySound(const std::string& channel, const std::string& file) {
    const auto [it, isNew] = sounds_.try_emplace(channel, Sound{static_cast<int>(sounds_.size()), {}, nullptr});
    if (isNew) library_.AllocateChannels(static_cast<int>(sounds_.size()));
    Sound& sound = it->second;
    if (sound.file != file) {
        if (sound.chunk != nullptr) library_.FreeChunk(sound.chunk);
        const QByteArray bytes = Content(file);
        SDL_RWops* const stream =
            bytes.isEmpty() ? nullptr : library_.FromMemory(bytes.constData(), static_cast<int>(bytes.size()));
        sound.chunk = stream == nullptr ? nullptr : library_.LoadWav(stream, SDL_TRUE);
        sound.file = file;
    }
    constexpr int kOnce = 0;
    constexpr int kToItsEnd = -1;
    if (sound.chunk != nullptr) library_.PlayChannel(sound.number, sound.chunk, kOnce, kToItsEnd);
}

void Mixer::Stop(const std::string& channel) {
    if (!open_) return;
    if (channel == musicChannel_) StopMusic();
    const auto sound = sounds_.find(channel);
    if (sound != sounds_.end()) library_.HaltChannel(sound->second.number);
}

void Mixer::StopMusic() {
    if (music_ == nullptr) return;
    library_.HaltMusic();
    library_.FreeMusic(music_);
    music_ = nullptr;
    musicChannel_.clear();
}

void Mixer::RestIfSilent() {
    if (!open_) return;
    constexpr int kAll = -1;
    const auto now = std::chrono::steady_clock::now();
    if (library_.Playing(kAll) != 0 || library_.PlayingMusic() != 0) lastHeard_ = now;
    if (now - lastHeard_ >= kLinger) Close();
}

void Mixer::Close() {
    if (!open_) return;
    StopMusic();
    for (auto& [channel, sound] : sounds_) {
        library_.HaltChannel(sound.number);
        if (sound.chunk != nullptr) library_.FreeChunk(sound.chunk);
    }
    sounds_.clear();
    library_.CloseAudio();
    library_.QuitSubSystem(SDL_INIT_AUDIO);  // with it goes the thread that looks for new devices
    open_ = false;
}

}  // namespace platform::desktop
