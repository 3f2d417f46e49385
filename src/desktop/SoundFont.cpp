#include "desktop/SoundFont.h"

#include <QtEndian>
#include <algorithm>
#include <map>
#include <stdexcept>
#include <vector>

namespace platform::desktop {

namespace {

/// Thrown for a font that does not hold together.
class Damaged : public std::runtime_error {
public:
    Damaged() : std::runtime_error("damaged SoundFont") {}
};

QByteArrayView Slice(QByteArrayView bytes, qsizetype from, qsizetype length) {
    if (from < 0 || length < 0 || from + length > bytes.size()) throw Damaged();
    return bytes.sliced(from, length);
}

template <class Number>
Number Get(QByteArrayView bytes, qsizetype at) {
    return qFromLittleEndian<Number>(Slice(bytes, at, sizeof(Number)).data());
}

template <class Number>
void Put(QByteArray& bytes, qsizetype at, Number number) {
    qToLittleEndian(number, bytes.data() + at);
}

template <class Number>
void Append(QByteArray& bytes, Number number) {
    bytes.resize(bytes.size() + static_cast<qsizetype>(sizeof(Number)));
    Put(bytes, bytes.size() - static_cast<qsizetype>(sizeof(Number)), number);
}

constexpr qsizetype kBlockHead = 8;  // four letters and a length, before every block

QByteArray Block(QByteArrayView letters, QByteArrayView content) {
    QByteArray block = letters.toByteArray();
    Append(block, static_cast<quint32>(content.size()));
    block += content;
    if (content.size() % 2 != 0) block += '\0';
    return block;
}

/// The blocks of a font by their letters: "INFO" and, of the other two lists, those within.
std::map<QByteArray, QByteArrayView> BlocksOf(QByteArrayView font) {
    std::map<QByteArray, QByteArrayView> blocks;
    qsizetype at = 12;  // behind "RIFF", length and "sfbk"
    while (at + kBlockHead < font.size()) {
        const qsizetype length = Get<quint32>(font, at + 4);
        const QByteArrayView content = Slice(font, at + kBlockHead, length);
        const bool info = content.startsWith("INFO");
        const bool list = font.sliced(at).startsWith("LIST") && !info;
        blocks[info ? QByteArray("INFO") : font.sliced(at, 4).toByteArray()] = content;
        at += list ? kBlockHead + 4 : kBlockHead + length + length % 2;  // into a list, past anything else
    }
    return blocks;
}

/// New numbers for old ones, from 0 up, in the order in which they are first asked for, and the notes they are for.
class Renumber {
public:
    quint16 operator()(quint16 old, const MidiNotes& notes) {
        const auto [it, isNew] = numbers_.try_emplace(old, static_cast<quint16>(order_.size()));
        if (isNew) order_.push_back({old, {}});
        order_.at(it->second).notes |= notes;
        return it->second;
    }

    struct Old {
        quint16 number;
        MidiNotes notes;
    };
    /// The old numbers in the order of the new ones.
    [[nodiscard]] const std::vector<Old>& Order() const { return order_; }

private:
    std::map<quint16, quint16> numbers_;
    std::vector<Old> order_;
};

/// How a font lays out presets, made of instruments, and instruments, made of samples: alike but for this.
struct Layout {
    const char* heads;
    const char* zones;
    const char* modulators;
    const char* generators;
    qsizetype headSize;
    qsizetype zoneField;  ///< where a head has the number of its first zone
    quint16 link;         ///< the generator that names an instrument or a sample
};
constexpr Layout kPresets = {"phdr", "pbag", "pmod", "pgen", 38, 24, 41};
constexpr Layout kInstruments = {"inst", "ibag", "imod", "igen", 22, 20, 53};
constexpr qsizetype kZone = 4;
constexpr qsizetype kModulator = 10;
constexpr qsizetype kGenerator = 4;

/// Copies presets or instruments with all that belongs to them.
class Copier {
public:
    Copier(const std::map<QByteArray, QByteArrayView>& blocks, const Layout& layout)
        : layout_(layout),
          heads_(blocks.at(layout.heads)),
          zones_(blocks.at(layout.zones)),
          modulators_(blocks.at(layout.modulators)),
          generators_(blocks.at(layout.generators)) {}

