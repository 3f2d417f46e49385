// Fields by name, and the tables of the words.

#include "game/Campos.h"

#include <gtest/gtest.h>
#include <set>

#include "words/Tablas.h"

namespace juego {
namespace {

TEST(Campos, AreFoundByTheirNames) {
    Zarpi z;
    z.PalabrasUsadas[3] = u"SÁBANA";
    z.HoraPalabra = 86399;
    EXPECT_EQ(ValorDeCampo(z, "PalabrasUsadas(3)"), Valor(Text(u"SÁBANA")));
    EXPECT_EQ(ValorDeCampo(z, "HoraPalabra"), Valor(86399));
    EXPECT_EQ(ValorDeCampo(z, "fFinPartida"), Valor(true));
    for (const char* none : {"Nada", "PalabrasUsadas", "PalabrasUsadas(31)", "PalabrasUsadas(x)", "Fallo(1)", ""}) {
        EXPECT_EQ(ValorDeCampo(z, none), std::nullopt) << none;
    }
}

TEST(Tablas, HoldTheirWordsAtTheirPlaces) {
    EXPECT_EQ(PalabraCastellana(1), u"PANADERO");
    EXPECT_EQ(PalabraCastellana(2482), u"SÁBANA");
    EXPECT_EQ(PalabraCastellana(4000), u"FALSILLA");
    EXPECT_EQ(PalabraInglesa(1), u"AIRPORT");
    EXPECT_EQ(TraducciónDeInglesa(1), u"Aeropuerto");
    EXPECT_EQ(TraducciónDeInglesa(12), u"Diseño, dibujo, (to) diseñar, dibujar");
    for (const int none : {0, -1, 4001, 32767}) EXPECT_EQ(PalabraInglesa(none), u"") << none;
    std::set<Text> both;
    for (int i = 1; i <= NúmEntradas; ++i) {
        both.insert(PalabraCastellana(i));
        both.insert(PalabraInglesa(i));
    }
    EXPECT_EQ(both.size(), 8000U - 86U);
}

}  // namespace
}  // namespace juego
