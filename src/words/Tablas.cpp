#include "words/Tablas.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace juego {

namespace {

#include "Tablas.inc"

using Starts = std::array<std::uint16_t, NúmEntradas + 2>;

platform::Text Entry(std::string_view bytes, const Starts& starts, int index) {
    if (index < 1 || index > NúmEntradas) return {};
    const auto i = static_cast<std::size_t>(index);
    return platform::FromWindows1252(bytes.substr(starts[i], starts[i + 1] - starts[i]));
}

}  // namespace

platform::Text PalabraCastellana(int index) {
    return Entry(kCastellano, kCastellanoStarts, index);
}
platform::Text PalabraInglesa(int index) {
    return Entry(kIngles, kInglesStarts, index);
}
platform::Text TraducciónDeInglesa(int index) {
    return Entry(kTraducciones, kTraduccionesStarts, index);
}

}  // namespace juego