    /// All but the last, which only ends the list.
    [[nodiscard]] int Count() const { return static_cast<int>(heads_.size() / layout_.headSize) - 1; }
    [[nodiscard]] QByteArrayView Head(int index) const {
        return Slice(heads_, index * layout_.headSize, layout_.headSize);
    }

    /// Copies what plays any of the notes, under a head of its own or another. `links` turns the numbers of what it is
    /// made of into new ones.
    void Copy(int index, const MidiNotes& notes, Renumber& links) {
        CopyAs(Head(index).toByteArray(), index, notes, links);
    }
    void CopyAs(const QByteArray& head, int index, const MidiNotes& notes, Renumber& links) {
        AppendHead(head);
        const int end = Get<quint16>(Head(index + 1), layout_.zoneField);
        for (int zone = Get<quint16>(Head(index), layout_.zoneField); zone < end; ++zone) {
            if (Plays(zone, notes)) CopyZone(zone, notes, links);
        }
    }

    /// The four blocks, each with the empty entry that ends it.
    QByteArray Finish() {
        AppendHead(QByteArray(layout_.headSize, '\0'));
        AppendZone();
        newModulators_ += QByteArray(kModulator, '\0');
        newGenerators_ += QByteArray(kGenerator, '\0');
        return Block(layout_.heads, newHeads_) + Block(layout_.zones, newZones_) +
               Block(layout_.modulators, newModulators_) + Block(layout_.generators, newGenerators_);
    }

private:
    void AppendHead(QByteArrayView head) {
        newHeads_ += head;
        Put(newHeads_, newHeads_.size() - layout_.headSize + layout_.zoneField,
            static_cast<quint16>(newZones_.size() / kZone));
    }
    void AppendZone() {
        Append(newZones_, static_cast<quint16>(newGenerators_.size() / kGenerator));
        Append(newZones_, static_cast<quint16>(newModulators_.size() / kModulator));
    }
    /// The generators of a zone: the first and the one behind the last.
    [[nodiscard]] std::pair<int, int> Generators(int zone) const {
        return {Get<quint16>(zones_, zone * kZone), Get<quint16>(zones_, (zone + 1) * kZone)};
    }
    [[nodiscard]] bool Plays(int zone, const MidiNotes& notes) const {
        constexpr quint16 kKeyRange = 43;
        const auto [first, end] = Generators(zone);
        if (first >= end || Get<quint16>(generators_, first * kGenerator) != kKeyRange) return true;
        const auto range = Get<quint16>(generators_, first * kGenerator + 2);
        for (std::size_t note = range & 0xFFU; note <= (range >> 8U) && note < notes.size(); ++note) {
            if (notes.test(note)) return true;
        }
        return false;
    }
    void CopyZone(int zone, const MidiNotes& notes, Renumber& links) {
        AppendZone();
        const int firstModulator = Get<quint16>(zones_, zone * kZone + 2);
        const int endModulator = Get<quint16>(zones_, (zone + 1) * kZone + 2);
        newModulators_ += Slice(modulators_, firstModulator * kModulator, (endModulator - firstModulator) * kModulator);
        const auto [first, end] = Generators(zone);
        for (int i = first; i < end; ++i) {
            const auto kind = Get<quint16>(generators_, i * kGenerator);
            const auto amount = Get<quint16>(generators_, i * kGenerator + 2);
            Append(newGenerators_, kind);
            Append(newGenerators_, kind == layout_.link ? links(amount, notes) : amount);
        }
    }

