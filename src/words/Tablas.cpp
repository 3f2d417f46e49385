#include "words/Tablas.h"

#include <string_view>

namespace juego {

namespace {

#include "Tablas.inc"

/// Entry `index` of a table of lines.
platform::Text Entry(std::string_view lines, int index) {
    if (index < 1 || index > NúmEntradas) return {};
    for (; index > 1; --index) lines.remove_prefix(lines.find('\n') + 1);
    return platform::FromWindows1252(lines.substr(0, lines.find('\n')));
}

}  // namespace

platform::Text PalabraCastellana(int index) {
    return Entry(kCastellano, index);
}
platform::Text PalabraInglesa(int index) {
    return Entry(kIngles, index);
}
platform::Text TraducciónDeInglesa(int index) {
    return Entry(kTraducciones, index);
}

}  // namespace juego
