#include "stage/Empujador.h"

#include <array>

#include "game/Mensaje.h"
#include "game/Reglas.h"
#include "sound/Sonido.h"
#include "stage/Escena.h"

namespace juego {

namespace {

constexpr int kStep = 1140;
constexpr int kEdgeStep = 250;  ///< the sixth miss stops short of the edge by this; the fall takes it back
constexpr int kTeeteringTop = 60;

/// The pose that each miss brings; 0 leaves the one before.
constexpr std::array<int, 8> kPoseOfMiss = {0, 2, 3, 2, 3, 5, 0, 0};

}  // namespace

void Empujador::Fallar() {
    ++z.Fallo;
    z.Label5.Caption = u"Mal.";
    if (z.Fallo == reglas::FallosCaída) {
        for (Label* label : {&z.lblMensajeTiem, &z.lblTiempo, &z.Label8, &z.lblNombre}) label->Visible = false;
    }
    z.lblError(z.Fallo).Visible = true;
    z.lblError(z.Fallo).Caption = z.Letra;
    Avanzar(kStep);
    if (const int pose = kPoseOfMiss.at(static_cast<std::size_t>(z.Fallo)); pose != 0) z.picZarpi.Picture = Pose(pose);
    if (z.Fallo == reglas::FallosBorde - 1) z.picZarpi.Top = kTeeteringTop;
    if (z.Fallo == reglas::FallosBorde) {
        Avanzar(-kEdgeStep);
        comentario.ComentarioAngustia();
        z.lblComentAngus.Visible = true;
        z.lblComentAngus.Caption = z.picZarpi.ToolTipText;
        z.AngustiaZarpi1.Start();
    }
    if (z.Fallo == reglas::FallosCaída) z.picZarpi.ToolTipText.clear();
}

void Empujador::Avanzar(int step) {
    for (Integer* position : {&z.IzqZarpi, &z.IzqEmpujador1, &z.AnchoEmpujador2}) {
        *position = static_cast<Integer>(*position + step);
    }
    ColocarEmpujador(z);
}

void Empujador::Caer() {
    Avanzar(kEdgeStep);
    Sonar(media, z, z.sonCaída, sonidos::Caída);
    for (Label& box : z.lblComodín) {
        box.ToolTipText.clear();
        box.Visible = false;
    }
    z.Shape1.Visible = false;
    OcultarTeclado(z);
    z.lblComentAngus.Visible = false;
    z.CaídaZarpi1.Start();
    z.picZarpi.Picture = Pose(6);
    z.picZarpi.Top = TopeZarpi;
}

void Empujador::AnimarComodín() {
    if (z.Fallo != reglas::FallosBorde || z.comodines == 0) return;
    Decir(z, z.plural ? u"¡Usad un comodín!" : u"¡Usa un comodín!");
    Sonar(media, z, z.sonComodín, sonidos::Comodín);
}

}  // namespace juego
