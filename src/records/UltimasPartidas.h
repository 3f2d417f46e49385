#pragma once

#include "records/Registros.h"

namespace juego {

/// Enters a game that has ended at the head of the list of the last ten; the oldest drops off. The new length of the
/// list; nothing, and nothing changed, when the files fail.
std::optional<int> AnotarPartida(Files& files, const FilaÚltima& row);

}  // namespace juego
