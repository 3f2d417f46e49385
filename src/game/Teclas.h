#pragma once

#include <array>
#include <cstddef>

/// The 27 keys of the on-screen keyboard: their letters and their plates.
namespace juego {

constexpr int NúmTeclas = 27;
constexpr int PrimeraVocal = 23;  ///< index of A; the vowels come last

/// Letter and corner of the plate, by index from 1.
struct Tecla {
    char16_t Letra;
    int Left;
    int Top;
};

inline constexpr std::array<Tecla, NúmTeclas> Teclas = {{
    {u'B', 9150, 5280}, {u'C', 9690, 5280}, {u'D', 10230, 5280}, {u'F', 10770, 5280}, {u'G', 11310, 5280},
    {u'H', 9150, 5820}, {u'J', 9690, 5820}, {u'K', 10230, 5820}, {u'L', 10770, 5820}, {u'M', 11310, 5820},
    {u'N', 9150, 6360}, {u'Ñ', 9690, 6360}, {u'P', 10230, 6360}, {u'Q', 10770, 6360}, {u'R', 11310, 6360},
    {u'S', 9150, 6900}, {u'T', 9690, 6900}, {u'V', 10230, 6900}, {u'W', 10770, 6900}, {u'X', 11310, 6900},
    {u'Y', 9150, 7440}, {u'Z', 9690, 7440}, {u'A', 8580, 5280},  {u'E', 8580, 5820},  {u'I', 8580, 6360},
    {u'O', 8580, 6900}, {u'U', 8580, 7440},
}};

constexpr const Tecla& TeclaDeÍndice(int index) {
    return Teclas.at(static_cast<std::size_t>(index - 1));
}

/// The index of a letter's key; 0 for a character that has none.
constexpr int ÍndiceDeLetra(char16_t letra) {
    for (std::size_t i = 0; i < Teclas.size(); ++i) {
        if (Teclas[i].Letra == letra) return static_cast<int>(i) + 1;
    }
    return 0;
}

}  // namespace juego
