#pragma once

#include <QByteArrayView>
#include <bitset>
#include <map>

namespace platform::desktop {

/// A set of keys, from 0 to 127.
using MidiNotes = std::bitset<128>;

/// The instruments that a piece of music asks for, by their General MIDI numbers from 0 to 127, and what they play.
struct MidiPrograms {
    std::map<int, MidiNotes> melodic;
    std::map<int, MidiNotes> drums;  ///< kits, of the drum channel
};

/// The instruments of a MIDI file. Of a damaged file: those up to the damage.
MidiPrograms ProgramsOf(QByteArrayView midi);

}  // namespace platform::desktop
