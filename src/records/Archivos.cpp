#include "records/Archivos.h"

#include <algorithm>
#include <charconv>

namespace juego {

std::optional<int> NúmeroDeContador(std::string_view content, const Par& par) {
    content.remove_prefix(std::min(content.find_first_not_of(' '), content.size()));
    unsigned count = 0;
    const auto result = std::from_chars(content.data(), content.data() + content.size(), count);
    if (result.ec == std::errc::invalid_argument) return std::nullopt;
    const bool fits = result.ec == std::errc() && count <= static_cast<unsigned>(par.Límite);
    if (fits) return static_cast<int>(count);
    return par.Límite == LímiteFilas ? std::optional(LímiteFilas) : std::nullopt;
}

std::optional<int> LeerContador(Files& files, const Par& par) {
    const auto content = files.Read(par.Contador);
    return content ? NúmeroDeContador(*content, par) : std::nullopt;
}

bool Encajan(std::string_view contador, std::size_t largo, const Par& par) {
    const auto count = NúmeroDeContador(contador, par);
    return count && largo % par.Largo == 0 && static_cast<std::size_t>(*count) * par.Largo <= largo;
}

bool EscribirContador(Files& files, const Par& par, int count) {
    std::string line(1, ' ');
    line.append(std::to_string(count)).append(" \r\n");
    return files.Replace(par.Contador, line);
}

bool HayArchivos(Files& files) {
    return std::ranges::any_of(Pares, [&files](const Par& par) {
        return files.Exists(par.Registros) || (files.Exists(par.Contador) && LeerContador(files, par) != 0);
    });
}

bool EstrenarCarpeta(Files& files) {
    return std::ranges::all_of(Pares, [&files](const Par& par) {
        return files.Exists(par.Contador) || files.Exists(par.Registros) || EscribirContador(files, par, 0);
    });
}

}  // namespace juego
