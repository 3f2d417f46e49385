#pragma once

#include "commentary/Comentario.h"
#include "game/Zarpi.h"

namespace juego {

/// The hero's four animated sequences, each a chain of timers: a tick shows its frame, stops its own timer and starts
/// the next one. Nothing cancels a chain from outside.
class Secuencias {
public:
    Secuencias(Zarpi& zarpi, Comentario& comentario);

    /// Starts the jump if the word just completed had no miss.
    void CelebrarPleno();

    /// Closes all play, after the fourth fall.
    void FinPorEnfado();

private:
    void Salto();
    void FinDeSalto();
    void Angustia();
    void Caer();
    void Aterrizar();
    void Incorporarse();

    Zarpi& z;
    Comentario& comentario;
};

}  // namespace juego
