#include "records/Registros.h"

#include <algorithm>
#include <array>
#include <limits>
#include <variant>

namespace juego {

namespace {

/// Where a field of a record stands in its bytes.
template <class Registro>
struct Campo {
    std::size_t Offset;
    std::size_t Ancho;
    std::variant<Integer Registro::*, Text Registro::*> Dónde;
    bool CedeSigno = false;  ///< whether a number that fills the field takes the place of its sign too
};

constexpr std::array<Campo<PartidaGuardada>, 12> kPartidaGuardada = {{
    {0, 3, &PartidaGuardada::NúmPalabra},
    {3, 2, &PartidaGuardada::Modo},
    {5, 2, &PartidaGuardada::Alter},
    {7, 3, &PartidaGuardada::Tiempo},
    {10, 4, &PartidaGuardada::puntos},
    {14, 3, &PartidaGuardada::plenos},
    {17, 2, &PartidaGuardada::comodines, true},  // room for one digit, and ten jokers are allowed
    {19, 14, &PartidaGuardada::Nombre},
    {33, 11, &PartidaGuardada::Fecha},
    {44, 10, &PartidaGuardada::Contraseña},
    {54, 5, &PartidaGuardada::Aleator},
    {59, 5, &PartidaGuardada::Alea},
}};

constexpr std::array<Campo<FilaHonor>, 5> kFilaHonor = {{
    {0, 4, &FilaHonor::puntos},
    {4, 14, &FilaHonor::Nombre},
    {18, 3, &FilaHonor::plenos},
    {21, 10, &FilaHonor::Tiempo},
    {31, 10, &FilaHonor::Fecha},
}};

constexpr std::array<Campo<FilaÚltima>, 7> kFilaÚltima = {{
    {0, 7, &FilaÚltima::Palabra},
    {7, 14, &FilaÚltima::Nombre},
    {21, 4, &FilaÚltima::puntos},
    {25, 3, &FilaÚltima::plenos},
    {28, 2, &FilaÚltima::Modo},
    {30, 12, &FilaÚltima::Tiempo},
    {42, 11, &FilaÚltima::Fecha},
}};

/// Text for a field: numbers behind the place of their sign.
template <class Registro>
Text FieldText(const Text& value, const Campo<Registro>& /*field*/) {
    return value;
}
template <class Registro>
Text FieldText(Integer value, const Campo<Registro>& field) {
    const Text digits = SignedDecimal(value);
    return field.CedeSigno && digits.size() > field.Ancho ? Decimal(value) : digits;
}

void Assign(Text& target, TextView field) {
    target = field;
}
void Assign(Integer& target, TextView field) {
    target = NúmeroDeCampo(field);
}

template <class Registro, std::size_t N>
std::string Encode(const Registro& record, const std::array<Campo<Registro>, N>& fields) {
    std::string bytes(Registro::Largo, ' ');
    for (const Campo<Registro>& field : fields) {
        std::visit(
            [&](auto member) {
                const Text text = FieldText(record.*member, field).substr(0, field.Ancho);
                bytes.replace(field.Offset, text.size(), ToWindows1252(text));
            },
            field.Dónde);
    }
    return bytes;
}

template <class Registro, std::size_t N>
void Decode(std::string bytes, Registro& record, const std::array<Campo<Registro>, N>& fields) {
    bytes.resize(Registro::Largo, ' ');
    // Holes of a damaged file are bytes that no text has.
    std::ranges::replace_if(
        bytes, [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    const Text text = FromWindows1252(bytes);
    for (const Campo<Registro>& field : fields) {
        const TextView part = TextView(text).substr(field.Offset, field.Ancho);
        std::visit([&](auto member) { Assign(record.*member, part); }, field.Dónde);
    }
}

}  // namespace

Integer NúmeroDeCampo(TextView field) {
    constexpr int kMax = std::numeric_limits<Integer>::max();
    int number = 0;
    const auto first = std::min(field.find_first_not_of(u' '), field.size());
    for (const char16_t c : field.substr(first)) {
        if (c < u'0' || c > u'9') break;
        number = std::min(number * 10 + (c - u'0'), kMax);
    }
    return static_cast<Integer>(number);
}

std::string Codificar(const PartidaGuardada& record) {
    return Encode(record, kPartidaGuardada);
}
std::string Codificar(const FilaHonor& record) {
    return Encode(record, kFilaHonor);
}
std::string Codificar(const FilaÚltima& record) {
    return Encode(record, kFilaÚltima);
}

void Decodificar(std::string bytes, PartidaGuardada& record) {
    Decode(std::move(bytes), record, kPartidaGuardada);
}
void Decodificar(std::string bytes, FilaHonor& record) {
    Decode(std::move(bytes), record, kFilaHonor);
}
void Decodificar(std::string bytes, FilaÚltima& record) {
    Decode(std::move(bytes), record, kFilaÚltima);
}

}  // namespace juego
