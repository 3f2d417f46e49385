#pragma once

#include <functional>

#include "engine/Final.h"
#include "game/Zarpi.h"
#include "stage/Empujador.h"
#include "stage/Secuencias.h"

namespace juego {

/// The letter behind a character code: A to Z and Ñ, in either case; 0 for any other.
char16_t LetraDeCódigo(int keyAscii);

/// How a letter reaches the word: past the locks and the test for a repeat, to the positions of the word that its level
/// has not given away.
class Letras {
public:
    /// `siguiente` starts the next word.
    Letras(Zarpi& zarpi, Dialogs& dialogs, Empujador& empujador, Secuencias& secuencias, Final& fin,
           std::function<void()> siguiente)
        : z(zarpi),
          dialogs(dialogs),
          empujador(empujador),
          secuencias(secuencias),
          fin(fin),
          siguiente(std::move(siguiente)) {}

    /// A character typed anywhere in the main window, Windows-1252.
    void Form_KeyPress(int keyAscii);
    /// A click on an on-screen key, 1 to 27.
    void lblTecla_Click(int index);

    /// Tells the player that `Letra` has been tried in this word. False, and nothing told, if it has not.
    bool RechazarRepetida();
    /// The tried look for the on-screen key of `Letra`.
    void MarcarTecla();
    /// Tests `Letra` against the word. The caller has set `fAcierto` False.
    void Comprobar();

private:
    [[nodiscard]] bool Admite() const;
    void ProbarLetra();
    void Descubrir(int first, int last);
    void Fallar();
    void Acertar();

    Zarpi& z;
    Dialogs& dialogs;
    Empujador& empujador;
    Secuencias& secuencias;
    Final& fin;
    std::function<void()> siguiente;
};

/// Takes the hero's words and the invitation away, when the player acts.
void CallarZarpi(Zarpi& zarpi);

}  // namespace juego
