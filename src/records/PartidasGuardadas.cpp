#include "records/PartidasGuardadas.h"

namespace juego {

std::optional<std::vector<PartidaGuardada>> LeerPartidas(Files& files, int count) {
    if (!Diario::Recuperar(files)) return std::nullopt;
    return ArchivoRegistros<PartidaGuardada>(files, ArchivoGuardadas).LeerPrimeros(count);
}

std::optional<PartidaGuardada> LeerPartida(Files& files, int k) {
    if (!Diario::Recuperar(files)) return std::nullopt;
    return ArchivoRegistros<PartidaGuardada>(files, ArchivoGuardadas).Leer(k);
}

bool GuardarPartida(Files& files, int count, const PartidaGuardada& game) {
    if (count >= ArchivoGuardadas.Límite || ContarParaCambiar(files, ArchivoGuardadas) != count) return false;
    ArchivoRegistros<PartidaGuardada> games(files, ArchivoGuardadas);
    // The record first, then the counter that makes it count.
    return games.Escribir(count + 1, game) && EscribirContador(files, ArchivoGuardadas, count + 1);
}

bool RetirarPartida(Files& files, int k, int count) {
    if (ContarParaCambiar(files, ArchivoGuardadas) != count) return false;
    Diario diario(files, ArchivoGuardadas);
    ArchivoRegistros<PartidaGuardada> games(files, ArchivoGuardadas);
    return diario.Anotado() && games.CerrarHueco(k, count) && EscribirContador(files, ArchivoGuardadas, count - 1) &&
           diario.Confirmar();
}

}  // namespace juego
