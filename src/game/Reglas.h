#pragma once

/// The fixed numbers of the game.
namespace juego::reglas {

constexpr int Palabras = 30;         ///< in a game
constexpr int PrimeraGuardable = 3;  ///< word from which a game can be saved
constexpr int PrimeraAnotada = 6;    ///< word from which a game enters the last games
constexpr int PalabraComodín = 16;   ///< word that brings an extra joker
constexpr int FallosBorde = 6;       ///< misses that bring the hero to the edge
constexpr int FallosCaída = 7;       ///< misses that send him over it
constexpr int CaídasEnfado = 4;      ///< falls without a win that end all play
constexpr int ComodinesIniciales = 3;
constexpr int MáximoComodines = 10;
constexpr int PlenosPorComodín = 3;  ///< every so many plenos bring a joker, up to the last below
constexpr int ÚltimoPlenoComodín = 27;
constexpr int ZarpisComodín = 200;  ///< passing this many zarpis brings a joker, once in a game
constexpr int ZarpisPalabra = 5;    ///< for every word, beside its bonus
constexpr int BonificaciónPleno = 10;

/// The bonus of a word completed with so many misses.
constexpr int Bonificación(int fallos) {
    return fallos == 0 ? BonificaciónPleno : FallosCaída - fallos;
}

}  // namespace juego::reglas
