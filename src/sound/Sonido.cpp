#include "sound/Sonido.h"

namespace juego {

namespace {
constexpr Integer kSoundOff = 1;
}

void Sonar(Media& media, const Zarpi& zarpi, MediaChannel& channel, TextView file) {
    if (zarpi.Sonido != kSoundOff) PlaySound(media, channel, file);
}

void Música::Cerrar() {
    for (const MediaChannel& channel : z.sonMusica) media.Command(channel, MediaCommand::Close);
}

void Música::Cambiar() {
    Cerrar();
    if (z.Sonido == kSoundOff) return;
    z.NúmMúsica = static_cast<Integer>(Draw(random, clock, static_cast<int>(z.sonMusica.size())));
    const auto piece = static_cast<std::size_t>(z.NúmMúsica);
    PlaySound(media, z.sonMusica.at(piece - 1), z.Músicas.at(piece));
}

}  // namespace juego
