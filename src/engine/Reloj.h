#pragma once

#include "game/Zarpi.h"
#include "stage/Empujador.h"
#include "store/AnotarPartida.h"

namespace juego {

/// The clock of the word: the time spent, the warning, the time limit, and the end of the program after a file error.
class Reloj {
public:
    Reloj(Zarpi& zarpi, Forms& forms, Media& media, const Clock& clock, Empujador& empujador, AnotarPartida& anotar)
        : z(zarpi), forms(forms), media(media), clock(clock), empujador(empujador), anotar(anotar) {}

    /// Every 100 ms while a word is in play.
    void tmrTiempo_Timer();

private:
    void AgotarTiempo();

    Zarpi& z;
    Forms& forms;
    Media& media;
    const Clock& clock;
    Empujador& empujador;
    AnotarPartida& anotar;
};

}  // namespace juego
