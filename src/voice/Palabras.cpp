#include "voice/Palabras.h"

#include "game/Modos.h"
#include "game/Reglas.h"

namespace juego::voz {

namespace {

constexpr TextView kEmptyBox = u"vacía";

Text LetterOfBox(const Zarpi& z, int index) {
    const Text& letter = z.lblLetra(index).Caption;
    return letter.empty() ? Text(kEmptyBox) : letter;
}

char16_t LowerCase(char16_t c) {
    constexpr TextView kUpper = u"ÁÉÍÓÚÜÑ";
    constexpr TextView kLower = u"áéíóúüñ";
    if (c >= u'A' && c <= u'Z') return static_cast<char16_t>(c - u'A' + u'a');
    const auto place = kUpper.find(c);
    return place == TextView::npos ? c : kLower[place];
}

bool EndsSentence(char16_t c) {
    return TextView(u".!?").find(c) != TextView::npos;
}

/// Small letters behind the first of each sentence.
Text SinMayúsculas(TextView line) {
    Text said;
    bool first = true;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char16_t lower = LowerCase(line[i]);
        // A letter that stands alone is one that he names.
        const bool alone = (i == 0 || line[i - 1] == u' ') && (i + 1 == line.size() || EndsSentence(line[i + 1]));
        const bool isLetter = lower != line[i];
        said += isLetter && (first || alone) ? line[i] : lower;
        if (isLetter) first = false;
        if (EndsSentence(line[i])) first = true;
    }
    return said;
}

}  // namespace

void Añadir(Text& said, const Text& sentence) {
    if (sentence.empty()) return;
    if (!said.empty()) said += u' ';
    said += sentence;
}

Text Contar(int number, TextView one, TextView many) {
    return Decimal(number) + u" " + Text(number == 1 ? one : many);
}

Text LíneaDeZarpi(const Zarpi& z, TextView line) {
    if (line.empty()) return {};
    Text said = SinMayúsculas(line);
    const Text name = Trim(z.Nombre);
    Text small;
    for (const char16_t c : UpperCase(name)) small += LowerCase(c);
    for (auto at = said.find(small); !small.empty() && at != Text::npos; at = said.find(small, at + name.size())) {
        said.replace(at, name.size(), name);
    }
    return u"Zarpi: " + said;
}

Text Tablero(const Zarpi& z) {
    Text said;
    for (int i = 1; i <= z.LargoPalabra; ++i) said += (i == 1 ? u"" : u", ") + LetterOfBox(z, i);
    return said;
}

Text Casilla(const Zarpi& z, int index) {
    if (index > z.LargoPalabra) return {};
    return u"Letra " + Decimal(index) + u" de " + Decimal(z.LargoPalabra) + u", " + LetterOfBox(z, index);
}

Text Fallos(const Zarpi& z) {
    if (z.Fallo == 0) return u"Sin fallos.";
    Text said = u"Fallos: ";
    for (int i = 1; i <= z.Fallo; ++i) said += (i == 1 ? u"" : u", ") + z.lblError(i).Caption;
    return said + u".";
}

Text Palabra(const Zarpi& z) {
    return u"Palabra " + Decimal(z.NúmPalabra) + u", nivel " + Decimal(z.NúmNivel) +
           (z.lblTapa2.Visible ? u", inglés." : u", castellano.");
}

Text Tiempo(const Zarpi& z) {
    constexpr std::size_t kMinutes = 3;
    constexpr std::size_t kSeconds = 6;
    const auto part = [&z](std::size_t at) {
        const TextView digits = TextView(z.lblTiempo.Caption).substr(at, 2);
        return (digits[0] - u'0') * 10 + (digits[1] - u'0');
    };
    const Text limit =
        TextoDeTiempo(z.Tiempo) == u"Indefinido" ? u"." : u", de " + Text(TextoDeTiempo(z.Tiempo)) + u".";
    return u"Tiempo: " + Contar(part(kMinutes), u"minuto", u"minutos") + u", " +
           Contar(part(kSeconds), u"segundo", u"segundos") + limit;
}

Text Comodines(const Zarpi& z) {
    if (z.fComodín) return u"Comodín preparado: elige una casilla.";
    return z.comodines == 0 ? u"Sin comodines." : Contar(z.comodines, u"comodín.", u"comodines.");
}

Text Estado(const Zarpi& z) {
    if (z.fFinPartida) return z.Label5.Caption.empty() ? u"No hay partida." : u"No hay partida. " + z.Label5.Caption;
    return Palabra(z) + u" " + Contar(z.LargoPalabra, u"letra", u"letras") + u": " + Tablero(z) + u". " + Fallos(z) +
           u" " + Tiempo(z) + u" " + Comodines(z);
}

}  // namespace juego::voz
