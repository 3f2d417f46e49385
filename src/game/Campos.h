#pragma once

#include <array>
#include <optional>
#include <string_view>
#include <variant>

#include "game/Zarpi.h"

namespace juego {

/// What a field holds, for those who look at the game from outside.
using Valor = std::variant<bool, int, Text>;

/// The value of a field of `Zarpi` by its name, "PalabrasUsadas(3)" for an entry; nothing if there is no such field.
std::optional<Valor> ValorDeCampo(const Zarpi& zarpi, std::string_view name);

}  // namespace juego