    const Layout& layout_;
    QByteArrayView heads_, zones_, modulators_, generators_;
    QByteArray newHeads_, newZones_, newModulators_, newGenerators_;
};

/// The samples of these numbers: their heads and their sound.
struct Samples {
    QByteArray heads;
    QByteArray sound;
};
Samples CopySamples(QByteArrayView heads, QByteArrayView sound, const std::vector<Renumber::Old>& wanted) {
    constexpr qsizetype kHead = 46;
    constexpr qsizetype kStart = 20;  // where four positions follow each other: start, end, loop
    constexpr qsizetype kLink = 42;
    constexpr qsizetype kKind = 44;
    constexpr quint16 kMono = 1;
    constexpr quint16 kNotHere = 0x8010;  // in a ROM, or compressed
    constexpr qsizetype kSilence = 46;    // that the format asks for behind each sample
    Samples copy;
    for (const auto& [number, notes] : wanted) {
        QByteArray head = Slice(heads, number * kHead, kHead).toByteArray();
        const auto start = Get<quint32>(head, kStart);
        const auto end = Get<quint32>(head, kStart + 4);
        if ((Get<quint16>(head, kKind) & kNotHere) != 0) throw Damaged();
        const auto moved = static_cast<quint32>(copy.sound.size() / 2) - start;
        for (qsizetype field = kStart; field < kStart + 16; field += 4) {
            Put(head, field, Get<quint32>(head, field) + moved);
        }
        Put(head, kLink, quint16{0});
        Put(head, kKind, kMono);
        copy.heads += head;
        copy.sound += Slice(sound, qsizetype{start} * 2, (qsizetype{end} - start) * 2);
        copy.sound += QByteArray(kSilence * 2, '\0');
    }
    copy.heads += QByteArray(kHead, '\0');
    return copy;
}

constexpr qsizetype kProgramField = 20;  // of a preset's head; the bank follows

/// What a piece plays on a preset; null if it does not ask for it.
const MidiNotes* NotesOn(QByteArrayView preset, const MidiPrograms& programs) {
    constexpr quint16 kDrumBank = 128;
    const auto bank = Get<quint16>(preset, kProgramField + 2);
    if (bank != 0 && bank != kDrumBank) return nullptr;
    const auto& kind = bank == 0 ? programs.melodic : programs.drums;
    const auto wanted = kind.find(Get<quint16>(preset, kProgramField));
    return wanted == kind.end() ? nullptr : &wanted->second;
}

/// A player takes it for granted that there is an instrument 0, on which every channel stands at first: the one at
/// `index` stands in for it.
void CopyAsFirst(Copier& presets, int index, const MidiNotes& notes, Renumber& instruments) {
    QByteArray head = presets.Head(index).toByteArray();
    Put(head, kProgramField, quint32{0});  // program and bank
    presets.CopyAs(head, index, notes, instruments);
}

QByteArray Cut(QByteArrayView font, const MidiPrograms& programs) {
    const auto blocks = BlocksOf(font);
    Copier presets(blocks, kPresets);
    Copier instruments(blocks, kInstruments);
    Renumber usedInstruments;
    Renumber usedSamples;
    int last = -1;
    for (int i = 0; i < presets.Count(); ++i) {
        const MidiNotes* const notes = NotesOn(presets.Head(i), programs);
        if (notes == nullptr) continue;
        presets.Copy(i, *notes, usedInstruments);
        last = i;
    }
    if (last < 0) return {};
    if (!programs.melodic.contains(0)) CopyAsFirst(presets, last, {}, usedInstruments);
    for (const auto& [number, notes] : usedInstruments.Order()) instruments.Copy(number, notes, usedSamples);
    const Samples samples = CopySamples(blocks.at("shdr"), blocks.at("smpl"), usedSamples.Order());
    return Block("RIFF",
                 "sfbk" + Block("LIST", blocks.at("INFO")) + Block("LIST", "sdta" + Block("smpl", samples.sound)) +
                     Block("LIST", "pdta" + presets.Finish() + instruments.Finish() + Block("shdr", samples.heads)));
}

}  // namespace

QByteArray CutSoundFont(QByteArrayView font, const MidiPrograms& programs) {
    try {
        return Cut(font, programs);
    } catch (const std::exception&) {
        return {};
    }
}

}  // namespace platform::desktop
