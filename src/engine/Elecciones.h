#pragma once

#include "game/Zarpi.h"

/// The choices of the menus.
namespace juego {

/// The click on a mode entry, by mode number. Any other number changes nothing.
void ElegirModo(Zarpi& zarpi, int número);

/// The click on a time entry, by its minutes (60: no limit). Any other number changes nothing.
void ElegirTiempo(Zarpi& zarpi, int minutos);

/// The click on the entry of sound: on, off.
void mnuSonido_Click(Zarpi& zarpi);

}  // namespace juego
