#pragma once

#include <limits>
#include <span>

#include "game/Zarpi.h"

namespace juego {

/// A line of the hero in its two wordings, for one player and for several. Marks in braces stand for values, see
/// `Rellenar`. An empty plural is the same as the singular.
struct Frase {
    TextView Singular;
    TextView Plural = {};
};

/// A line for all values of a number up to, and with, `Hasta`.
struct Tramo {
    int Hasta;
    juego::Frase Frase;
};
constexpr int SinLímite = std::numeric_limits<int>::max();

/// The line of the first stretch that holds the value; empty if none does.
Frase Elegir(std::span<const Tramo> stretches, int value);

/// The wording for the present player, with the marks filled in. A number comes with its leading blank:
///   {N} the name, trimmed and in upper case      {w} {w-1} {31-w} from the number of the word
///   {L} letters of the word      {nivel} {plenos} {puntos} {comodines} those numbers      {día} today
///   {2} {3} {4} the second, third and fourth letter of the word      {p} the last but one
Text Rellenar(const Frase& line, const Zarpi& zarpi);

}  // namespace juego
