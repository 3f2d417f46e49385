// Every long text of the game fits into its box without shrinking, at every factor, with a long name.

#include <QFontMetrics>
#include <gtest/gtest.h>

#include "commentary/FrasesPalabra.h"
#include "commentary/FrasesReaccion.h"
#include "desktop/Scale.h"
#include "desktop/Strings.h"
#include "desktop/TextLines.h"
#include "windows/Presentaciones.h"
#include "windows/frmNivel.h"
#include "words/Tablas.h"

namespace platform::desktop {
namespace {

using juego::Frase;
using juego::Tramo;

void ExpectFit(const Label& label, const Text& text) {
    for (const double factor : {1.0, 1.5, 2.0}) {
        const Scale scale(factor);
        const int border = label.BorderStyle == 0 ? 0 : scale.LineWidth(1);
        const QSize box = scale.Rect(label).size() - QSize(2 * border, 2 * border);
        const QFont font = scale.Font(label.Font, label.FontSize, label.FontBold);
        EXPECT_EQ(FittedFont(font, ToQt(text), box).pixelSize(), font.pixelSize())
            << label.FullName() << " at " << factor << ": " << ToUtf8(text);
    }
}

struct Hero {
    juego::Zarpi z;

    Hero() {
        z.Nombre = u"Mª Concepción";
        z.PalabraClave = u"EQUILIBRAR";
        z.NúmPalabra = 26;
        z.NúmNivel = 3;
        z.comodines = 10;
        z.puntos = 435;
        z.plenos = 25;
        z.LargoPalabra = 10;
        z.DíaSemana = 4;
        z.Días[4] = u"MIÉRCOLES";
    }
    void ExpectFits(const Label& label, const Frase& line) {
        for (const bool many : {false, true}) {
            z.plural = many;
            ExpectFit(label, Rellenar(line, z));
        }
    }
    template <class Stretches>
    void ExpectAllFit(const Label& label, const Stretches& stretches) {
        for (const auto& stretch : stretches) ExpectFits(label, stretch.Frase);
    }
};

TEST(Texts, TheHerosLinesFitTheirBoxes) {
    Hero hero;
    const juego::Zarpi& z = hero.z;
    using namespace juego::frases;
    for (const Frase& line : Tabla) hero.ExpectFits(z.lblComentario, line);
    for (const Frase& line : {Reanudada, LetraEñe, LetraZeta, LetraUveDoble, UnaVocal, CuatroIguales, TresIguales,
                              LetraDoble, ExtremosIguales, InterioresIguales, PlenoConComodín, Paciencia}) {
        hero.ExpectFits(z.lblComentario, line);
    }
    hero.ExpectAllFit(z.lblComentario, Fijas);
    hero.ExpectAllFit(z.lblComentario, TodoPlenos);
    hero.ExpectAllFit(z.lblComentario, Comodines);
    hero.ExpectAllFit(z.lblComentario, Plenos);
    hero.ExpectAllFit(z.lblComentario, Acertadas);
    hero.ExpectAllFit(z.lblComentario, UsoComodines);
    for (const Frase& line : TablaAngustia) hero.ExpectFits(z.lblComentAngus, line);
    hero.ExpectAllFit(z.lblComentAngus, AngustiaFinal);
    hero.ExpectAllFit(z.lblComentAngus, AngustiaComodines);
    hero.ExpectAllFit(z.lblComentAngus, AngustiaCaídas);
    for (const Frase& line : TablaCaída) hero.ExpectFits(z.lblComentCaída, line);
    hero.ExpectAllFit(z.lblComentCaída, CaídaFija);
    hero.ExpectAllFit(z.lblComentCaída, CaídaComodines);
    hero.ExpectFits(z.lblComentCaída, CaídaConComodines);
}

TEST(Texts, EveryWordFitsTheMessagesThatTellIt) {
    const juego::Zarpi z;
    Text longest;
    for (int i = 1; i <= juego::NúmEntradas; ++i) {
        const Text word = juego::PalabraInglesa(i) + u". " + juego::TraducciónDeInglesa(i) + u".";
        if (word.size() > longest.size()) longest = word;
    }
    ExpectFit(z.Label5, u"Palabra acertada: " + longest);
    ExpectFit(z.Label5, u"Habéis fallado. La palabra clave es " + longest + u" Fin de juego.");
    ExpectFit(z.Label5, u"La clave es " + longest + u" ¡Vaya, Zarpi se ha enfadado y ya no podéis jugar!");
    ExpectFit(z.lblMensajeError, z.lblMensajeError.Caption);
    ExpectFit(z.lblMenComienzo, z.lblMenComienzo.Caption);
}

/// A briefing needs its forms only to be closed.
class NoForms : public Forms {
public:
    void Load(Form& /*form*/) override {}
    void Show(Form& /*form*/) override {}
    void ShowModal(Form& /*form*/) override {}
    void Hide(Form& /*form*/) override {}
    void Unload(Form& /*form*/) override {}
    void End() override {}
    [[nodiscard]] Form* Front() const override { return nullptr; }
};

TEST(Texts, TheBriefingsFit) {
    juego::Zarpi z;
    NoForms forms;
    const juego::frmNivel briefing(z, forms);
    for (const juego::Presentación& level : juego::Presentaciones) {
        ExpectFit(briefing.Label2, Text(level.Texto));
        ExpectFit(briefing.Label4, Text(level.Saludo));
    }
}

}  // namespace
}  // namespace platform::desktop
