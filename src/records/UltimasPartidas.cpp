#include "records/UltimasPartidas.h"

namespace juego {

std::optional<int> AnotarPartida(Files& files, const FilaÚltima& row) {
    const auto count = ContarParaCambiar(files, ArchivoÚltimas);
    if (!count || !InsertarFila(files, ArchivoÚltimas, 1, *count, row)) return std::nullopt;
    return std::min(*count + 1, ArchivoÚltimas.Límite);
}

}  // namespace juego
