#pragma once

#include "game/Zarpi.h"
#include "stage/Empujador.h"
#include "store/AnotarPartida.h"

namespace juego {

/// The ends of a game other than by a miss or by the clock.
class Final {
public:
    /// `victoria` is the screen that opens the ceremony.
    Final(Zarpi& zarpi, Forms& forms, Empujador& empujador, AnotarPartida& anotar, Form& victoria)
        : z(zarpi), forms(forms), empujador(empujador), anotar(anotar), victoria(victoria) {}

    /// Scores word 30, which has no tally, and opens the ceremony.
    void PartidaGanada();
    /// Ends the game that has just been saved.
    void PartidaGuardada();

private:
    Zarpi& z;
    Forms& forms;
    Empujador& empujador;
    AnotarPartida& anotar;
    Form& victoria;
};

}  // namespace juego
