#pragma once

#include "records/Registros.h"

namespace juego {

/// Enters a won game into a board: below every row with at least as many zarpis, and not at all below ten of them.
/// False, and nothing changed, when the files fail.
bool InsertarEnCuadro(Files& files, const Par& board, const FilaHonor& row);

/// Empties a board. False, and nothing changed, when the files fail.
bool RestablecerCuadro(Files& files, const Par& board);

}  // namespace juego
