#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include "desktop/MidiPrograms.h"

namespace platform::desktop {

/// The part of a SoundFont that one piece of music needs: its instruments and their samples. The whole of even a small
/// SoundFont takes more memory than all the rest of the game. Empty if the font is damaged, is compressed, or has none
/// of the instruments.
QByteArray CutSoundFont(QByteArrayView font, const MidiPrograms& programs);

}  // namespace platform::desktop
