// The hints against a second statement of their rules, over every word and every value that chance can take.

#include "commentary/Comentario.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <set>

#include "commentary/FrasesPalabra.h"
#include "headless/Headless.h"
#include "headless/MemoryFiles.h"
#include "words/Tablas.h"

namespace juego {
namespace {

using platform::headless::Headless;

/// ASCII copy of a word, Ñ as "~", for the expressions below.
std::string Plain(const Text& word) {
    std::string plain;
    for (const char16_t c : word) plain += c == u'Ñ' ? '~' : static_cast<char>(c);
    return plain;
}

Text WithoutAccents(Text word) {
    static const std::map<char16_t, char16_t> kPlain = {
        {u'Á', u'A'}, {u'É', u'E'}, {u'Í', u'I'}, {u'Ó', u'O'}, {u'Ú', u'U'}};
    for (char16_t& c : word) {
        if (const auto it = kPlain.find(c); it != kPlain.end()) c = it->second;
    }
    return word;
}

/// Some letter stands at least n times. With six letters or more that is what the hint on equal letters asks.
bool Repeats(const std::string& w, int n) {
    return w.size() >= 6 && std::ranges::any_of(w, [&](char c) { return std::ranges::count(w, c) >= n; });
}

/// The hint for a word at p, as the rules say it in words.
TextView ExpectedHint(const std::string& w, int p, int level) {
    static const std::regex kOneVowel("[^AEIOU]*[AEIOU][^AEIOU]*");
    static const std::regex kDouble(R"(.*(.)\1.*)");
    const std::string head = w.substr(0, w.size() - 1);
    if (p <= 7 && head.find('~') != std::string::npos) return frases::LetraEñe.Singular;
    if (p <= 7 && head.find('Z') != std::string::npos) return frases::LetraZeta.Singular;
    if (p <= 7 && head.find('W') != std::string::npos) return frases::LetraUveDoble.Singular;
    if (p <= 7 && std::regex_match(w, kOneVowel)) return frases::UnaVocal.Singular;
    if (p >= 16 && Repeats(w, 4)) return frases::CuatroIguales.Singular;
    if (p >= 16 && Repeats(w, 3)) return frases::TresIguales.Singular;
    if (p <= 7 && std::regex_match(w, kDouble)) return frases::LetraDoble.Singular;
    if (w.size() == 4) return {};
    if (p >= 10 && level == 3 && w.front() == w.back()) return frases::ExtremosIguales.Singular;
    if (p <= 8 && w[1] == w[w.size() - 2]) return frases::InterioresIguales.Singular;
    return {};
}

struct Escena {
    platform::headless::MemoryFiles files;
    Headless headless{files};
    Zarpi z;
    platform::Services services = headless.Services();
    Comentario comentario{z, services.Random, services.Clock};

