#include "voice/Palabras.h"

#include <algorithm>
#include <array>

#include "game/Modos.h"
#include "game/Reglas.h"

namespace juego::voz {

namespace {

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

/// One blank between words, none at the ends.
Text OneBlank(TextView text) {
    Text said;
    for (const char16_t c : Trim(text)) {
        if (c != u' ' || said.back() != u' ') said += c;
    }
    return said;
}

/// With the marks that end it and the blanks behind them.
std::size_t LengthOfSentence(TextView text) {
    std::size_t end = 0;
    while (end < text.size() && !(EndsSentence(text[end]) && (end + 1 == text.size() || text[end + 1] == u' '))) ++end;
    end = text.find_first_not_of(u" .!?", end);
    return end == TextView::npos ? text.size() : end;
}

/// Words that every English sentence of the game has one of, and no Spanish one.
constexpr auto kEnglishWords =
    std::to_array<TextView>({u"you", u"you're", u"your", u"yourself", u"my", u"it's", u"this", u"to", u"on", u"good",
                             u"congratulations", u"the", u"there's", u"game", u"english"});

bool IsEnglish(TextView sentence) {
    Text word;
    for (std::size_t i = 0; i <= sentence.size(); ++i) {
        const char16_t lower = i < sentence.size() ? LowerCase(sentence[i]) : u' ';
        const bool isPart = lower == u'\'' || (UpperCase(lower) != lower);
        if (isPart) word += lower;
        if (isPart || word.empty()) continue;
        if (std::ranges::find(kEnglishWords, word) != kEnglishWords.end()) return true;
        word.clear();
    }
    return false;
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

void Añadir(Utterance& said, TextView sentences) {
    while (!sentences.empty()) {
        const std::size_t length = LengthOfSentence(sentences);
        const Text sentence = OneBlank(sentences.substr(0, length));
        Append(said, sentence, IsEnglish(sentence) ? Language::English : Language::Spanish);
        sentences.remove_prefix(length);
    }
}

void Añadir(Utterance& said, const Mensaje& message) {
    const TextView all = message.Texto;
    const Text& word = message.PalabraInglesa;
    const std::size_t at = word.empty() ? Text::npos : all.find(word);
    if (at == Text::npos) return Añadir(said, all);
    Append(said, Trim(all.substr(0, at)));
    Append(said, word, Language::English);
    Append(said, Trim(all.substr(at + word.size())));
}

TextView Cifra(int number) {
    constexpr std::array<TextView, 10> kNumbers = {u"una",  u"dos",   u"tres", u"cuatro", u"cinco",
                                                   u"seis", u"siete", u"ocho", u"nueve",  u"diez"};
    return kNumbers.at(static_cast<std::size_t>(number - 1));
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
    int empty = 0;
    const auto add = [&said](const Text& part) { said += (said.empty() ? u"" : u", ") + part; };
    for (int i = 1; i <= z.LargoPalabra; ++i) {
        const Text& letter = z.lblLetra(i).Caption;
        if (!letter.empty()) {
            add(letter);
            continue;
        }
        ++empty;
        if (i < z.LargoPalabra && z.lblLetra(i + 1).Caption.empty()) continue;
        add(empty == 1 ? Text(u"vacía") : Text(Cifra(empty)) + u" vacías");
        empty = 0;
    }
    return said;
}

Text TableroEntero(const Zarpi& z) {
    return Text(Cifra(z.LargoPalabra)) + u" letras: " + Tablero(z) + u".";
}

Text Letras(const Zarpi& z) {
    Text letters;
    for (int i = 1; i <= z.LargoPalabra; ++i)
        letters += z.lblLetra(i).Caption.empty() ? Text(u" ") : z.lblLetra(i).Caption;
    return letters;
}

Text LetraNueva(const Zarpi& z, const Text& before) {
    const Text now = Letras(z);
    std::vector<std::size_t> boxes;
    for (std::size_t i = 0; i < now.size() && i < before.size(); ++i) {
        if (now[i] != before[i]) boxes.push_back(i);
    }
    if (boxes.empty()) return {};
    Text said = Text(1, now[boxes.front()]) + (boxes.size() == 1 ? u", casilla " : u", casillas ");
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        said += (i == 0 ? u"" : i + 1 == boxes.size() ? u" y " : u", ") + Decimal(static_cast<int>(boxes[i]) + 1);
    }
    return said + u".";
}

Text Casilla(const Zarpi& z, int index) {
    if (index > z.LargoPalabra) return {};
    const Text& letter = z.lblLetra(index).Caption;
    return u"Letra " + Decimal(index) + u" de " + Decimal(z.LargoPalabra) + u", " +
           (letter.empty() ? u"vacía" : letter);
}

Text Fallos(const Zarpi& z) {
    if (z.Fallo == 0) return u"Sin fallos.";
    Text said = u"Fallos: ";
    for (int i = 1; i <= z.Fallo; ++i) said += (i == 1 ? u"" : u", ") + z.lblError(i).Caption;
    return said + u".";
}

Text Palabra(const Zarpi& z) {
    return u"Palabra " + Decimal(z.NúmPalabra) + u", nivel " + Decimal(z.NúmNivel) +
           (z.lblTapa2.Visible ? u", inglés" : u", castellano");
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
    return Palabra(z) + u", " + TableroEntero(z) + u" " + Fallos(z) + u" " + Tiempo(z) + u" " + Comodines(z);
}

}  // namespace juego::voz
