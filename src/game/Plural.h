#pragma once

#include "platform/Text.h"

namespace juego {

/// Whether a name names several players: it holds " y ", " e " or " o " in any case.
bool NombraVarios(platform::TextView nombre);

}  // namespace juego
