#pragma once

#include "store/Registros.h"

namespace juego {

/// Enters games that have ended into the list of the last ten, newest first.
class AnotarPartida {
public:
    AnotarPartida(Zarpi& zarpi, Files& files, const Clock& clock) : z(zarpi), files(files), clock(clock) {}

    /// The game in play, if it has reached word 6. A failure is told by the error notice.
    void operator()();

private:
    bool Anotar();

    Zarpi& z;
    Files& files;
    const Clock& clock;
};

}  // namespace juego
