#include "stage/Escena.h"

#include <array>

namespace juego {

namespace {

constexpr Integer kPlateStart = 540;
constexpr Integer kRodStart = 795;
constexpr Integer kHeroStart = 1020;
constexpr int kFallTop = 1230;
constexpr int kStandingPose = 1;
constexpr int kTimeOutPose = 14;
constexpr int kTeetering = 5;
constexpr int kWordsOfScene = 5;

/// The scenes in the order in which a game meets them.
constexpr std::array<int, 6> kScenes = {2, 3, 4, 1, 5, 6};

}  // namespace

Text Pose(int number) {
    return u"Zarpi" + Decimal(number) + u".bmp";
}

void ReponerEscena(Zarpi& z) {
    for (Label& box : z.lblError) {
        box.Visible = false;
        box.Caption.clear();
    }
    z.lblComentAngus.Visible = false;
    z.IzqEmpujador1 = kPlateStart;
    z.AnchoEmpujador2 = kRodStart;
    z.IzqZarpi = kHeroStart;
    ColocarEmpujador(z);
    z.picZarpi.Picture = Pose(kStandingPose);
    z.picZarpi.Top = TopeZarpi;
    z.picZarpi.Visible = true;
}

void ColocarEmpujador(Zarpi& z) {
    z.shpEmpujador1.Left = z.IzqEmpujador1;
    z.shpEmpujador2.Width = z.AnchoEmpujador2;
    z.picZarpi.Left = z.IzqZarpi;
}

void CaraTiempo(Zarpi& z) {
    if (z.Fallo == kTeetering) z.picZarpi.Top = TopeZarpi;
    z.picZarpi.Picture = Pose(kTimeOutPose);
}

void SeleccionarFondo(Zarpi& z) {
    const auto band = static_cast<std::size_t>((z.NúmPalabra - 1) / kWordsOfScene);
    if (band >= kScenes.size()) return;
    if (band > 0) z.picFondo(kScenes.at(band - 1)).Visible = false;
    z.picFondo(kScenes.at(band)).Visible = true;
}

void OcultarFondos(Zarpi& z) {
    for (Image& scene : z.picFondo) scene.Visible = false;
}

void OcultarTeclas(Zarpi& z) {
    for (Shape& plate : z.shpTecla) plate.Visible = false;
    for (Label& key : z.lblTecla) key.Visible = false;
    z.lblTeclado.Visible = false;
    z.linTeclado.Visible = false;
}

void OcultarTeclado(Zarpi& z) {
    OcultarTeclas(z);
    z.cmdOcultar.Visible = false;
    z.cmdMostrar.Visible = false;
    z.shpMosOcul.Visible = false;
}

void RetirarCaída(Zarpi& z) {
    z.Picture5.Visible = false;
    z.Picture1.Visible = false;
    z.Picture5.Top = kFallTop;
}

void CallarCaída(Zarpi& z) {
    z.lblComentCaída.Caption.clear();
    z.lblComentCaída.Visible = false;
}

}  // namespace juego
