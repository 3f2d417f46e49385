#include "records/CuadrosDeHonor.h"

namespace juego {

bool InsertarEnCuadro(Files& files, const Par& board, const FilaHonor& row) {
    const auto count = ContarParaCambiar(files, board);
    if (!count) return false;
    ArchivoRegistros<FilaHonor> rows(files, board);
    // The row above the new one: the lowest with at least as many zarpis.
    int above = *count;
    for (; above > 0; --above) {
        const auto other = rows.Leer(above);
        if (!other) return false;
        if (NúmeroDeCampo(row.puntos) <= NúmeroDeCampo(other->puntos)) break;
    }
    return above == board.Límite || InsertarFila(files, board, above + 1, *count, row);
}

bool RestablecerCuadro(Files& files, const Par& board) {
    if (!ContarParaCambiar(files, board)) return false;
    Diario diario(files, board);
    ArchivoRegistros<FilaHonor> rows(files, board);
    return diario.Anotado() && rows.Vaciar(board.Límite) && EscribirContador(files, board, 0) && diario.Confirmar();
}

}  // namespace juego
