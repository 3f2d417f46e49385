#pragma once

#include "game/Zarpi.h"

namespace juego {

/// The Spanish word drawn last. The fields outlive the draw: a save stores the index.
struct frmCastellano {
    Text Castel;
    Integer Aleator = 0;  ///< index in the table, 1 to 4,000; 0 before the first draw of a run
};

/// The English word drawn last, with its translation.
struct frmInglés {
    Text Inglés;
    Text Español;
    Integer Alea = 0;
};

/// Draws the key words of a game without repeats.
class Sorteo {
public:
    Sorteo(Zarpi& zarpi, frmCastellano& castellano, frmInglés& inglés, Random& random, const Clock& clock)
        : z(zarpi), castellano(castellano), inglés(inglés), random(random), clock(clock) {}

    /// Leave the word, accents included, in `PalabraClave`, and for an English one its message and translation.
    /// While a game is being resumed they bring back the word of the stored index.
    void SacarPalabraCastellano();
    void SacarPalabraInglés();

private:
    void SacarÍndice(Integer& index);
    bool EstáUsada() const;
    void AnotarUsada();

    Zarpi& z;
    frmCastellano& castellano;
    frmInglés& inglés;
    Random& random;
    const Clock& clock;
};

}  // namespace juego
