#pragma once

#include <vector>

#include "records/Registros.h"

namespace juego {

/// The first `count` stored games. Nothing when they cannot be read, or while a change waits that has to be taken back
/// first.
std::optional<std::vector<PartidaGuardada>> LeerPartidas(Files& files, int count);

/// Stored game k. Nothing when it cannot be read, or while a change waits that has to be taken back first.
std::optional<PartidaGuardada> LeerPartida(Files& files, int k);

/// Stores a game behind the `count` that are stored. False when the files fail, when they hold another number of games,
/// or when no counter holds one more; then no stored game has changed.
bool GuardarPartida(Files& files, int count, const PartidaGuardada& game);

/// Takes game k out of `count` stored ones; those behind it move up. False, and nothing changed, when the files fail or
/// hold another number of games.
bool RetirarPartida(Files& files, int k, int count);

}  // namespace juego
