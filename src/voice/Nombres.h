#pragma once

#include "game/Zarpi.h"

namespace juego {

/// Gives the elements of the main window the names by which a screen reader calls them.
void NombrarVentana(Zarpi& zarpi);

/// The same for a dialog, by its name.
void NombrarDiálogo(Form& form);

}  // namespace juego
