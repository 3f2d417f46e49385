#pragma once

#include <array>
#include <vector>

#include "game/VentanaZarpi.h"
#include "platform/Integer.h"

namespace juego {

/// Strings counted from 1; entry 0 stays empty.
template <std::size_t N>
using Textos = std::array<Text, N + 1>;

/// What lives as long as the program runs.
struct EstadoPrograma {
    Integer Modo = 1;             ///< game mode, 1 to 5, and what it decides:
    bool fDiezPalabras = false;   ///< levels have 10 words instead of 5
    bool fInglésCaste = false;    ///< mode 2
    bool fAlterna = false;        ///< mode 5
    Integer TopeCastellano = 16;  ///< outside modes 2 and 5, words below this number are Spanish
    Integer TopeInglés = 15;      ///< outside modes 2 and 5, words above this number are English
    Integer Tiempo = 60;          ///< minutes for a word: 1 to 4; 60 for no limit
    Integer Sonido = 0;           ///< 0 sound on, 1 sound off
    Integer ModoHonor = 1;        ///< mode of the honour board to show or to write
    Text Nombre;                  ///< the name as typed, not trimmed
    Integer Caídas = 0;           ///< falls in this run since the last win; the fourth ends all play
    Integer último = 0;           ///< how many games are stored
    bool fFinPartida = true;      ///< no game is in play
    bool fSalirError = false;     ///< a file error has been told; the word clock will end the program
    Integer VecesSalto = 0;       ///< rounds of the jump
    Integer NúmMúsica = 0;        ///< the piece last started
    Integer AzarPrevio1 = 0;      ///< the last three random numbers of the words' lines, latest first
    Integer AzarPrevio2 = 0;
    Integer AzarPrevio3 = 0;
    Textos<7> Días;      ///< names of the days, from Sunday
    Textos<12> Músicas;  ///< files of the music pieces
};

/// What lives for a game. A game begins with a fresh value.
struct EstadoPartida {
    Integer NúmNivel = 0;            ///< level shown, 1 to 6
    Integer NúmPalabra = 0;          ///< word in play, 1 to 30; 0 before the first, 31 once word 30 is completed
    Integer puntos = 0;              ///< zarpis so far
    Integer plenos = 0;              ///< words completed without a miss so far
    Integer comodines = 0;           ///< jokers held, 0 to 10
    Integer Alter = 0;               ///< mode 5: language of the word in play, 1 Spanish, 2 English
    Text anónimo{};                  ///< the name when the new game was started
    bool plural = false;             ///< `Nombre` names several players
    bool f200 = false;               ///< the extra joker for passing 200 zarpis has been given
    bool fReanudar = false;          ///< the game is a resumed one that is being set up
    bool fPrimerComentario = false;  ///< the next line of the hero greets a resumed game
    bool fTiempoAgotado = false;     ///< the time limit of a word has ended the game
    bool fVictoria = false;          ///< the game has been won
    Integer VecesAngustia = 0;       ///< rounds of the anguish; not 0 locks letters and jokers
    Integer NúmUsadas = 0;
    Textos<30> PalabrasUsadas{};  ///< key words drawn in this game, accents included
};

/// What lives for a word. A word begins with a fresh value.
struct EstadoPalabra {
    Text PalabraClave{};            ///< the key word, upper case, without accents
    Integer LargoPalabra = 0;       ///< letters of `PalabraClave`
    Text PalabraMensaje{};          ///< the key word as messages tell it, accents and full stop included
    Text Traducción{};              ///< blank, translation and full stop for an English word; else empty
    std::int32_t HoraPalabra = 0;   ///< start of the word, seconds since midnight
    Integer Fallo = 0;              ///< misses in the word; the tally reads them when the next word has begun
    Integer Aciertos = 0;           ///< positions uncovered by tests
    bool fAcierto = false;          ///< the letter under test is in the word
    Integer NúmIntentadas = 0;      ///< letters tried in this word
    Textos<20> LetrasIntentadas{};  ///< those letters, in order
    Integer comod = 0;              ///< clicks on the joker since it was last idle: 0 idle, 1 armed
    bool fComodín = false;          ///< a joker is armed
    Integer IzqEmpujador1 = 0;      ///< the pusher's plate, its rod and the hero, twips
    Integer AnchoEmpujador2 = 0;
    Integer IzqZarpi = 0;
};

/// A message on the main window as it is told to those who listen: with the English word in it, if there is one.
struct Mensaje {
    Text Texto;
    Text PalabraInglesa;
};

/// Values that are always set before they are read. They are fields so that tests and scripts can read them.
struct ValoresDeTrabajo {
    Text Letra;            ///< the letter under test
    Integer NúmTecla = 0;  ///< index of its on-screen key
    Text PrimeraLetra;
    Text ÚltimaLetra;
    Integer PosiciónLetra = 0;   ///< Left of the letter box being placed, twips
    Integer AzarComentario = 0;  ///< random number of the word's line, 1 to 23
    Textos<23> Comentarios;      ///< the lines of which that number picks one
    Integer DíaSemana = 0;       ///< 1 = Sunday to 7
    Integer NúmVocales = 0;
    Integer LetrasIguales = 0;
    Integer AzarAngustia = 0;  ///< random number of the line at the edge, 1 to 16
    Textos<16> ComentariosAngustia;
    Integer AzarCaída = 0;  ///< random number of the line after the fall, 1 to 15
    Textos<15> ComentariosCaída;
    Integer Bonificación = 0;  ///< bonus of word 30
    Text Fecha;                ///< of the game being saved, or chosen to be resumed
    Text Contraseña;
    Text FechaPartida;  ///< of the entry in the last games
    Integer NúmPartidas = 0;
    Text TextoTiempo;
    std::vector<Mensaje> Mensajes;  ///< what has been shown and not yet told
};

/// The game: its whole state, and the elements of its window. There is one, for as long as the program runs; every
/// other window reads and assigns its fields directly.
struct Zarpi : VentanaZarpi, EstadoPrograma, EstadoPartida, EstadoPalabra, ValoresDeTrabajo {
    void Comenzar(EstadoPartida partida) { static_cast<EstadoPartida&>(*this) = std::move(partida); }
    void Comenzar(EstadoPalabra palabra) { static_cast<EstadoPalabra&>(*this) = std::move(palabra); }
};

}  // namespace juego
