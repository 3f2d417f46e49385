// The hero's lines at the bounds of their numbers, as far as the courses of whole games hardly ever come there.

#include "commentary/Comentario.h"

#include <gtest/gtest.h>

#include "headless/Headless.h"
#include "storage/MemoryFiles.h"

namespace juego {
namespace {

struct Escena {
    platform::storage::MemoryFiles files;
    platform::headless::Headless headless{files};
    Zarpi z;
    platform::Services services = headless.Services();
    Comentario comentario{z, services.Random, services.Clock};

    Escena() { z.Nombre = u"José"; }
    /// What chance draws next: n of so many.
    void Draw(int n, int of) { headless.random.Queue((n - 0.5) / of); }
};

TEST(Comentario, GivesAHintOrARemarkOnAWord) {
    struct Case {
        TextView word;
        int p, level, zarpis;
        TextView line;
        int plenos = 0;
    };
    Escena scene;
    auto& z = scene.z;
    z.NúmPalabra = 12;
    for (const Case& c : {Case{u"ABCDDD", 23, 1, 0, u"NO TIENES COMODINES. MAL ASUNTO."},
                          {u"ABDDDC", 23, 1, 0, u"ESTA PALABRA TIENE TRES IGUALITAS."},
                          {u"ANANA", 16, 1, 100, u"BUENO, YA LLEVAS 100 ZARPIS."},
                          {u"CANADA", 15, 1, 0, u"¡HAY QUE CONSEGUIR PLENOS, JOSÉ!"},
                          {u"CANADA", 16, 1, 0, u"ESTA PALABRA TIENE TRES IGUALITAS."},
                          {u"ANANASA", 16, 1, 0, u"ESTA PALABRA TIENE CUATRO IGUALITAS."},
                          {u"ANITA", 9, 3, 0, u"VAMOS A VER... LA SEGUNDA ES UNA N."},
                          {u"ANITA", 10, 3, 0, u"VAMOS A VER... ¡LA PRIMERA Y LA ÚLTIMA SON IGUALES!"},
                          {u"ANTA", 10, 3, 0, u"VAMOS A VER... LA PENÚLTIMA ES UNA T."},
                          {u"ANITA", 10, 6, 0, u"VAMOS A VER... LA PENÚLTIMA ES UNA T."},
                          {u"CAAC", 8, 1, 0, u"¡VAMOS, QUE SEGURO QUE ÉSTA ES FACILITA!"},
                          {u"TRAVIESO", 12, 1, 0, u"TE RECUERDO QUE NO TIENES COMODINES."},
                          {u"TRAVIESO", 16, 1, 185, u"¡MUY BIEN, YA LLEVAS 185 ZARPIS!"},
                          {u"TRAVIESO", 16, 1, 186, u"¡MAGNÍFICO, YA LLEVAS 186 ZARPIS!"},
                          {u"TRAVIESO", 14, 1, 0, u"¡UN PLENO MÁS Y COMODÍN EXTRA, JOSÉ!", 8},
                          {u"TRAVIESO", 14, 1, 0, u"CON PACIENCIA Y TESÓN, LO CONSEGUIRÁS.", 9}}) {
        z.PalabraClave = c.word;
        z.LargoPalabra = static_cast<Integer>(c.word.size());
        z.NúmNivel = static_cast<Integer>(c.level);
        z.puntos = static_cast<Integer>(c.zarpis);
        z.plenos = static_cast<Integer>(c.plenos);
        z.AzarPrevio1 = z.AzarPrevio2 = z.AzarPrevio3 = 0;
        scene.Draw(c.p, 23);
        scene.comentario.ComentarioPalabra();
        EXPECT_EQ(ToUtf8(z.picZarpi.ToolTipText), ToUtf8(c.line));
    }
}

TEST(Comentario, DrawsNoneOfTheLastThreeRemarks) {
    Escena scene;
    scene.z.NúmPalabra = 1;
    const auto remark = [&scene](std::initializer_list<int> draws) {
        for (const int draw : draws) scene.Draw(draw, 23);
        scene.comentario.ComentarioPalabra();
        return scene.z.AzarComentario;
    };
    EXPECT_EQ(remark({5}), 5);
    EXPECT_EQ(remark({5, 6}), 6);
    EXPECT_EQ(remark({5, 6, 7}), 7);
    EXPECT_EQ(remark({7, 6, 5, 8}), 8);
    EXPECT_EQ(remark({6, 8, 7, 5}), 5);
}

TEST(Comentario, AnswersToTheEdgeAndTheFall) {
    Escena scene;
    auto& z = scene.z;
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
        scene.Draw(c.draw, 16);
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
        scene.Draw(c.draw, 15);
        scene.comentario.ComentarioCaída();
        EXPECT_EQ(z.Picture1.ToolTipText, c.line);
    }
}

}  // namespace
}  // namespace juego
