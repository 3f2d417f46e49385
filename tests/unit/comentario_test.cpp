// The hero's lines: each hint where its rule gives it and not a step beside, each remark at the bounds of its numbers.

#include "commentary/Comentario.h"

#include <gtest/gtest.h>

#include "commentary/FrasesPalabra.h"
#include "headless/Headless.h"
#include "headless/MemoryFiles.h"

namespace juego {
namespace {

using platform::headless::Headless;

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
    /// What he says of a word when chance draws p, 1 to 23.
    Text Line(const Text& word, int p) {
        z.PalabraClave = word;
        z.LargoPalabra = static_cast<Integer>(word.size());
        z.AzarPrevio1 = z.AzarPrevio2 = z.AzarPrevio3 = 0;
        headless.random.Queue((p - 0.5) / 23);
        comentario.ComentarioPalabra();
        return z.picZarpi.ToolTipText;
    }
};

TEST(ComentarioPalabra, GivesEachHintWhereItsRuleSays) {
    using namespace frases;
    constexpr Frase None{};
    struct Case {
        TextView word;
        int p, level;
        Frase hint;
    };
    Escena scene;
    for (const Case& c : {Case{u"NIÑA", 7, 1, LetraEñe},
                          {u"NIÑA", 8, 1, None},
                          {u"CARIÑ", 7, 1, None},
                          {u"ZAPATO", 7, 1, LetraZeta},
                          {u"ZAPATO", 8, 1, None},
                          {u"FELIZ", 7, 1, None},
                          {u"KIWI", 7, 1, LetraUveDoble},
                          {u"KIWI", 8, 1, None},
                          {u"OBOEW", 7, 1, None},
                          {u"TREN", 7, 1, UnaVocal},
                          {u"TREN", 8, 1, None},
                          {u"ZUM", 1, 1, LetraZeta},
                          {u"ÁNGEL", 7, 1, None},
                          {u"PÓ", 7, 1, UnaVocal},
                          {u"ANANASA", 16, 1, CuatroIguales},
                          {u"ANANASA", 15, 1, None},
                          {u"ANANASA", 9, 1, None},
                          {u"CANADA", 16, 1, TresIguales},
                          {u"CANADA", 15, 1, None},
                          {u"ANANA", 16, 1, None},
                          {u"ABCDDD", 23, 1, None},
                          {u"ABDDDC", 23, 1, TresIguales},
                          {u"PERRO", 7, 1, LetraDoble},
                          {u"PERRO", 8, 1, None},
                          {u"LLAMO", 7, 1, LetraDoble},
                          {u"ANITA", 10, 3, ExtremosIguales},
                          {u"ANITA", 9, 3, None},
                          {u"ANITA", 10, 6, None},
                          {u"ANITA", 10, 2, None},
                          {u"ANTA", 10, 3, None},
                          {u"CASAS", 8, 1, InterioresIguales},
                          {u"CASAS", 9, 1, None},
                          {u"CASAR", 8, 1, InterioresIguales},
                          {u"CAAC", 8, 1, None}}) {
        scene.z.NúmNivel = static_cast<Integer>(c.level);
        const Text line = scene.Line(Text(c.word), c.p);
        const Text& drawn = scene.z.Comentarios.at(static_cast<std::size_t>(c.p));
        EXPECT_EQ(line, c.hint.Singular.empty() ? drawn : c.hint.Singular) << ToUtf8(c.word) << ' ' << c.p;
    }
}

TEST(ComentarioPalabra, ChangesAtTheBoundsOfItsNumbers) {
    struct Case {
        int p, word, plenos, zarpis, jokers;
        TextView line;
    };
    Escena scene;
    for (const Case& c :
         {Case{1, 12, 4, 0, 0, u"HOY, DOMINGO, LO VAS A CONSEGUIR, JOSÉ."},
          {2, 12, 4, 0, 0, u"¡A POR LA PALABRA 12!"},
          {9, 12, 4, 0, 0, u"VAMOS A VER... LA SEGUNDA ES UNA R."},
          {10, 12, 4, 0, 0, u"VAMOS A VER... LA PENÚLTIMA ES UNA S."},
          {12, 12, 4, 0, 0, u"TE RECUERDO QUE NO TIENES COMODINES."},
          {12, 12, 4, 0, 1, u"TE RECUERDO QUE SÓLO TIENES UN COMODÍN."},
          {12, 12, 4, 0, 4, u"TE RECUERDO QUE TIENES 4 COMODINES."},
          {12, 12, 4, 0, 5, u"¡QUÉ PASADA, TIENES 5 COMODINES! ÚSALOS PARA CONSEGUIR PLENOS."},
          {14, 12, 1, 0, 0, u"CON PACIENCIA Y TESÓN, LO CONSEGUIRÁS."},
          {14, 12, 2, 0, 0, u"¡UN PLENO MÁS Y COMODÍN EXTRA, JOSÉ!"},
          {14, 12, 5, 0, 0, u"¡UN PLENO MÁS Y COMODÍN EXTRA, JOSÉ!"},
          {14, 12, 8, 0, 0, u"¡UN PLENO MÁS Y COMODÍN EXTRA, JOSÉ!"},
          {15, 12, 0, 0, 0, u"¡HAY QUE CONSEGUIR PLENOS, JOSÉ!"},
          {15, 12, 3, 0, 0, u"¡PROCURA CONSEGUIR MÁS PLENOS!"},
          {15, 12, 5, 0, 0, u"¡A POR ALGÚN PLENO MÁS, JOSÉ!"},
          {15, 12, 7, 0, 0, u"¡ESTUPENDO, YA LLEVAS 7 PLENOS!"},
          {15, 12, 8, 0, 0, u"¡ERES GENIAL, JOSÉ, YA LLEVAS 8 PLENOS!"},
          {16, 12, 4, 100, 0, u"BUENO, YA LLEVAS 100 ZARPIS."},
          {16, 12, 4, 185, 0, u"¡MUY BIEN, YA LLEVAS 185 ZARPIS!"},
          {16, 12, 4, 186, 0, u"¡MAGNÍFICO, YA LLEVAS 186 ZARPIS!"},
          {17, 2, 0, 0, 0, u"BUENO, NO ESTÁ MAL PARA EMPEZAR, JOSÉ."},
          {17, 10, 4, 0, 0, u"BUENO, YA HAS ACERTADO 9 PALABRAS."},
          {17, 19, 4, 0, 0, u"¡MUY BIEN, YA HAS ACERTADO 18 PALABRAS!"},
          {17, 20, 4, 0, 0, u"¡EXCELENTE, YA HAS ACERTADO 19 PALABRAS!"},
          {18, 12, 4, 0, 0, u"VAMOS A VER... LA CUARTA ES UNA V."},
          {23, 12, 4, 0, 0, u"NO TIENES COMODINES. MAL ASUNTO."},
          {23, 12, 4, 0, 1, u"UTILIZA BIEN EL COMODÍN QUE TE QUEDA."},
          {23, 12, 4, 0, 2, u"A VECES ES BUENO USAR COMODINES PARA CONSEGUIR PLENOS."},
          {20, 1, 0, 0, 3, u"¡HOLA! EMPECEMOS LA PARTIDA."},
          {20, 2, 1, 0, 3, u"¡TOMA YA, UN PLENO PARA EMPEZAR!"},
          {20, 3, 2, 0, 3, u"DOS PALABRAS, DOS PLENOS; ASÍ DA GUSTO."},
          {20, 4, 3, 0, 3, u"¡MUY BIEN, JOSÉ, TRES PALABRAS, TRES PLENOS Y COMODÍN EXTRA!"},
          {20, 5, 4, 0, 3, u"¡ESTO ES INCREÍBLE, VAS A PLENO POR PALABRA!"},
          {20, 14, 13, 0, 3, u" 13 PALABRAS, 13 PLENOS... NO HAY QUIEN TE PARE, JOSÉ. ¡EL MUNDO ES TUYO!"},
          {20, 15, 14, 0, 3, u"SI ACIERTAS ESTA PALABRA, ¡COMODÍN EXTRA!"},
          {20, 25, 4, 0, 3, u"BUENO, A VER ESTA PALABRA."},
          {20, 26, 4, 0, 3, u"¡ÁNIMO, QUE SÓLO TE QUEDAN 5 PALABRAS!"},
          {20, 28, 4, 0, 3, u"¡ESTÁS A PUNTO DE LLEGAR AL FINAL!"},
          {20, 30, 4, 0, 3, u"¡RELÁJATE, JOSÉ, QUE LA PARTIDA ES TUYA!"}}) {
        scene.z.NúmPalabra = static_cast<Integer>(c.word);
        scene.z.plenos = static_cast<Integer>(c.plenos);
        scene.z.puntos = static_cast<Integer>(c.zarpis);
        scene.z.comodines = static_cast<Integer>(c.jokers);
        EXPECT_EQ(ToUtf8(scene.Line(u"TRAVIESO", c.p)), ToUtf8(c.line));
    }
    EXPECT_EQ(scene.Line(u"PLANO", 18), u"¡RELÁJATE, JOSÉ, QUE LA PARTIDA ES TUYA!");
    scene.z.NúmPalabra = 12;
    EXPECT_EQ(scene.Line(u"PLANO", 18), u"QUIEN LA SIGUE LA CONSIGUE.");
    EXPECT_EQ(scene.Line(u"PLANETA", 18), u"VAMOS A VER... LA TERCERA ES UNA A.");
    scene.headless.clock.SetDate({13, 3, 2004});
    EXPECT_EQ(scene.Line(u"PLANETA", 1), u"HOY, SÁBADO, LO VAS A CONSEGUIR, JOSÉ.");
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
                          {26, 2, 0, 1, true, u"¡QUE SÓLO OS QUEDAN 5 PALABRAS!"},
                          {5, 2, 0, 3, false, u"¡TE QUEDAN 2 COMODINES!"},
                          {5, 1, 0, 9, true, u"¡ESPABILAD!"},
                          {5, 1, 1, 6, true, u"¡OH, NO, OTRA VEZ NO!"},
                          {5, 1, 2, 9, true, u"¡OH, NO, QUE YA ME LA HE PEGADO DOS VECES!"},
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
                          {5, 1, 0, 10, true, u"¡QUE OS QUEDABA UN COMODÍN, JOLÍN!"},
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
