#include "engine/Elecciones.h"

#include <algorithm>

#include "game/Modos.h"

namespace juego {

void ElegirModo(Zarpi& z, int número) {
    const auto chosen = std::ranges::find(Modos, número, &Modo::Número);
    if (chosen == Modos.end()) return;
    z.TopeCastellano = chosen->TopeCastellano.value_or(z.TopeCastellano);
    z.TopeInglés = chosen->TopeInglés.value_or(z.TopeInglés);
    z.fInglésCaste = chosen->fInglésCaste;
    z.fAlterna = chosen->fAlterna;
    z.fDiezPalabras = chosen->fDiezPalabras;
    z.Modo = chosen->Número;
    z.ModoHonor = chosen->Número;
    for (const Modo& modo : Modos) (z.*modo.Entrada).Checked = modo.Número == número;
    z.lblModo.Caption = chosen->Texto;
    z.lblTapa1.Visible = false;
    z.lblTapa2.Visible = false;
    z.lblTapa1.Left = chosen->IzqTapa1.value_or(z.lblTapa1.Left);
    z.lblTapa2.Left = chosen->IzqTapa2.value_or(z.lblTapa2.Left);
}

void ElegirTiempo(Zarpi& z, int minutos) {
    const auto chosen = std::ranges::find(Tiempos, minutos, &TiempoPalabra::Minutos);
    if (chosen == Tiempos.end()) return;
    z.Tiempo = chosen->Minutos;
    z.lblMensajeTiem.Caption = chosen->Mensaje;
    for (const TiempoPalabra& tiempo : Tiempos) (z.*tiempo.Entrada).Checked = tiempo.Minutos == minutos;
}

void mnuSonido_Click(Zarpi& z) {
    z.Sonido = z.Sonido == 0 ? 1 : 0;
    z.mnuSonido.Checked = z.Sonido == 0;
}

}  // namespace juego
