#include "game/Plural.h"

#include <algorithm>
#include <array>

namespace juego {

bool NombraVarios(platform::TextView nombre) {
    constexpr std::array<platform::TextView, 3> kConjunctions = {u" Y ", u" E ", u" O "};
    const platform::Text upper = platform::UpperCase(nombre);
    return std::ranges::any_of(kConjunctions, [&](auto piece) { return upper.find(piece) != platform::Text::npos; });
}

}  // namespace juego
