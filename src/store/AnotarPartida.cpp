#include "store/AnotarPartida.h"

#include "game/Modos.h"
#include "game/Reglas.h"
#include "store/AvisoError.h"

namespace juego {

void AnotarPartida::operator()() {
    if (z.NúmPalabra < reglas::PrimeraAnotada) return;
    z.FechaPartida = FormatDate(clock.Today());
    z.TextoTiempo = TextoDeTiempo(z.Tiempo);
    if (!Anotar()) MostrarErrorAlFrente(z);
}

bool AnotarPartida::Anotar() {
    const auto count = LeerContador(files, ArchivoÚltimas);
    if (!count) return false;
    z.NúmPartidas = static_cast<Integer>(std::min(*count + 1, ArchivoÚltimas.Límite));
    return InsertarFila(files, ArchivoÚltimas, 1, *count,
                        FilaÚltima{.Palabra = z.NúmPalabra > reglas::Palabras ? u"FINAL" : SignedDecimal(z.NúmPalabra),
                                   .Nombre = z.Nombre,
                                   .puntos = SignedDecimal(z.puntos),
                                   .plenos = SignedDecimal(z.plenos),
                                   .Modo = z.Modo,
                                   .Tiempo = z.TextoTiempo,
                                   .Fecha = z.FechaPartida});
}

}  // namespace juego
