#include "words/Sorteo.h"

#include <algorithm>

#include "words/Tablas.h"

namespace juego {

void Sorteo::SacarÍndice(Integer& index) {
    // A stored index that no table has, out of a damaged file, gives way to a fresh draw.
    const bool keep = z.fReanudar && index >= 1 && index <= NúmEntradas;
    if (!keep) index = static_cast<Integer>(Draw(random, clock, NúmEntradas));
}

bool Sorteo::EstáUsada() const {
    return std::ranges::find(z.PalabrasUsadas, z.PalabraClave) != z.PalabrasUsadas.end();
}

void Sorteo::AnotarUsada() {
    z.LargoPalabra = static_cast<Integer>(z.PalabraClave.size());
    ++z.NúmUsadas;
    z.PalabrasUsadas.at(static_cast<std::size_t>(z.NúmUsadas)) = z.PalabraClave;
}

void Sorteo::SacarPalabraCastellano() {
    do {
        SacarÍndice(castellano.Aleator);
        castellano.Castel = PalabraCastellana(castellano.Aleator);
        z.PalabraClave = castellano.Castel;
    } while (EstáUsada());
    AnotarUsada();
}

void Sorteo::SacarPalabraInglés() {
    do {
        SacarÍndice(inglés.Alea);
        inglés.Inglés = PalabraInglesa(inglés.Alea);
        inglés.Español = TraducciónDeInglesa(inglés.Alea);
        z.PalabraClave = inglés.Inglés;
    } while (EstáUsada());
    z.PalabraMensaje = inglés.Inglés + u".";
    z.Traducción = u" " + inglés.Español + u".";
    AnotarUsada();
}

}  // namespace juego