    Escena() {
        z.Nombre = u"José";
        z.NúmPalabra = 12;
        z.plenos = 4;
        z.Días = {u"", u"DOMINGO", u"LUNES", u"MARTES", u"MIÉRCOLES", u"JUEVES", u"VIERNES", u"SÁBADO"};
    }
    Text Line(const Text& word, int p) {
        z.PalabraClave = word;
        z.LargoPalabra = static_cast<Integer>(word.size());
        z.AzarPrevio1 = z.AzarPrevio2 = z.AzarPrevio3 = 0;
        headless.random.Queue((p - 0.5) / 23);
        comentario.ComentarioPalabra();
        headless.log.Clear();
        return z.picZarpi.ToolTipText;
    }
};

TEST(ComentarioPalabra, GivesEachHintWhereItsRuleSays) {
    Escena scene;
    std::map<TextView, int> seen;
    for (const int level : {3, 6}) {
        scene.z.NúmNivel = static_cast<Integer>(level);
        for (int i = 1; i <= 2 * NúmEntradas; ++i) {
            const Text word = WithoutAccents(i <= NúmEntradas ? PalabraCastellana(i) : PalabraInglesa(i - NúmEntradas));
            const std::string plain = Plain(word);
            for (int p = 1; p <= 23; ++p) {
                const Text line = scene.Line(word, p);
                const TextView hint = ExpectedHint(plain, p, level);
                ++seen[hint];
                if (hint.empty()) {
                    ASSERT_EQ(line, scene.z.Comentarios[static_cast<std::size_t>(p)]) << plain << ' ' << p;
                } else {
                    ASSERT_EQ(line, hint) << plain << ' ' << p;
                }
            }
        }
    }
    EXPECT_EQ(seen.size(), 10U) << "every hint comes up somewhere";
}

TEST(ComentarioPalabra, FillsEveryEntryInBothWordings) {
    Escena scene;
    scene.z.comodines = 5;
    scene.z.puntos = 186;
    scene.z.NúmNivel = 3;
    std::set<Text> lines;
    for (int p = 1; p <= 23; ++p) {
        scene.z.plural = false;
        const Text one = scene.Line(u"TRAVIESO", p);
        scene.z.plural = true;
        const Text many = scene.Line(u"TRAVIESO", p);
        for (const Text& line : {one, many}) {
            EXPECT_FALSE(line.empty()) << p;
            EXPECT_EQ(line.find_first_of(u"{}"), Text::npos) << p;
        }
        lines.insert(one);
    }
    EXPECT_EQ(lines.size(), 23U);
    scene.z.plural = false;
    struct Case {
        int p;
        TextView line;
    };
    for (const auto& [p, line] : {Case{1, u"HOY, DOMINGO, LO VAS A CONSEGUIR, JOSÉ."},
                                  {2, u"¡A POR LA PALABRA 12!"},
                                  {6, u"¡HALA, UNA DE 8 LETRAS, JOSÉ!"},
                                  {7, u"¡TIENES QUE SUPERAR EL NIVEL 3!"},
                                  {9, u"VAMOS A VER... LA SEGUNDA ES UNA R."},
                                  {10, u"VAMOS A VER... LA PENÚLTIMA ES UNA S."},
                                  {12, u"¡QUÉ PASADA, TIENES 5 COMODINES! ÚSALOS PARA CONSEGUIR PLENOS."},
                                  {15, u"¡A POR ALGÚN PLENO MÁS, JOSÉ!"},
                                  {16, u"¡MAGNÍFICO, YA LLEVAS 186 ZARPIS!"},
                                  {17, u"¡MUY BIEN, YA HAS ACERTADO 11 PALABRAS!"},
                                  {18, u"VAMOS A VER... LA CUARTA ES UNA V."}}) {
        EXPECT_EQ(scene.Line(u"TRAVIESO", p), line);
    }
}

TEST(ComentarioPalabra, RemembersTheLastThree) {
    Escena scene;
    for (const int p : {5, 5, 6, 5, 7, 6, 5, 8, 5}) scene.headless.random.Queue((p - 0.5) / 23);
    std::vector<int> drawn;
    for (int i = 0; i < 5; ++i) {
        scene.z.PalabraClave = u"PAN";
        scene.comentario.ComentarioPalabra();
        drawn.push_back(scene.z.AzarComentario);
    }
    EXPECT_EQ(drawn, (std::vector{5, 6, 7, 8, 5}));
}

TEST(Comentario, AnswersToTheEdgeAndTheFall) {
    Escena scene;
    auto& z = scene.z;
    const auto queue = [&scene](int n, int of) { scene.headless.random.Queue((n - 0.5) / of); };
    struct Case {
        int word, jokers, falls, draw;
        bool many;
        TextView line;
    };
    for (const Case& c : {Case{30, 2, 0, 1, false, u"¡QUE SÓLO TE QUEDA UNA PALABRAAAAAA...!"},
                          {29, 2, 0, 1, true, u"¡QUE SÓLO OS QUEDAN 2 PALABRAS!"},
                          {25, 2, 0, 1, false, u"¡A MÍ NO ME MIRES!"},
                          {5, 0, 0, 3, true, u"¡OH, NO TENÉIS COMODINES!"},
                          {5, 1, 0, 8, false, u"¡TE QUEDA UN COMODÍN!"},
                          {5, 7, 0, 8, true, u"¡OS QUEDAN 7 COMODINES!"},
                          {5, 1, 0, 9, true, u"¡ESPABILAD!"},
                          {5, 1, 3, 6, false, u"COMO ME CAIGA OTRA VEZ, ME VOY, JOSÉ."},
                          {5, 1, 3, 16, true, u"VOSOTROS MISMOS."}}) {
        z.NúmPalabra = static_cast<Integer>(c.word);
        z.comodines = static_cast<Integer>(c.jokers);
        z.Caídas = static_cast<Integer>(c.falls);
        z.plural = c.many;
        queue(c.draw, 16);
        scene.comentario.ComentarioAngustia();
        EXPECT_EQ(z.picZarpi.ToolTipText, c.line);
    }
    for (const Case& c : {Case{1, 9, 0, 1, false, u"ASÍ QUE EXPERIMENTANDO, ¿EH?"},
                          {4, 9, 0, 1, false, u"CON QUE DE CACHONDEO, ¿EH?"},
                          {28, 9, 0, 1, true, u"ES UNA PENA, CON SÓLO TRES PALABRAS..."},
                          {29, 9, 0, 1, true, u"¡DOS PALABRAS, DOS PALABRAS, DOS PALABRAS...!"},
                          {30, 0, 0, 1, true, u"¡CON LA MIEL EN LOS LABIOS! BUENO, OTRA VEZ SERÁ."},
                          {27, 3, 0, 1, true, u"PERO, ¡CON 3 COMODINES QUE OS QUEDABAN...! YA OS VALE."},
                          {27, 2, 0, 5, false, u"¡VAYA, CON 2 COMODINES QUE TE QUEDABAN!"},
                          {20, 0, 0, 7, false, u"BUENO, HAS LLEGADO A LA PALABRA 20."},
                          {21, 0, 0, 13, true, u"VAYA, PARA 10 PALABRAS QUE OS QUEDABAN..."},
                          {21, 0, 0, 10, true, u"¡CLARO, AL QUEDAROS SIN COMODINES...!"}}) {
        z.NúmPalabra = static_cast<Integer>(c.word);
        z.comodines = static_cast<Integer>(c.jokers);
        z.plural = c.many;
        queue(c.draw, 15);
        scene.comentario.ComentarioCaída();
        EXPECT_EQ(z.Picture1.ToolTipText, c.line);
    }
}

}  // namespace
}  // namespace juego
