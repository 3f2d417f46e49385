#pragma once

#include <QByteArrayView>
#include <set>

namespace platform::desktop {

/// The instruments that a piece of music asks for, by their General MIDI numbers from 0 to 127.
struct MidiPrograms {
    std::set<int> melodic;
    std::set<int> drums;  ///< kits, of the drum channel
};

/// The instruments of a MIDI file. Of a damaged file: those up to the damage.
MidiPrograms ProgramsOf(QByteArrayView midi);

}  // namespace platform::desktop
