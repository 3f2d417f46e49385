#pragma once

#include "game/Zarpi.h"
#include "stage/Empujador.h"
#include "stage/Secuencias.h"

namespace juego {

/// Ends games. Whatever the cause, the letters are locked, the clock stands still and the menus come back; after the
/// fourth fall they stay closed for good. Every end but a save enters the game into the last games.
class Final {
public:
    /// `victoria` is the screen that opens the ceremony.
    Final(Zarpi& zarpi, Forms& forms, Files& files, const Clock& clock, Empujador& empujador, Secuencias& secuencias,
          Form& victoria)
        : z(zarpi),
          forms(forms),
          files(files),
          clock(clock),
          empujador(empujador),
          secuencias(secuencias),
          victoria(victoria) {}

    /// The seventh miss: the hero falls.
    void Caída();
    /// The time limit of the word has run out.
    void TiempoAgotado();
    /// The game has just been saved.
    void PartidaGuardada();
    /// Word 30 is completed: scores it, as it has no tally, and opens the ceremony.
    void PartidaGanada();

private:
    void Terminar();
    void DevolverMenús();
    void AnotarPartida();

    Zarpi& z;
    Forms& forms;
    Files& files;
    const Clock& clock;
    Empujador& empujador;
    Secuencias& secuencias;
    Form& victoria;
};

}  // namespace juego
