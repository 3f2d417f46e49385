#include "records/PartidasGuardadas.h"

namespace juego {

bool GuardarPartida(Files& files, int count, const PartidaGuardada& game) {
    if (count >= ArchivoGuardadas.Límite) return false;
    ArchivoRegistros<PartidaGuardada> games(files, ArchivoGuardadas);
    // The record first, then the counter that makes it count.
    return games.Escribir(count + 1, game) && EscribirContador(files, ArchivoGuardadas, count + 1);
}

bool RetirarPartida(Files& files, int k, int count) {
    Diario diario(files, ArchivoGuardadas);
    ArchivoRegistros<PartidaGuardada> games(files, ArchivoGuardadas);
    return diario.Anotado() && games.CerrarHueco(k, count) && EscribirContador(files, ArchivoGuardadas, count - 1) &&
           diario.Confirmar();
}

}  // namespace juego
