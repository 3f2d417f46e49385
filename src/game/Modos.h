#pragma once

#include <array>
#include <optional>

#include "game/Zarpi.h"

/// The five game modes and the five times as tables.
namespace juego {

struct Modo {
    Integer Número;
    TextView Texto;  ///< as `lblModo`, the boards and the diploma tell it
    Menu VentanaZarpi::*Entrada;
    Menu VentanaZarpi::*Cuadro;             ///< the menu entry of its honour board
    std::optional<Integer> TopeCastellano;  ///< none: the mode leaves the bound as it was
    std::optional<Integer> TopeInglés;
    bool fInglésCaste;
    bool fAlterna;
    bool fDiezPalabras;
    std::optional<int> IzqTapa1;  ///< Left of the two language frames; none: unchanged
    std::optional<int> IzqTapa2;
};

// clang-format off
inline constexpr std::array<Modo, 5> Modos = {{
    {1, u"Castellano e inglés", &VentanaZarpi::mnuCasteInglés, &VentanaZarpi::mnuCasteInglésHonor,
     16, 15, false, false, false, 510, 1980},
    {2, u"Inglés y castellano", &VentanaZarpi::mnuIngléscaste, &VentanaZarpi::mnuInglésCasteHonor,
     {}, {}, true, false, false, 1470, 540},
    {3, u"Castellano", &VentanaZarpi::mnuCastellano, &VentanaZarpi::mnuCasteHonor,
     32, 40, false, false, true, 990, {}},
    {4, u"Inglés", &VentanaZarpi::mnuInglés, &VentanaZarpi::mnuInglésHonor,
     1, 0, false, false, true, {}, 1230},
    {5, u"Castellano o inglés", &VentanaZarpi::mnuCasteInglésAlter, &VentanaZarpi::mnuCasteoInglésHonor,
     {}, {}, false, true, true, 510, 1980},
}};
// clang-format on

struct TiempoPalabra {
    Integer Minutos;   ///< 60: no limit
    TextView Texto;    ///< as menus, boards and lists tell it
    TextView Mensaje;  ///< as `lblMensajeTiem` tells it
    Menu VentanaZarpi::*Entrada;
};

inline constexpr std::array<TiempoPalabra, 5> Tiempos = {{
    {60, u"Indefinido", u"Tiempo indefinido", &VentanaZarpi::mnuIndefinido},
    {1, u"1 minuto", u"Tiempo: 1 minuto", &VentanaZarpi::mnuUnMinuto},
    {2, u"2 minutos", u"Tiempo: 2 minutos", &VentanaZarpi::mnuDosMinutos},
    {3, u"3 minutos", u"Tiempo: 3 minutos", &VentanaZarpi::mnuTresMinutos},
    {4, u"4 minutos", u"Tiempo: 4 minutos", &VentanaZarpi::mnuCuatroMinutos},
}};

/// The text of a mode number; empty for another number.
constexpr TextView TextoModo(int número) {
    for (const Modo& modo : Modos) {
        if (modo.Número == número) return modo.Texto;
    }
    return {};
}

/// The text of a time limit in minutes; empty for one that the game does not have.
constexpr TextView TextoDeTiempo(int minutos) {
    for (const TiempoPalabra& tiempo : Tiempos) {
        if (tiempo.Minutos == minutos) return tiempo.Texto;
    }
    return {};
}

/// Which letters of a word its level shows at the start; they are never tested.
enum class LetrasDadas { PrimeraYÚltima, Primera, Ninguna };

struct Nivel {
    Integer Número;  ///< 1 to 6, or 1 to 3 in the modes with levels of ten words
    LetrasDadas Dadas;
    bool EsPrimera;  ///< the word is the first of its level
};

/// The level of a word, 1 to 30.
constexpr Nivel NivelDePalabra(int palabra, bool fDiezPalabras) {
    const int words = fDiezPalabras ? 10 : 5;
    const int band = (palabra - 1) / words;
    return {static_cast<Integer>(band + 1), static_cast<LetrasDadas>(band % 3), (palabra - 1) % words == 0};
}

}  // namespace juego
