#include "stage/Secuencias.h"

#include <array>

#include "game/Mensaje.h"
#include "game/Modos.h"
#include "game/Reglas.h"
#include "stage/Escena.h"

namespace juego {

namespace {

constexpr int kJumps = 4;
constexpr int kAnguishRounds = 4;
constexpr int kAnguishTop = -90;

/// A frame that only changes the pose on the ledge: the timer that shows it, the pose, the timer that follows.
struct FotogramaZarpi {
    Timer VentanaZarpi::*Reloj;
    int Pose;
    Timer VentanaZarpi::*Siguiente;
};
constexpr std::array<FotogramaZarpi, 2> kLedgeFrames = {{
    {&VentanaZarpi::SaltoZarpi2, 10, &VentanaZarpi::SaltoZarpi3},
    {&VentanaZarpi::AngustiaZarpi2, 12, &VentanaZarpi::AngustiaZarpi1},
}};

/// The falling figure on its way down: the timer, where the figure hangs, the timer that follows.
struct FotogramaCaída {
    Timer VentanaZarpi::*Reloj;
    int Top;
    Timer VentanaZarpi::*Siguiente;
};
constexpr std::array<FotogramaCaída, 2> kFallFrames = {{
    {&VentanaZarpi::CaídaZarpi2, 2460, &VentanaZarpi::CaídaZarpi3},
    {&VentanaZarpi::CaídaZarpi3, 3690, &VentanaZarpi::CaídaZarpi4},
}};

/// The anger at the foot of the cliff.
struct FotogramaEnfado {
    Timer VentanaZarpi::*Reloj;
    int Left;
    int Top;
    int Pose;
    Timer VentanaZarpi::*Siguiente;
};
constexpr std::array<FotogramaEnfado, 4> kAngerFrames = {{
    {&VentanaZarpi::EnfadoZarpi1, 9300, 6610, 15, &VentanaZarpi::EnfadoZarpi2},
    {&VentanaZarpi::EnfadoZarpi2, 9760, 5410, 16, &VentanaZarpi::EnfadoZarpi3},
    {&VentanaZarpi::EnfadoZarpi3, 9460, 5410, 14, &VentanaZarpi::EnfadoZarpi4},
    {&VentanaZarpi::EnfadoZarpi4, 10600, 5410, 17, &VentanaZarpi::EnfadoZarpi5},
}};

void PonerAlPie(Zarpi& z, int left, int top, int pose) {
    z.Picture1.Left = left;
    z.Picture1.Top = top;
    z.Picture1.Picture = Pose(pose);
    z.Picture1.Visible = true;
}

}  // namespace

Secuencias::Secuencias(Zarpi& zarpi, Comentario& comentario) : z(zarpi), comentario(comentario) {
    for (const FotogramaZarpi& frame : kLedgeFrames) {
        (z.*frame.Reloj).Click = [this, &frame] {
            z.picZarpi.Picture = Pose(frame.Pose);
            (z.*frame.Reloj).Stop();
            (z.*frame.Siguiente).Start();
        };
    }
    for (const FotogramaCaída& frame : kFallFrames) {
        (z.*frame.Reloj).Click = [this, &frame] {
            z.Picture5.Top = frame.Top;
            z.Picture5.Visible = true;
            (z.*frame.Reloj).Stop();
            (z.*frame.Siguiente).Start();
        };
    }
    for (const FotogramaEnfado& frame : kAngerFrames) {
        (z.*frame.Reloj).Click = [this, &frame] {
            PonerAlPie(z, frame.Left, frame.Top, frame.Pose);
            (z.*frame.Reloj).Stop();
            (z.*frame.Siguiente).Start();
        };
    }
    z.SaltoZarpi1.Click = [this] { Salto(); };
    z.SaltoZarpi3.Click = [this] { FinDeSalto(); };
    z.AngustiaZarpi1.Click = [this] { Angustia(); };
    z.CaídaZarpi1.Click = [this] { Caer(); };
    z.CaídaZarpi4.Click = [this] { Aterrizar(); };
    z.CaídaZarpi5.Click = [this] { Incorporarse(); };
    z.EnfadoZarpi5.Click = [this] {
        z.Picture1.Visible = false;
        z.EnfadoZarpi5.Stop();
    };
}

void Secuencias::CelebrarPleno() {
    if (z.Fallo == 0) z.SaltoZarpi1.Start();
}

void Secuencias::Salto() {
    ++z.VecesSalto;
    z.picZarpi.Picture = Pose(9);
    z.SaltoZarpi1.Stop();
    z.SaltoZarpi2.Start();
}

void Secuencias::FinDeSalto() {
    z.picZarpi.Picture = Pose(1);
    z.SaltoZarpi3.Stop();
    // Two plenos close together run through the chain at once and can count past four.
    if (z.VecesSalto >= kJumps) {
        z.VecesSalto = 0;
    } else {
        z.SaltoZarpi1.Start();
    }
}

void Secuencias::Angustia() {
    z.picZarpi.Top = kAnguishTop;
    ++z.VecesAngustia;
    z.picZarpi.Picture = Pose(11);
    z.AngustiaZarpi1.Stop();
    if (z.VecesAngustia == kAnguishRounds) {
        z.VecesAngustia = 0;
    } else {
        z.AngustiaZarpi2.Start();
    }
}

void Secuencias::Caer() {
    z.lblComentCaída.Visible = true;
    z.picZarpi.Visible = false;
    z.Picture5.Visible = true;
    z.CaídaZarpi1.Stop();
    z.CaídaZarpi2.Start();
}

void Secuencias::Aterrizar() {
    z.Picture5.Visible = false;
    PonerAlPie(z, 9060, 5310, 8);
    z.CaídaZarpi4.Stop();
    z.CaídaZarpi5.Start();
}

void Secuencias::Incorporarse() {
    z.Picture1.Picture = Pose(13);
    z.Picture1.Left = 9660;
    z.Picture1.Top = 5410;
    comentario.ComentarioCaída();
    z.lblComentCaída.Caption = z.Picture1.ToolTipText;
    z.CaídaZarpi5.Stop();
    if (z.Caídas == reglas::CaídasEnfado) {
        z.Picture1.ToolTipText.clear();
        z.EnfadoZarpi1.Start();
    }
}

void Secuencias::FinPorEnfado() {
    for (const Modo& modo : Modos) (z.*modo.Cuadro).Enabled = false;
    for (Menu* entry : {&z.mnuSonido, &z.mnuÚltimas, &z.mnuNormas, &z.mnuAcerca}) entry->Enabled = false;
    Decir(z, u"La clave es " + z.PalabraMensaje + z.Traducción +
                 (z.plural ? u" ¡Vaya, Zarpi se ha enfadado y ya no podéis jugar!"
                           : u" ¡Vaya, Zarpi se ha enfadado y ya no puedes jugar!"));
}

}  // namespace juego
