#pragma once

#include "game/Zarpi.h"

namespace juego {

/// Tells a player who listens what has changed on the screen: the outcome of a letter with the board, what the hero
/// says, the words of a window that opens. What matters most comes first, everything once.
class Voz {
public:
    Voz(Zarpi& zarpi, Forms& forms, Speech& speech) : z(zarpi), forms(forms), speech(speech) {}

    /// An event has run to its end, or a window begins to wait: says what is new.
    void Asentar();

    /// The message on the screen is told, although another one may take its place before the event is over.
    void Retener() { retenido = z.Label5.Caption; }

    /// Says everything that a player needs to go on.
    void RepetirEstado();

private:
    /// What was said last of what can change.
    struct Dicho {
        Text Mensaje;
        Text Comentario;
        Text Tablero;
        Integer Palabra = 0;
        Integer Fallos = 0;
        Integer Intentadas = 0;
        bool Comodín = false;
        bool Error = false;
        const Form* Ventana = nullptr;
        Text Contenido;
        Text Indicación;
    };
    [[nodiscard]] Dicho Ahora() const;
    [[nodiscard]] Text Novedades(const Dicho& now) const;
    [[nodiscard]] Text Resultado(const Dicho& now) const;

    Zarpi& z;
    Forms& forms;
    Speech& speech;
    Dicho dicho;
    Text retenido;
};

}  // namespace juego
