#include "game/Campos.h"

#include <charconv>

namespace juego {

namespace {

using Miembro = std::variant<Integer Zarpi::*, bool Zarpi::*, Text Zarpi::*, std::int32_t Zarpi::*, Textos<7> Zarpi::*,
                             Textos<12> Zarpi::*, Textos<15> Zarpi::*, Textos<16> Zarpi::*, Textos<20> Zarpi::*,
                             Textos<23> Zarpi::*, Textos<30> Zarpi::*>;

struct Campo {
    std::string_view Nombre;
    Miembro Dónde;
};

constexpr auto kCampos = std::to_array<Campo>({
    Campo{"NúmNivel", &Zarpi::NúmNivel},
    Campo{"NúmPalabra", &Zarpi::NúmPalabra},
    Campo{"puntos", &Zarpi::puntos},
    Campo{"plenos", &Zarpi::plenos},
    Campo{"Tiempo", &Zarpi::Tiempo},
    Campo{"comodines", &Zarpi::comodines},
    Campo{"comod", &Zarpi::comod},
    Campo{"fComodín", &Zarpi::fComodín},
    Campo{"ModoHonor", &Zarpi::ModoHonor},
    Campo{"Modo", &Zarpi::Modo},
    Campo{"Fecha", &Zarpi::Fecha},
    Campo{"Contraseña", &Zarpi::Contraseña},
    Campo{"Nombre", &Zarpi::Nombre},
    Campo{"último", &Zarpi::último},
    Campo{"fReanudar", &Zarpi::fReanudar},
    Campo{"Sonido", &Zarpi::Sonido},
    Campo{"anónimo", &Zarpi::anónimo},
    Campo{"Caídas", &Zarpi::Caídas},
    Campo{"Alter", &Zarpi::Alter},
    Campo{"Fallo", &Zarpi::Fallo},
    Campo{"plural", &Zarpi::plural},
    Campo{"fSalirError", &Zarpi::fSalirError},
    Campo{"HoraPalabra", &Zarpi::HoraPalabra},
    Campo{"fTiempoAgotado", &Zarpi::fTiempoAgotado},
    Campo{"fDiezPalabras", &Zarpi::fDiezPalabras},
    Campo{"TopeCastellano", &Zarpi::TopeCastellano},
    Campo{"TopeInglés", &Zarpi::TopeInglés},
    Campo{"PalabraClave", &Zarpi::PalabraClave},
    Campo{"PalabraMensaje", &Zarpi::PalabraMensaje},
    Campo{"NúmTecla", &Zarpi::NúmTecla},
    Campo{"Días", &Zarpi::Días},
    Campo{"fPrimerComentario", &Zarpi::fPrimerComentario},
    Campo{"VecesSalto", &Zarpi::VecesSalto},
    Campo{"VecesAngustia", &Zarpi::VecesAngustia},
    Campo{"PalabrasUsadas", &Zarpi::PalabrasUsadas},
    Campo{"NúmUsadas", &Zarpi::NúmUsadas},
    Campo{"LargoPalabra", &Zarpi::LargoPalabra},
    Campo{"fInglésCaste", &Zarpi::fInglésCaste},
    Campo{"fAlterna", &Zarpi::fAlterna},
    Campo{"Traducción", &Zarpi::Traducción},
    Campo{"PrimeraLetra", &Zarpi::PrimeraLetra},
    Campo{"ÚltimaLetra", &Zarpi::ÚltimaLetra},
    Campo{"PosiciónLetra", &Zarpi::PosiciónLetra},
    Campo{"Letra", &Zarpi::Letra},
    Campo{"NúmIntentadas", &Zarpi::NúmIntentadas},
    Campo{"LetrasIntentadas", &Zarpi::LetrasIntentadas},
    Campo{"Aciertos", &Zarpi::Aciertos},
    Campo{"fAcierto", &Zarpi::fAcierto},
    Campo{"IzqEmpujador1", &Zarpi::IzqEmpujador1},
    Campo{"AnchoEmpujador2", &Zarpi::AnchoEmpujador2},
    Campo{"IzqZarpi", &Zarpi::IzqZarpi},
    Campo{"fFinPartida", &Zarpi::fFinPartida},
    Campo{"fVictoria", &Zarpi::fVictoria},
    Campo{"Bonificación", &Zarpi::Bonificación},
    Campo{"Músicas", &Zarpi::Músicas},
    Campo{"NúmMúsica", &Zarpi::NúmMúsica},
    Campo{"AzarComentario", &Zarpi::AzarComentario},
    Campo{"AzarPrevio1", &Zarpi::AzarPrevio1},
    Campo{"AzarPrevio2", &Zarpi::AzarPrevio2},
    Campo{"AzarPrevio3", &Zarpi::AzarPrevio3},
    Campo{"Comentarios", &Zarpi::Comentarios},
    Campo{"DíaSemana", &Zarpi::DíaSemana},
    Campo{"NúmVocales", &Zarpi::NúmVocales},
    Campo{"LetrasIguales", &Zarpi::LetrasIguales},
    Campo{"AzarAngustia", &Zarpi::AzarAngustia},
    Campo{"ComentariosAngustia", &Zarpi::ComentariosAngustia},
    Campo{"AzarCaída", &Zarpi::AzarCaída},
    Campo{"ComentariosCaída", &Zarpi::ComentariosCaída},
    Campo{"FechaPartida", &Zarpi::FechaPartida},
    Campo{"NúmPartidas", &Zarpi::NúmPartidas},
    Campo{"TextoTiempo", &Zarpi::TextoTiempo},
});

/// "PalabrasUsadas(3)" split into its name and its index; the index is -1 without brackets.
std::pair<std::string_view, int> Split(std::string_view name) {
    const auto open = name.find('(');
    if (open == std::string_view::npos) return {name, -1};
    int index = -1;
    std::from_chars(name.data() + open + 1, name.data() + name.size(), index);
    return {name.substr(0, open), index};
}

std::optional<Valor> Value(Integer field, int index) {
    return index < 0 ? std::optional<Valor>(field) : std::nullopt;
}
std::optional<Valor> Value(bool field, int index) {
    return index < 0 ? std::optional<Valor>(field) : std::nullopt;
}
std::optional<Valor> Value(std::int32_t field, int index) {
    return index < 0 ? std::optional<Valor>(field) : std::nullopt;
}
std::optional<Valor> Value(const Text& field, int index) {
    return index < 0 ? std::optional<Valor>(field) : std::nullopt;
}
template <std::size_t N>
std::optional<Valor> Value(const std::array<Text, N>& field, int index) {
    if (index < 0 || index >= static_cast<int>(N)) return std::nullopt;
    return field[static_cast<std::size_t>(index)];
}

}  // namespace

std::optional<Valor> ValorDeCampo(const Zarpi& zarpi, std::string_view name) {
    const auto [base, index] = Split(name);
    // A save ends the game within one event: its flag is never seen set.
    if (base == "fGuardar") return Value(false, index);
    for (const Campo& campo : kCampos) {
        if (campo.Nombre != base) continue;
        return std::visit([&zarpi, i = index](auto member) { return Value(zarpi.*member, i); }, campo.Dónde);
    }
    return std::nullopt;
}

}  // namespace juego
