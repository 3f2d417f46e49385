#include "shell/Teclado.h"

#include "sound/Sonido.h"
#include "stage/Escena.h"

namespace juego {

void cmdMostrar_Click(Zarpi& z, Media& media) {
    PlaySound(media, z.sonTeclado, sonidos::Teclado);
    z.lblTeclado.Visible = true;
    z.linTeclado.Visible = true;
    for (Shape& plate : z.shpTecla) plate.Visible = true;
    for (Label& key : z.lblTecla) {
        key.Visible = true;
        z.ZOrder(key);
    }
    z.cmdMostrar.Visible = false;
    z.cmdOcultar.Visible = true;
}

void cmdOcultar_Click(Zarpi& z, Media& media) {
    PlaySound(media, z.sonTeclado, sonidos::Teclado);
    OcultarTeclas(z);
    z.cmdOcultar.Visible = false;
    z.cmdMostrar.Visible = true;
}

}  // namespace juego
