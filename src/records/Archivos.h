#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Integer.h"
#include "platform/Services.h"

/// The stored files and the counters that tell how many records of them live. All names are bare, in the game folder.
namespace juego {

using namespace platform;  // the vocabulary of texts and files

/// A record file and its counter; the two are only meaningful as a pair.
struct Par {
    std::string_view Contador;
    std::string_view Registros;
    int Límite;         ///< the highest count it can have
    std::size_t Largo;  ///< bytes of a record
};

constexpr int LímiteFilas = 10;
constexpr std::size_t LargoFilaHonor = 42;

inline constexpr Par ArchivoGuardadas = {"Ultimo.dat", "Guardar.rnd", 32767, 65};
inline constexpr Par ArchivoÚltimas = {"UltPart.dat", "Part.rnd", LímiteFilas, 57};

/// The honour boards, by mode number from 1.
inline constexpr std::array<Par, 5> ArchivosHonor = {{
    {"UltCeI.dat", "CeI.rnd", LímiteFilas, LargoFilaHonor},
    {"UltIyC.dat", "IyC.rnd", LímiteFilas, LargoFilaHonor},
    {"UltCas.dat", "Cas.rnd", LímiteFilas, LargoFilaHonor},
    {"UltIng.dat", "Ingl.rnd", LímiteFilas, LargoFilaHonor},
    {"UltCoI.dat", "CoI.rnd", LímiteFilas, LargoFilaHonor},
}};

/// Everything that is stored.
inline constexpr auto Pares = [] {
    std::array<Par, 2 + ArchivosHonor.size()> pairs = {ArchivoGuardadas, ArchivoÚltimas};
    std::copy(ArchivosHonor.begin(), ArchivosHonor.end(), pairs.begin() + 2);
    return pairs;
}();

/// The number in the content of a counter, 0 to the limit of its pair; nothing when it does not begin with one, behind
/// blanks: such a counter is damaged, and taken for 0 it would let the next change overwrite records. A number above
/// ten in a list of ten counts as ten; one that no 16-bit counter holds is a failure.
std::optional<int> NúmeroDeContador(std::string_view content, const Par& par);

/// The number in the counter of a pair; nothing also when the file cannot be read.
std::optional<int> LeerContador(Files& files, const Par& par);

/// Whether the files of a pair, by the content of the one and the length of the other, fit each other: all records are
/// whole, and there are at least as many as the counter says.
bool Encajan(std::string_view contador, std::size_t largo, const Par& par);

/// Replaces the counter of a pair in one step. False on failure.
bool EscribirContador(Files& files, const Par& par, int count);

/// Whether a player has stored anything in the folder: counters of 0 alone are what every new one begins with.
bool HayArchivos(Files& files);

/// Furnishes a game folder: a pair of which neither file is there gets its counter, with 0. A pair that has lost one of
/// its files stays as it is. False on failure.
bool EstrenarCarpeta(Files& files);

}  // namespace juego
