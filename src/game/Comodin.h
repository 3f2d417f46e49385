#pragma once

#include "game/Reglas.h"
#include "game/Zarpi.h"

namespace juego {

/// One joker more, up to ten, with its box.
inline void DarComodín(Zarpi& zarpi) {
    if (zarpi.comodines >= reglas::MáximoComodines) return;
    ++zarpi.comodines;
    zarpi.lblComodín(zarpi.comodines).Visible = true;
}

}  // namespace juego
