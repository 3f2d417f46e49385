#pragma once

#include "commentary/Frase.h"

namespace juego {

/// The hero's lines. Each goes into the tool tip of the picture that speaks it.
class Comentario {
public:
    Comentario(Zarpi& zarpi, Random& random, const Clock& clock) : z(zarpi), random(random), clock(clock) {}

    /// At the start of a word, on the ledge: a fixed line, a hint on the word, or one that chance picks.
    void ComentarioPalabra();
    /// At the sixth miss, on the edge.
    void ComentarioAngustia();
    /// After the seventh miss, at the foot of the cliff.
    void ComentarioCaída();

private:
    void SacarAzar();
    Frase LíneaFija();
    Frase PistaLetras();
    Frase PistaPosiciones() const;
    void LlenarComentarios();
    bool HayLetra(char16_t letter) const;
    bool HayDoble() const;
    void ContarVocales();
    void BuscarIguales(int copies);

    Zarpi& z;
    Random& random;
    const Clock& clock;
};

}  // namespace juego
