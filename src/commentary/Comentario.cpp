#include "commentary/Comentario.h"

#include <algorithm>

#include "commentary/FrasesPalabra.h"
#include "commentary/FrasesReaccion.h"

namespace juego {

namespace {

constexpr int kWordLines = 23;
constexpr int kAnguishLines = 16;
constexpr int kFallLines = 15;
constexpr TextView kVowels = u"AEIOU";

// The number that chance has drawn opens and closes the hints.
bool OpensLetters(int p) {
    return p < 8;
}
bool OpensRepeats(int p) {
    return p >= 16;
}
bool OpensEnds(int p) {
    return p > 9;
}
bool OpensInner(int p) {
    return p < 9;
}

/// Only the level that first gives no letter away tells that the ends are equal.
constexpr int kLevelOfEnds = 3;

bool IsEmpty(const Frase& line) {
    return line.Singular.empty();
}

}  // namespace

void Comentario::ComentarioPalabra() {
    SacarAzar();
    Frase line = LíneaFija();
    if (IsEmpty(line)) line = PistaLetras();
    if (IsEmpty(line)) line = PistaPosiciones();
    if (!IsEmpty(line)) {
        z.picZarpi.ToolTipText = Rellenar(line, z);
        return;
    }
    LlenarComentarios();
    z.picZarpi.ToolTipText = z.Comentarios.at(static_cast<std::size_t>(z.AzarComentario));
}

void Comentario::SacarAzar() {
    int p = 0;
    do {
        p = Draw(random, clock, kWordLines);
    } while (p == z.AzarPrevio1 || p == z.AzarPrevio2 || p == z.AzarPrevio3);
    z.AzarPrevio3 = z.AzarPrevio2;
    z.AzarPrevio2 = z.AzarPrevio1;
    z.AzarPrevio1 = static_cast<Integer>(p);
    z.AzarComentario = static_cast<Integer>(p);
}

Frase Comentario::LíneaFija() {
    if (z.fPrimerComentario) {
        z.fPrimerComentario = false;
        return frases::Reanudada;
    }
    const auto fixed = std::ranges::find(frases::Fijas, z.NúmPalabra, &frases::PalabraFija::Palabra);
    if (fixed != frases::Fijas.end()) return fixed->Frase;
    if (z.plenos == z.NúmPalabra - 1) return Elegir(frases::TodoPlenos, z.NúmPalabra);
    return {};
}

Frase Comentario::PistaLetras() {
    const int p = z.AzarComentario;
    if (OpensLetters(p)) {
        if (HayLetra(u'Ñ')) return frases::LetraEñe;
        if (HayLetra(u'Z')) return frases::LetraZeta;
        if (HayLetra(u'W')) return frases::LetraUveDoble;
        ContarVocales();
        if (z.NúmVocales == 1) return frases::UnaVocal;
    }
    if (OpensRepeats(p)) {
        BuscarIguales(3);
        if (z.LetrasIguales == 3) return frases::CuatroIguales;
        BuscarIguales(2);
        if (z.LetrasIguales == 2) return frases::TresIguales;
    }
    if (OpensLetters(p) && HayDoble()) return frases::LetraDoble;
    return {};
}

/// The last letter of the word is not looked at.
bool Comentario::HayLetra(char16_t letter) const {
    return TextView(z.PalabraClave).substr(0, z.PalabraClave.size() - 1).find(letter) != TextView::npos;
}

bool Comentario::HayDoble() const {
    return std::ranges::adjacent_find(z.PalabraClave) != z.PalabraClave.end();
}

void Comentario::ContarVocales() {
    const auto isVowel = [](char16_t c) { return kVowels.find(c) != TextView::npos; };
    z.NúmVocales = static_cast<Integer>(std::ranges::count_if(z.PalabraClave, isVowel));
}

/// Leaves `copies` if a letter of the word, not among its last three, stands so many times more behind itself; else 0.
void Comentario::BuscarIguales(int copies) {
    constexpr int kShortest = 6;
    constexpr int kUnseen = 3;
    z.LetrasIguales = 0;
    const Text& word = z.PalabraClave;
    if (z.LargoPalabra < kShortest) return;
    for (auto letter = word.begin(); letter != word.end() - kUnseen; ++letter) {
        if (std::count(letter + 1, word.end(), *letter) >= copies) {
            z.LetrasIguales = static_cast<Integer>(copies);
            return;
        }
    }
}

Frase Comentario::PistaPosiciones() const {
    constexpr std::size_t kTooShort = 4;
    const Text& word = z.PalabraClave;
    if (word.size() <= kTooShort) return {};
    const int p = z.AzarComentario;
    if (word.front() == word.back() && z.NúmNivel == kLevelOfEnds && OpensEnds(p)) return frases::ExtremosIguales;
    if (word[1] == word[word.size() - 2] && OpensInner(p)) return frases::InterioresIguales;
    return {};
}

void Comentario::LlenarComentarios() {
    z.DíaSemana = static_cast<Integer>(Weekday(clock.Today()));
    auto lines = frases::Tabla;
    lines[12] = Elegir(frases::Comodines, z.comodines);
    lines[14] = z.plenos == 2 || z.plenos == 5 || z.plenos == 8 ? frases::PlenoConComodín : frases::Paciencia;
    lines[15] = Elegir(frases::Plenos, z.plenos);
    lines[16] = Elegir(frases::Zarpis, z.puntos);
    lines[17] = Elegir(frases::Acertadas, z.NúmPalabra);
    lines[18] = Elegir(frases::LetraInterior, z.LargoPalabra);
    lines[23] = Elegir(frases::UsoComodines, z.comodines);
    std::ranges::transform(lines, z.Comentarios.begin(), [this](const Frase& line) { return Rellenar(line, z); });
}

void Comentario::ComentarioAngustia() {
    z.AzarAngustia = static_cast<Integer>(Draw(random, clock, kAnguishLines));
    const Frase last = Elegir(frases::AngustiaFinal, z.NúmPalabra);
    if (!IsEmpty(last)) {
        z.picZarpi.ToolTipText = Rellenar(last, z);
        return;
    }
    auto lines = frases::TablaAngustia;
    lines[3] = lines[8] = Elegir(frases::AngustiaComodines, z.comodines);
    lines[6] = lines[9] = Elegir(frases::AngustiaCaídas, z.Caídas);
    std::ranges::transform(lines, z.ComentariosAngustia.begin(),
                           [this](const Frase& line) { return Rellenar(line, z); });
    z.picZarpi.ToolTipText = z.ComentariosAngustia.at(static_cast<std::size_t>(z.AzarAngustia));
}

void Comentario::ComentarioCaída() {
    z.AzarCaída = static_cast<Integer>(Draw(random, clock, kFallLines));
    Frase fixed = Elegir(frases::CaídaFija, z.NúmPalabra);
    if (IsEmpty(fixed) && z.comodines >= frases::MuchosComodines) fixed = frases::CaídaConComodines;
    if (!IsEmpty(fixed)) {
        z.Picture1.ToolTipText = Rellenar(fixed, z);
        return;
    }
    auto lines = frases::TablaCaída;
    lines[5] = lines[10] = Elegir(frases::CaídaComodines, z.comodines);
    lines[7] = lines[13] = Elegir(frases::CaídaPalabra, z.NúmPalabra);
    std::ranges::transform(lines, z.ComentariosCaída.begin(), [this](const Frase& line) { return Rellenar(line, z); });
    z.Picture1.ToolTipText = z.ComentariosCaída.at(static_cast<std::size_t>(z.AzarCaída));
}

}  // namespace juego
