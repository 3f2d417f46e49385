#pragma once

#include "game/Zarpi.h"

namespace juego {

/// The two buttons of the on-screen keyboard. Their click sounds whether sound is on or off.
void cmdMostrar_Click(Zarpi& zarpi, Media& media);
void cmdOcultar_Click(Zarpi& zarpi, Media& media);

}  // namespace juego
