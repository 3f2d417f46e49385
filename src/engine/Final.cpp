#include "engine/Final.h"

#include "engine/Comodines.h"
#include "game/AvisoError.h"
#include "game/Mensaje.h"
#include "game/Modos.h"
#include "game/Reglas.h"
#include "records/UltimasPartidas.h"
#include "stage/Escena.h"

namespace juego {

void Final::Caída() {
    empujador.Caer();
    ++z.Caídas;
    Decir(z, (z.plural ? u"Habéis fallado. La palabra clave es " : u"Has fallado. La palabra clave es ") +
                 z.PalabraMensaje + z.Traducción + u" Fin de juego.");
    AnotarPartida();
    Terminar();
}

void Final::TiempoAgotado() {
    z.fTiempoAgotado = true;
    Decir(z, u"¡TIEMPO! La palabra clave es " + z.PalabraMensaje + z.Traducción + u" Fin de juego.");
    CaraTiempo(z);
    DesarmarComodín(z);
    Terminar();
    AnotarPartida();
}

void Final::PartidaGuardada() {
    Terminar();
    // Jokers alone, which leave a word to be saved, can have brought six misses.
    empujador.AnimarComodín();
    Decir(z, u"PARTIDA GUARDADA. Fin de juego.");
    for (Label& box : z.lblComodín) box.ToolTipText.clear();
    z.picZarpi.ToolTipText.clear();
    DesarmarComodín(z);
}

void Final::PartidaGanada() {
    z.fVictoria = true;
    Terminar();
    Decir(z, z.plural ? u"¡Enhorabuena, lo habéis conseguido! ¿Otra partida?"
                      : u"¡Enhorabuena, lo has conseguido! ¿Otra partida?");
    for (Label& box : z.lblComodín) box.ToolTipText.clear();
    z.Caídas = 0;
    z.Bonificación = static_cast<Integer>(reglas::Bonificación(z.Fallo));
    z.puntos = static_cast<Integer>(z.puntos + reglas::ZarpisPalabra + z.Bonificación);
    z.lblPuntos.Caption = Decimal(z.puntos);
    if (z.Fallo == 0) {
        ++z.plenos;
        z.lblPlenos.Caption = Decimal(z.plenos);
    }
    AnotarPartida();
    forms.ShowModal(victoria);
}

void Final::Terminar() {
    z.fFinPartida = true;
    z.tmrTiempo.Stop();
    if (z.Caídas == reglas::CaídasEnfado) {
        secuencias.FinPorEnfado();
    } else {
        DevolverMenús();
    }
}

void Final::DevolverMenús() {
    for (const Modo& modo : Modos) (z.*modo.Entrada).Enabled = true;
    for (const TiempoPalabra& tiempo : Tiempos) (z.*tiempo.Entrada).Enabled = true;
    z.mnuNuevo.Enabled = true;
    z.mnuGuardar.Enabled = false;
    z.último = NúmeroOAviso(z, LeerContador(files, ArchivoGuardadas));
    if (z.último != 0) z.mnuReanudar.Enabled = true;
}

/// Enters the game into the last games, if it has reached word 6.
void Final::AnotarPartida() {
    if (z.NúmPalabra < reglas::PrimeraAnotada) return;
    z.FechaPartida = FormatDate(clock.Today());
    z.TextoTiempo = TextoDeTiempo(z.Tiempo);
    const auto count = juego::AnotarPartida(
        files, {.Palabra = z.NúmPalabra > reglas::Palabras ? u"FINAL" : SignedDecimal(z.NúmPalabra),
                .Nombre = z.Nombre,
                .puntos = SignedDecimal(z.puntos),
                .plenos = SignedDecimal(z.plenos),
                .Modo = z.Modo,
                .Tiempo = z.TextoTiempo,
                .Fecha = z.FechaPartida});
    if (count) {
        z.NúmPartidas = static_cast<Integer>(*count);
    } else {
        MostrarErrorAlFrente(z);
    }
}

}  // namespace juego
