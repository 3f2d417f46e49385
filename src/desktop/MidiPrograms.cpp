#include "desktop/MidiPrograms.h"

#include <QtEndian>
#include <algorithm>
#include <array>
#include <set>

namespace platform::desktop {

namespace {

constexpr int kChannels = 16;
constexpr int kDrumChannel = 9;

/// Reads the events of one track.
class Track {
public:
    explicit Track(QByteArrayView bytes) : bytes_(bytes) {}

    /// Tells `onProgram(channel, program)` and `onNote(channel, note)`.
    template <class OnProgram, class OnNote>
    void Read(OnProgram onProgram, OnNote onNote) {
        while (at_ < bytes_.size()) {
            Length();  // the time
            if ((Peek() & 0x80) != 0) status_ = Byte();
            const int channel = status_ & 0x0F;
            switch (status_ & 0xF0) {
                case 0xC0: onProgram(channel, Byte() & 0x7F); break;
                case 0xD0: Byte(); break;
                case 0xF0: SkipLong(); break;
                case 0x90:
                    onNote(channel, Byte() & 0x7F);
                    Byte();  // how hard it is struck
                    break;
                default: at_ += 2;
            }
        }
    }

private:
    [[nodiscard]] int Peek() const { return at_ < bytes_.size() ? static_cast<unsigned char>(bytes_[at_]) : 0; }
    int Byte() {
        const int byte = Peek();
        ++at_;
        return byte;
    }
    /// A number of seven bits a byte.
    qsizetype Length() {
        qsizetype length = 0;
        int byte = 0;
        do {
            byte = Byte();
            length = ((length << 7) | (byte & 0x7F)) & 0x0FFFFFFF;
        } while ((byte & 0x80) != 0);
        return length;
    }
    /// An event that tells its own length: texts, tempo, system messages.
    void SkipLong() {
        constexpr int kMeta = 0xFF;
        if (status_ == kMeta) Byte();
        const qsizetype length = Length();
        at_ += length;
    }

    QByteArrayView bytes_;
    qsizetype at_ = 0;
    int status_ = 0;
};

/// What a channel asks for in the whole piece.
struct Channel {
    std::set<int> programs;
    MidiNotes notes;
};

}  // namespace

MidiPrograms ProgramsOf(QByteArrayView midi) {
    constexpr qsizetype kHeader = 8;  // four letters and a length, before every block
    std::array<Channel, kChannels> channels;
    const auto at = [&channels](int channel) -> Channel& { return channels.at(static_cast<std::size_t>(channel)); };
    while (midi.size() > kHeader) {
        const auto length = std::min<qsizetype>(qFromBigEndian<quint32>(midi.data() + 4), midi.size() - kHeader);
        if (midi.first(4) == "MTrk") {
            Track(midi.sliced(kHeader, length))
                .Read([&at](int channel, int program) { at(channel).programs.insert(program); },
                      [&at](int channel, int note) { at(channel).notes.set(static_cast<std::size_t>(note)); });
        }
        midi = midi.sliced(kHeader + length);
    }
    MidiPrograms programs;
    for (int i = 0; i < kChannels; ++i) {
        Channel& channel = at(i);
        if (channel.notes.none()) continue;
        if (channel.programs.empty()) channel.programs.insert(0);
        auto& kind = i == kDrumChannel ? programs.drums : programs.melodic;
        for (const int program : channel.programs) kind[program] |= channel.notes;
    }
    return programs;
}

}  // namespace platform::desktop
