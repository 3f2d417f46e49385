#pragma once

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
    int Límite;  ///< the highest count it can have
};

constexpr int LímiteFilas = 10;

inline constexpr Par ArchivoGuardadas = {"Ultimo.dat", "Guardar.rnd", 32767};
inline constexpr Par ArchivoÚltimas = {"UltPart.dat", "Part.rnd", LímiteFilas};

/// The honour boards, by mode number from 1.
inline constexpr std::array<Par, 5> ArchivosHonor = {{
    {"UltCeI.dat", "CeI.rnd", LímiteFilas},
    {"UltIyC.dat", "IyC.rnd", LímiteFilas},
    {"UltCas.dat", "Cas.rnd", LímiteFilas},
    {"UltIng.dat", "Ingl.rnd", LímiteFilas},
    {"UltCoI.dat", "CoI.rnd", LímiteFilas},
}};

/// The number in the counter of a pair, 0 to its limit; nothing when the file cannot be read or is empty. A number
/// above ten in a list of ten counts as ten; one that no 16-bit counter holds is a failure.
std::optional<int> LeerContador(Files& files, const Par& par);

/// Replaces the counter of a pair in one step. False on failure.
bool EscribirContador(Files& files, const Par& par, int count);

}  // namespace juego
