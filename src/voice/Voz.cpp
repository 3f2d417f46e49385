#include "voice/Voz.h"

#include <algorithm>
#include <utility>

#include "game/Reglas.h"
#include "voice/Contenidos.h"
#include "voice/Palabras.h"

namespace juego {

namespace {

constexpr TextView kKeys = u"F7, comodín; F8, cómo va.";

/// The line of the hero that is seen now.
Text Comentario(const Zarpi& z) {
    for (const Label* line : {&z.lblComentCaída, &z.lblComentAngus, &z.lblComentario}) {
        if (line->Visible && !line->Caption.empty()) return line->Caption;
    }
    return {};
}

Text Fallo(const Zarpi& z) {
    const int left = reglas::FallosCaída - z.Fallo;
    return u"Mal: " + z.Letra + u". " + (left == 1 ? u"Queda " : u"Quedan ") + voz::Contar(left, u"fallo.", u"fallos.");
}

}  // namespace

Voz::Dicho Voz::Ahora() const {
    return {.Comentario = Comentario(z),
            .Letras = voz::Letras(z),
            .Palabra = static_cast<Integer>(z.fFinPartida ? 0 : z.NúmPalabra),
            .Fallos = z.Fallo,
            .Intentadas = z.NúmIntentadas,
            .Comodín = z.fComodín,
            .Error = z.lblMensajeError.Visible,
            .Indicación = z.lblMenComienzo.Visible ? z.lblMenComienzo.Caption : Text()};
}

/// A word is being set up, whose windows are still to come.
bool Voz::EnPreparación() const {
    return !z.fFinPartida && !z.tmrTiempo.IsEnabled();
}

/// Whether the window in front has come up since the last time.
bool Voz::Abrir(const Form& front) {
    const auto known = std::ranges::find(ventanas, &front, &Ventana::Forma);
    const bool isNew = known == ventanas.end();
    if (isNew) {
        ventanas.push_back({&front, {}});
    } else {
        ventanas.erase(known + 1, ventanas.end());
    }
    return isNew;
}

/// The outcome of a letter, and the messages: a hit names the new letter, a miss the letter and what is left.
void Voz::DecirResultado(Utterance& said, const Dicho& now) {
    if (now.Error && !dicho.Error) voz::Añadir(said, z.lblMensajeError.Caption);
    dicho.Error = now.Error;
    voz::Añadir(said, std::exchange(aviso, Text()));
    const bool isTried = now.Palabra == dicho.Palabra && now.Intentadas != dicho.Intentadas && !z.fFinPartida;
    const bool isHit = isTried && now.Fallos == dicho.Fallos;
    if (isHit) voz::Añadir(said, u"Bien. " + voz::LetraNueva(z, dicho.Letras));
    if (isTried && !isHit) voz::Añadir(said, Fallo(z));
    for (const Mensaje& message : std::exchange(z.Mensajes, {})) voz::Añadir(said, message);
}

/// The lines of a window that has come up, then those that have changed. A heading begins anew.
void Voz::DecirVentana(Utterance& said, const Form& front) {
    std::vector<Text> lines = ContenidoDe(front);
    const std::vector<Text>& before = ventanas.back().Líneas;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (before.size() == lines.size() && before[i] == lines[i]) continue;
        if (lines[i].ends_with(u':') && !said.empty()) speech.Say(std::exchange(said, {}));
        voz::Añadir(said, lines[i]);
    }
    ventanas.back().Líneas = std::move(lines);
}

/// What stands on the main window apart from the outcome.
void Voz::DecirPartida(Utterance& said, const Dicho& now) {
    const bool sameWord = now.Palabra == dicho.Palabra;
    if (now.Comodín && !dicho.Comodín) voz::Añadir(said, voz::Comodines(z));
    if (!now.Comodín && dicho.Comodín && now.Intentadas == dicho.Intentadas && !z.fFinPartida) {
        voz::Añadir(said, u"Comodín guardado.");
    }
    if (sameWord && now.Letras != dicho.Letras && !z.fFinPartida) voz::Añadir(said, voz::Tablero(z) + u".");
    if (!sameWord && now.Palabra != 0) voz::Añadir(said, voz::Palabra(z) + u", " + voz::TableroEntero(z));
    if (now.Comentario != dicho.Comentario) voz::Añadir(said, voz::LíneaDeZarpi(z, now.Comentario));
    if (now.Indicación != dicho.Indicación) voz::Añadir(said, now.Indicación);
    if (now.Palabra != 0 && !std::exchange(teclasDichas, true)) voz::Añadir(said, kKeys);
}

void Voz::Asentar() {
    const Form* const front = forms.Front();
    if (!speech.IsHeard() || front == nullptr) {
        z.Mensajes.clear();
        return;
    }
    const bool isNew = Abrir(*front);
    const bool isMain = front == &z && !EnPreparación();
    const Dicho now = Ahora();
    Utterance said;
    if (isMain || isNew) DecirResultado(said, now);
    DecirVentana(said, *front);
    if (isMain) {
        DecirPartida(said, now);
        dicho = now;
    }
    if (!said.empty()) speech.Say(said);
}

void Voz::RepetirEstado() {
    if (!speech.IsHeard()) return;
    Utterance said;
    voz::Añadir(said, voz::Estado(z));
    speech.Say(said);
}

}  // namespace juego
