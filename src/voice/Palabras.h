#pragma once

#include "game/Zarpi.h"

/// How things are said to somebody who does not see them.
namespace juego::voz {

/// Puts a sentence behind what is said already; an empty one changes nothing.
void Añadir(Text& said, const Text& sentence);

/// "1 fallo", "3 fallos".
Text Contar(int number, TextView one, TextView many);

/// A line of the hero, written in capitals, as a voice reads it well: "Zarpi: ¡Muy bien, Ana!". Empty for an empty
/// line.
Text LíneaDeZarpi(const Zarpi& zarpi, TextView line);

/// "M, A, vacía, A": the boxes of the word, one after the other.
Text Tablero(const Zarpi& zarpi);

/// "Letra 2 de 7, vacía."
Text Casilla(const Zarpi& zarpi, int index);

/// "Fallos: E, O.", or "Sin fallos."
Text Fallos(const Zarpi& zarpi);

/// "Palabra 5, nivel 1, castellano."
Text Palabra(const Zarpi& zarpi);

/// "1 minuto, 20 segundos.", with the limit of the word if it has one.
Text Tiempo(const Zarpi& zarpi);

/// "3 comodines.", and whether one is armed.
Text Comodines(const Zarpi& zarpi);

/// Everything a player needs to go on: word, board, misses, time, jokers.
Text Estado(const Zarpi& zarpi);

}  // namespace juego::voz
