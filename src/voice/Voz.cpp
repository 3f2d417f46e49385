#include "voice/Voz.h"

#include <utility>

#include "game/Reglas.h"
#include "voice/Contenidos.h"
#include "voice/Palabras.h"

namespace juego {

namespace {

/// The line of the hero that is seen now.
Text Comentario(const Zarpi& z) {
    for (const Label* line : {&z.lblComentCaída, &z.lblComentAngus, &z.lblComentario}) {
        if (line->Visible && !line->Caption.empty()) return line->Caption;
    }
    return {};
}

}  // namespace

Voz::Dicho Voz::Ahora() const {
    const Form* const front = forms.Front();
    return {.Mensaje = z.Label5.Caption,
            .Comentario = Comentario(z),
            .Tablero = voz::Tablero(z),
            .Palabra = static_cast<Integer>(z.fFinPartida ? 0 : z.NúmPalabra),
            .Fallos = z.Fallo,
            .Intentadas = z.NúmIntentadas,
            .Comodín = z.fComodín,
            .Error = z.lblMensajeError.Visible,
            .Ventana = front,
            .Contenido = front == nullptr ? Text() : ContenidoDe(*front),
            .Indicación = z.lblMenComienzo.Visible ? z.lblMenComienzo.Caption : Text()};
}

/// The outcome of a letter or of what else has changed the message; a miss names the letter and what is left.
Text Voz::Resultado(const Dicho& now) const {
    const bool sameWord = now.Palabra == dicho.Palabra;
    const bool tried = sameWord && now.Intentadas != dicho.Intentadas;
    if (!tried && now.Mensaje == dicho.Mensaje) return {};
    const bool miss = sameWord && now.Fallos > dicho.Fallos && !z.fFinPartida;
    if (!miss) return now.Mensaje;
    const int left = reglas::FallosCaída - now.Fallos;
    Text said =
        u"Mal: " + z.Letra + u". " + (left == 1 ? u"Queda " : u"Quedan ") + voz::Contar(left, u"fallo.", u"fallos.");
    if (now.Mensaje != u"Mal.") voz::Añadir(said, now.Mensaje);
    return said;
}

Text Voz::Novedades(const Dicho& now) const {
    const bool sameWord = now.Palabra == dicho.Palabra;
    Text said;
    if (now.Error && !dicho.Error) voz::Añadir(said, z.lblMensajeError.Caption);
    voz::Añadir(said, retenido);
    if (now.Mensaje != retenido) voz::Añadir(said, Resultado(now));
    if (now.Comodín != dicho.Comodín && now.Comodín) voz::Añadir(said, voz::Comodines(z));
    if (!now.Comodín && dicho.Comodín && now.Tablero == dicho.Tablero && now.Fallos == dicho.Fallos) {
        voz::Añadir(said, u"Comodín guardado.");
    }
    if (sameWord && now.Tablero != dicho.Tablero && !z.fFinPartida) voz::Añadir(said, now.Tablero + u".");
    if (now.Contenido != dicho.Contenido || now.Ventana != dicho.Ventana) voz::Añadir(said, now.Contenido);
    if (now.Indicación != dicho.Indicación) voz::Añadir(said, now.Indicación);
    if (!sameWord && now.Palabra != 0) {
        voz::Añadir(said, voz::Palabra(z) + u" " + voz::Contar(z.LargoPalabra, u"letra", u"letras") + u": " +
                              now.Tablero + u".");
    }
    if (now.Comentario != dicho.Comentario) voz::Añadir(said, voz::LíneaDeZarpi(z, now.Comentario));
    return said;
}

void Voz::Asentar() {
    if (!speech.IsHeard()) return;
    Dicho now = Ahora();
    // A word that is being set up behind its screens is told when it is in play.
    if (now.Palabra != 0 && now.Palabra != dicho.Palabra && !z.tmrTiempo.IsEnabled()) {
        now.Palabra = dicho.Palabra;
        now.Tablero = dicho.Tablero;
        now.Fallos = dicho.Fallos;
        now.Intentadas = dicho.Intentadas;
    }
    const Text said = Novedades(now);
    dicho = std::move(now);
    retenido.clear();
    if (!said.empty()) speech.Say(said);
}

void Voz::RepetirEstado() {
    if (speech.IsHeard()) speech.Say(voz::Estado(z));
}

}  // namespace juego
