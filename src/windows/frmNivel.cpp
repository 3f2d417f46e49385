#include "windows/frmNivel.h"

#include <algorithm>

#include "game/Modos.h"
#include "windows/Presentaciones.h"
#include "windows/Verticales.h"

namespace juego {

namespace {

constexpr TextView kName = u"ZARPI";
constexpr int kNameStep = 720;
constexpr TextView kPose = u"Zarpi1.bmp";

}  // namespace

frmNivel::frmNivel(Zarpi& zarpi, Forms& forms)
    : Form("frmNivel", {.Width = 8475, .Height = 4590, .BackColor = 0xFFC080, .Background = "nivel", .Icon = "icon"}),
      z(zarpi) {
    Narrow = StackedOrder(*this, verticales::Nivel);
    cmdAceptar.Click = [this, &forms] { forms.Unload(*this); };
    OnLoad = [this] { Form_Load(); };
}

std::pair<Place, LabelLook> frmNivel::LetraNombre(int i) {
    const bool big = i == 0 || i == 4;
    return {{4620 + kNameStep * i, big ? 3810 : 3960, 495, big ? 525 : 465},
            {.Caption = Text(1, kName.at(static_cast<std::size_t>(i))),
             .ForeColor = Red,
             .Font = FontName::CourierNew,
             .FontSize = big ? 30 : 21.75,
             .FontBold = true}};
}

std::pair<Place, ShapeLook> frmNivel::CasillaNombre(int i) {
    return {{4560 + kNameStep * i, 3780, 585, 705}, {.FillColor = Green}};
}

void frmNivel::Form_Load() {
    Caption = u"Nivel " + Decimal(z.NúmNivel);
    Label1.Caption = Caption;
    Picture1.Picture = kPose;
    const auto row = std::ranges::find_if(
        Presentaciones, [this](const Presentación& p) { return p.Modo == z.Modo && p.Nivel == z.NúmNivel; });
    if (row == Presentaciones.end()) return;
    Label4.Caption = row->Saludo;
    Label2.Caption = row->Texto;
    const auto given = static_cast<LetrasDadas>((z.NúmNivel - 1) % 3);
    if (given == LetrasDadas::Ninguna) Reducir(Label3(0));
    if (given != LetrasDadas::PrimeraYÚltima) Reducir(Label3(4));
}

void frmNivel::Reducir(Label& letter) {
    letter.Top = 3930;
    letter.Height = 465;
    letter.FontSize = 22;
}

}  // namespace juego
