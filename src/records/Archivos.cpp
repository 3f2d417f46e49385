#include "records/Archivos.h"

#include <algorithm>
#include <charconv>

namespace juego {

std::optional<int> NúmeroDeContador(std::string_view content, const Par& par) {
    if (content.empty()) return std::nullopt;
    const auto first = content.find_first_not_of(' ');
    if (first == std::string_view::npos || content[first] == '-') return 0;
    int count = 0;
    const auto result = std::from_chars(content.data() + first, content.data() + content.size(), count);
    const bool tooLong = result.ec == std::errc::result_out_of_range;
    if (!tooLong && count <= par.Límite) return count;
    return par.Límite == LímiteFilas ? std::optional(LímiteFilas) : std::nullopt;
}

std::optional<int> LeerContador(Files& files, const Par& par) {
    const auto content = files.Read(par.Contador);
    return content ? NúmeroDeContador(*content, par) : std::nullopt;
}

bool EscribirContador(Files& files, const Par& par, int count) {
    std::string line(1, ' ');
    line.append(std::to_string(count)).append(" \r\n");
    return files.Replace(par.Contador, line);
}

bool HayArchivos(Files& files) {
    return std::ranges::any_of(
        Pares, [&files](const Par& par) { return files.Exists(par.Contador) || files.Exists(par.Registros); });
}

bool EstrenarCarpeta(Files& files) {
    return std::ranges::all_of(Pares, [&files](const Par& par) {
        return files.Exists(par.Contador) || files.Exists(par.Registros) || EscribirContador(files, par, 0);
    });
}

}  // namespace juego
