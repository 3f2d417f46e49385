#pragma once

#include "game/Zarpi.h"

namespace juego {

/// The sound files, by the bare names under which they lie in the game folder.
namespace sonidos {
constexpr TextView Caída = u"Caída.wav";
constexpr TextView Comodín = u"Comodín.wav";
constexpr TextView Conseguido = u"Conseg.wav";
constexpr TextView Diploma = u"Diploma.wav";
constexpr TextView Extra = u"Extra.wav";
constexpr TextView Palabra16 = u"Pal16.wav";
constexpr TextView Pleno = u"Pleno.wav";
constexpr TextView Prisa = u"Prisa.wav";
constexpr TextView Teclado = u"Teclado.wav";
constexpr TextView Zarpi200 = u"Zar200.wav";
}  // namespace sonidos

/// Plays a sound unless the player has switched sound off.
void Sonar(Media& media, const Zarpi& zarpi, MediaChannel& channel, TextView file);

/// The music: one of twelve pieces, chosen anew at every key word.
class Música {
public:
    Música(Zarpi& zarpi, Media& media, Random& random, const Clock& clock)
        : z(zarpi), media(media), random(random), clock(clock) {}

    /// Stops what is playing, and with sound on starts a piece at random.
    void Cambiar();
    /// Stops what is playing.
    void Cerrar();

private:
    Zarpi& z;
    Media& media;
    Random& random;
    const Clock& clock;
};

}  // namespace juego
