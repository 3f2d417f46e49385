#pragma once

#include <vector>

#include "game/Zarpi.h"

namespace juego {

/// Tells a player who listens what has changed on the screen: the outcome of a letter with the board, what the hero
/// says, the words of a window that opens. What matters most comes first, everything once. What belongs to the main
/// window waits until that is in front, but for the outcome of the move that brings another window up.
class Voz {
public:
    Voz(Zarpi& zarpi, Forms& forms, Speech& speech) : z(zarpi), forms(forms), speech(speech) {}

    /// An event has run to its end, or a window begins to wait: says what is new.
    void Asentar();

    /// The next time, this comes first: a choice in a menu, a letter refused.
    void Avisar(Text aviso) { this->aviso = std::move(aviso); }

    /// Says everything that a player needs to go on.
    void RepetirEstado();

private:
    /// What was said last of the main window.
    struct Dicho {
        Text Comentario;
        Text Letras;
        Integer Palabra = 0;
        Integer Fallos = 0;
        Integer Intentadas = 0;
        bool Comodín = false;
        bool Error = false;
        Text Indicación;
    };
    /// A window on the screen, and what was said of it.
    struct Ventana {
        const Form* Forma;
        std::vector<Text> Líneas;
    };
    [[nodiscard]] Dicho Ahora() const;
    [[nodiscard]] bool EnPreparación() const;
    bool Abrir(const Form& front);
    void DecirResultado(Utterance& said, const Dicho& now);
    void DecirVentana(Utterance& said, const Form& front);
    void DecirPartida(Utterance& said, const Dicho& now);

    Zarpi& z;
    Forms& forms;
    Speech& speech;
    Dicho dicho;
    Text aviso;
    std::vector<Ventana> ventanas;  ///< back to front, as far as they have been in front
    bool teclasDichas = false;      ///< the keys have been told
};

}  // namespace juego
