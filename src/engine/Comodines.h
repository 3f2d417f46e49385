#pragma once

#include "engine/Letras.h"
#include "game/Zarpi.h"

namespace juego {

/// The jokers: armed with a click on the first box, which then flashes, and spent on a letter box, whose letter goes
/// through the same test as one that is typed.
class Comodines {
public:
    Comodines(Zarpi& zarpi, Media& media, Letras& letras);

    /// A click on a joker box; only the first answers.
    void lblComodín_Click(int index);
    /// A click on a letter box, 1 to 10.
    void lblLetra_Click(int index);

private:
    Zarpi& z;
    Media& media;
    Letras& letras;
};

/// Stops the flashing and puts an armed joker back, with nothing spent; its box is seen while there are jokers.
void DesarmarComodín(Zarpi& zarpi);

}  // namespace juego
