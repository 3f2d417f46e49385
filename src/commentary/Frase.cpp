#include "commentary/Frase.h"

#include <array>

namespace juego {

namespace {

Text Letter(const Zarpi& z, std::size_t position) {
    return position >= 1 && position <= z.PalabraClave.size() ? Text(1, z.PalabraClave[position - 1]) : Text();
}

struct Marca {
    TextView Nombre;
    Text (*Valor)(const Zarpi&);
};

constexpr std::array<Marca, 14> kMarks = {{
    {u"N", [](const Zarpi& z) { return UpperCase(Trim(z.Nombre)); }},
    {u"w", [](const Zarpi& z) { return SignedDecimal(z.NúmPalabra); }},
    {u"w-1", [](const Zarpi& z) { return SignedDecimal(z.NúmPalabra - 1); }},
    {u"31-w", [](const Zarpi& z) { return SignedDecimal(31 - z.NúmPalabra); }},
    {u"L", [](const Zarpi& z) { return SignedDecimal(z.LargoPalabra); }},
    {u"nivel", [](const Zarpi& z) { return SignedDecimal(z.NúmNivel); }},
    {u"plenos", [](const Zarpi& z) { return SignedDecimal(z.plenos); }},
    {u"puntos", [](const Zarpi& z) { return SignedDecimal(z.puntos); }},
    {u"comodines", [](const Zarpi& z) { return SignedDecimal(z.comodines); }},
    {u"día", [](const Zarpi& z) { return z.Días.at(static_cast<std::size_t>(z.DíaSemana)); }},
    {u"2", [](const Zarpi& z) { return Letter(z, 2); }},
    {u"3", [](const Zarpi& z) { return Letter(z, 3); }},
    {u"4", [](const Zarpi& z) { return Letter(z, 4); }},
    {u"p", [](const Zarpi& z) { return Letter(z, z.PalabraClave.size() - 1); }},
}};

Text ValueOfMark(TextView name, const Zarpi& z) {
    for (const Marca& mark : kMarks) {
        if (mark.Nombre == name) return mark.Valor(z);
    }
    return {};
}

}  // namespace

Frase Elegir(std::span<const Tramo> stretches, int value) {
    for (const Tramo& stretch : stretches) {
        if (value <= stretch.Hasta) return stretch.Frase;
    }
    return {};
}

Text Rellenar(const Frase& line, const Zarpi& zarpi) {
    TextView rest = zarpi.plural && !line.Plural.empty() ? line.Plural : line.Singular;
    Text filled;
    for (auto open = rest.find(u'{'); open != TextView::npos; open = rest.find(u'{')) {
        const auto close = rest.find(u'}', open);
        filled += rest.substr(0, open);
        filled += ValueOfMark(rest.substr(open + 1, close - open - 1), zarpi);
        rest.remove_prefix(close + 1);
    }
    return filled.append(rest);
}

}  // namespace juego
