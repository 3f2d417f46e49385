// Every text of the game fits into its box without shrinking, at every factor, with a long name.

#include <QFontMetrics>
#include <gtest/gtest.h>

#include "Platform.h"
#include "commentary/FrasesPalabra.h"
#include "commentary/FrasesReaccion.h"
#include "desktop/values/Scale.h"
#include "desktop/values/Strings.h"
#include "desktop/views/TextLines.h"
#include "game/Modos.h"
#include "shell/Juego.h"
#include "storage/MemoryFiles.h"
#include "windows/Presentaciones.h"
#include "words/Tablas.h"

namespace platform::desktop {
namespace {

using juego::Frase;

/// The windows of the game, and what their labels are asked to show.
struct Texts : testing::Test {
    const Label& Find(std::string_view form, std::string_view label) {
        for (const Form* window : juego.Ventanas()) {
            if (window->Name == form) return static_cast<const Label&>(*window->Find(label));
        }
        throw std::out_of_range(std::string(form));
    }
    /// Looks at every text at factors in small steps, as screens make them.
    void TearDown() override {
        constexpr double kStep = 1.04;
        for (double factor = 0.85; factor <= 3.5; factor *= kStep) {
            for (const auto& [label, text] : shown) ExpectFit(Scale(factor), *label, ToQt(text));
        }
    }
    static void ExpectFit(const Scale& scale, const Label& label, const QString& text) {
        const int border = label.BorderStyle == 0 ? 0 : scale.LineWidth(1);
        const QSize box = scale.Rect(label).size() - QSize(2 * border, 2 * border);
        const QFont font = scale.Font(label.Font, label.FontSize, label.FontBold);
        EXPECT_EQ(FittedFont(font, text, box).pixelSize(), font.pixelSize())
            << label.Owner.Name << "." << label.FullName() << " at " << scale.Factor() << ": " << text.toStdString();
    }

    storage::MemoryFiles files;
    Platform platform{files};
    juego::Juego juego{platform.Services().Services()};
    std::vector<std::pair<const Label*, Text>> shown;
};

TEST_F(Texts, TheWindowsFit) {
    for (const Form* window : juego.Ventanas()) {
        for (const Control* control : window->Controls()) {
            if (control->kind != Kind::Label) continue;
            const auto& label = static_cast<const Label&>(*control);
            shown.emplace_back(&label, label.Caption);
        }
    }
    for (const juego::Modo& mode : juego::Modos) {
        const Text text(mode.Texto);
        for (const auto& [form, label] : {std::pair("Zarpi", "lblModo"), std::pair("frmCuadro", "Label2"),
                                          std::pair("frmÚltimas", "lblModo(1)"), std::pair("frmReanudar", "Label9")}) {
            shown.emplace_back(&Find(form, label), text);
        }
    }
    shown.emplace_back(&Find("frmPuntos", "Label2"), u"Zarpis de bonificación: 10");
    shown.emplace_back(&Find("frmFecha", "Label3"), u"¡Lo habéis conseguido!");
    shown.emplace_back(&Find("Zarpi", "lblNombre"), u"Mª Concepción");
    shown.emplace_back(&Find("frmÚltimas", "lblNombre(1)"), u"Mª Concepción");
    for (const juego::Presentación& level : juego::Presentaciones) {
        shown.emplace_back(&Find("frmNivel", "Label2"), level.Texto);
        shown.emplace_back(&Find("frmNivel", "Label4"), level.Saludo);
    }
}

TEST_F(Texts, TheHerosLinesFit) {
    juego::Zarpi z;
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
    const auto show = [&](const char* label, const Frase& line) {
        for (const bool many : {false, true}) {
            z.plural = many;
            shown.emplace_back(&Find("Zarpi", label), Rellenar(line, z));
        }
    };
    const auto all = [&](const char* label, const auto&... tables) {
        const auto table = [&](const auto& stretches) {
            for (const auto& stretch : stretches) show(label, stretch.Frase);
        };
        (table(tables), ...);
    };
    using namespace juego::frases;
    for (const Frase& line : Tabla) show("lblComentario", line);
    for (const Frase& line : {Reanudada, LetraEñe, LetraZeta, LetraUveDoble, UnaVocal, CuatroIguales, TresIguales,
                              LetraDoble, ExtremosIguales, InterioresIguales, PlenoConComodín, Paciencia}) {
        show("lblComentario", line);
    }
    all("lblComentario", Fijas, TodoPlenos, Comodines, Plenos, Zarpis, Acertadas, LetraInterior, UsoComodines);
    for (const Frase& line : TablaAngustia) show("lblComentAngus", line);
    all("lblComentAngus", AngustiaFinal, AngustiaComodines, AngustiaCaídas);
    for (const Frase& line : TablaCaída) show("lblComentCaída", line);
    all("lblComentCaída", CaídaFija, CaídaComodines, CaídaPalabra);
    show("lblComentCaída", CaídaConComodines);
}

TEST_F(Texts, TheWidestWordFitsTheMessagesThatTellIt) {
    const Label& message = Find("Zarpi", "Label5");
    const QFontMetrics metrics(Scale(1).Font(message.Font, message.FontSize, message.FontBold));
    const auto width = [&metrics](const Text& text) { return metrics.horizontalAdvance(ToQt(text)); };
    Text widest;
    for (int i = 1; i <= juego::NúmEntradas; ++i) {
        const Text word = juego::PalabraInglesa(i) + u". " + juego::TraducciónDeInglesa(i) + u".";
        if (width(word) > width(widest)) widest = word;
    }
    shown.emplace_back(&message, u"Palabra acertada: " + widest);
    shown.emplace_back(&message, u"Habéis fallado. La palabra clave es " + widest + u" Fin de juego.");
    shown.emplace_back(&message, u"La clave es " + widest + u" ¡Vaya, Zarpi se ha enfadado y ya no podéis jugar!");
}

}  // namespace
}  // namespace platform::desktop
