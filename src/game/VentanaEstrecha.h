#pragma once

#include "game/VentanaZarpi.h"
#include "platform/Narrow.h"

namespace juego {

/// The order of the main window on a phone, on a tablet held upright, and where its letters would be too small: the
/// stage at the width of the screen, below it (beside it on a phone held sideways) a strip of what stands right of it
/// elsewhere, then the keys at a size for fingers. Nothing where the window stands as designed.
std::optional<Order> Estrecha(const VentanaZarpi& z, const Room& room);

}  // namespace juego
