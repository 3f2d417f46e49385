#pragma once

#include "commentary/Comentario.h"
#include "game/Zarpi.h"
#include "stage/Secuencias.h"
#include "store/AnotarPartida.h"

namespace juego {

/// Shows a miss, and ends every game. What it does its caller says by a flag: `fTiempoAgotado`, `fGuardar` or
/// `fVictoria` end the game; with none of them set the letter in `Letra` is a miss, and the seventh is the fall.
class Empujador {
public:
    Empujador(Zarpi& zarpi, Files& files, Media& media, Comentario& comentario, Secuencias& secuencias,
              AnotarPartida& anotar)
        : z(zarpi), files(files), media(media), comentario(comentario), secuencias(secuencias), anotar(anotar) {}

    void operator()();

private:
    void Fallar();
    void Avanzar(int step);
    void Caer();
    bool Terminar();
    void AnimarComodín();

    Zarpi& z;
    Files& files;
    Media& media;
    Comentario& comentario;
    Secuencias& secuencias;
    AnotarPartida& anotar;
};

}  // namespace juego
