#pragma once

#include "game/Zarpi.h"

namespace juego {

/// Shows the error notice of the main window and has the word clock end the program.
inline void MostrarError(Zarpi& zarpi) {
    zarpi.lblMensajeError.Visible = true;
    zarpi.fSalirError = true;
}

/// The same, with the notice brought to the front of the window first.
inline void MostrarErrorAlFrente(Zarpi& zarpi) {
    zarpi.ZOrder(zarpi.lblMensajeError);
    MostrarError(zarpi);
}

}  // namespace juego
