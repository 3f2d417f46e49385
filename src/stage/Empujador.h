#pragma once

#include "commentary/Comentario.h"
#include "game/Zarpi.h"

namespace juego {

/// The pusher: drives the hero a step towards the cliff at every miss, and over it at the seventh.
class Empujador {
public:
    Empujador(Zarpi& zarpi, Media& media, Comentario& comentario) : z(zarpi), media(media), comentario(comentario) {}

    /// The letter in `Letra` is a miss.
    void Fallar();
    /// The seventh miss sends the hero over the cliff; keyboard and jokers go with him.
    void Caer();
    /// Reminds a player on the edge of the jokers that he has left.
    void AnimarComodín();

private:
    void Avanzar(int step);

    Zarpi& z;
    Media& media;
    Comentario& comentario;
};

}  // namespace juego
