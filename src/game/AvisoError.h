#pragma once

#include <optional>

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

/// A number read from a file; one that could not be read counts as 0 and is told by the notice.
inline Integer NúmeroOAviso(Zarpi& zarpi, std::optional<int> number) {
    if (!number) MostrarErrorAlFrente(zarpi);
    return static_cast<Integer>(number.value_or(0));
}

}  // namespace juego
