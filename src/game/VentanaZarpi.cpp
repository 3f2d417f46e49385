#include "game/VentanaZarpi.h"

#include "game/Teclas.h"

namespace juego {

namespace {

constexpr int kLetterStep = 780;
constexpr int kErrorStep = 1020;

/// Left corners of the joker boxes; the first five stand in the upper row.
constexpr std::array<int, 10> kJokerLefts = {9270, 9900, 10410, 10920, 11430, 9270, 9780, 10290, 10800, 11310};

bool IsVowelKey(int i) {
    return i >= PrimeraVocal;
}

}  // namespace

VentanaZarpi::LabelDesign VentanaZarpi::LetraTecla(int i) {
    const Tecla& tecla = TeclaDeÍndice(i);
    return {{tecla.Left + 60, tecla.Top + 60, 405, 400, Hidden},
            {.Caption = Text(1, tecla.Letra),
             .BackColor = IsVowelKey(i) ? Yellow : Blue,
             .ForeColor = IsVowelKey(i) ? Black : White,
             .Font = FontName::CourierNew,
             .FontSize = 21.75,
             .FontBold = true}};
}

VentanaZarpi::ShapeDesign VentanaZarpi::PlacaTecla(int i) {
    const Tecla& tecla = TeclaDeÍndice(i);
    return {{tecla.Left, tecla.Top, 525, 555, Hidden}, {.FillColor = IsVowelKey(i) ? Yellow : Blue}};
}

VentanaZarpi::LabelDesign VentanaZarpi::CasillaComodín(int i) {
    const int top = i <= 5 ? 3420 : 4410;
    return {{kJokerLefts.at(static_cast<std::size_t>(i - 1)), top, 405, 765, i <= 3},
            ValueBox(u"?", FontName::CourierNew, 36, true, 0xC0C000, Red)};
}

VentanaZarpi::LabelDesign VentanaZarpi::CasillaError(int i) {
    return {{1710 + kErrorStep * (i - 1), 3180, 735, 585, Hidden},
            ValueBox(u"", FontName::CourierNew, 26.25, true, Green, Red)};
}

VentanaZarpi::LabelDesign VentanaZarpi::CasillaLetra(int i) {
    return {{360 + kLetterStep * (i - 1), 3870, 795, 975},
            {.ForeColor = Red, .Font = FontName::CourierNew, .FontSize = 48, .FontBold = true}};
}

VentanaZarpi::ShapeDesign VentanaZarpi::RecuadroLetra(int i) {
    return {{360 + kLetterStep * (i - 1), 3930, 795, 975, Hidden}, {.FillColor = Green}};
}

std::pair<Place, PictureLook> VentanaZarpi::Fondo(int i) {
    const int height = i == 4 || i == 6 ? 5415 : 5400;
    return {{30, 2985, 8550, height, i == 2}, {.Stored = "fondo" + std::to_string(i)}};
}

std::array<MediaChannel, 12> VentanaZarpi::CanalesMusica() {
    std::array<MediaChannel, 12> channels;
    for (std::size_t i = 0; i < channels.size(); ++i) channels[i].Name = "sonMusica(" + std::to_string(i + 1) + ")";
    return channels;
}

}  // namespace juego
