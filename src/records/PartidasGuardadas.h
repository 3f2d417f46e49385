#pragma once

#include "records/Registros.h"

namespace juego {

/// Stores a game behind the `count` that are stored. False when the files fail, or when no counter holds one more; then
/// no stored game has changed.
bool GuardarPartida(Files& files, int count, const PartidaGuardada& game);

/// Takes game k out of `count` stored ones; those behind it move up. False, and nothing changed, when the files fail.
bool RetirarPartida(Files& files, int k, int count);

}  // namespace juego
