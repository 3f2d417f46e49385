#pragma once

#include "engine/Final.h"
#include "game/Zarpi.h"

namespace juego {

/// The clock of the word: the time spent, the warning, the time limit, and the end of the program after a file error.
class Reloj {
public:
    Reloj(Zarpi& zarpi, Forms& forms, Media& media, const Clock& clock, Final& fin)
        : z(zarpi), forms(forms), media(media), clock(clock), fin(fin) {}

    /// Every 100 ms while a word is in play.
    void tmrTiempo_Timer();

private:
    Zarpi& z;
    Forms& forms;
    Media& media;
    const Clock& clock;
    Final& fin;
};

}  // namespace juego
