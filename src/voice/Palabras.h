#pragma once

#include "game/Zarpi.h"
#include "platform/Speech.h"

/// How things are said to somebody who does not see them.
namespace juego::voz {

/// Puts sentences behind what is said already, each in its language; an empty text changes nothing.
void Añadir(Utterance& said, TextView sentences);

/// A message of the main window, its English word in English.
void Añadir(Utterance& said, const Mensaje& message);

/// "siete", for 1 to 10.
TextView Cifra(int number);

/// "1 fallo", "3 fallos".
Text Contar(int number, TextView one, TextView many);

/// A line of the hero, written in capitals, as a voice reads it well: "Zarpi: ¡Muy bien, Ana!". Empty for an empty
/// line.
Text LíneaDeZarpi(const Zarpi& zarpi, TextView line);

/// "M, A, dos vacías, A": the boxes of the word, one after the other.
Text Tablero(const Zarpi& zarpi);

/// "siete letras: M, A, cuatro vacías, A."
Text TableroEntero(const Zarpi& zarpi);

/// The letters of the boxes, a blank for an empty one.
Text Letras(const Zarpi& zarpi);

/// "A, casillas 2 y 4.": the letter that the board has and `before`, its letters then, has not; where it stands.
Text LetraNueva(const Zarpi& zarpi, const Text& before);

/// "Letra 2 de 7, vacía."
Text Casilla(const Zarpi& zarpi, int index);

/// "Fallos: E, O.", or "Sin fallos."
Text Fallos(const Zarpi& zarpi);

/// "Palabra 5, nivel 1, castellano"
Text Palabra(const Zarpi& zarpi);

/// "1 minuto, 20 segundos.", with the limit of the word if it has one.
Text Tiempo(const Zarpi& zarpi);

/// "3 comodines.", and whether one is armed.
Text Comodines(const Zarpi& zarpi);

/// Everything a player needs to go on: word, board, misses, time, jokers.
Text Estado(const Zarpi& zarpi);

}  // namespace juego::voz
