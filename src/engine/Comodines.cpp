#include "engine/Comodines.h"

#include "sound/Sonido.h"

namespace juego {

Comodines::Comodines(Zarpi& zarpi, Media& media, Letras& letras) : z(zarpi), media(media), letras(letras) {
    z.tmrComodín1.Click = [this] {
        z.lblComodín(1).Visible = false;
        z.tmrComodín1.Stop();
        z.tmrComodín2.Start();
    };
    z.tmrComodín2.Click = [this] {
        z.lblComodín(1).Visible = true;
        z.tmrComodín2.Stop();
        z.tmrComodín1.Start();
    };
}

void Comodines::lblComodín_Click(int index) {
    if (index != 1 || z.VecesAngustia != 0 || z.fFinPartida) return;
    z.fComodín = true;
    ++z.comod;
    if (z.comod == 1) {
        z.tmrComodín1.Start();
    } else {
        DesarmarComodín(z);
    }
    PlaySound(media, z.sonTeclado, sonidos::Teclado);
    CallarZarpi(z);
}

void Comodines::lblLetra_Click(int index) {
    if (!z.fComodín) return;
    z.Letra = index <= z.LargoPalabra ? Text(1, z.PalabraClave.at(static_cast<std::size_t>(index - 1))) : Text();
    z.fAcierto = false;
    if (letras.RechazarRepetida()) return;
    DesarmarComodín(z);
    z.lblComodín(z.comodines).Visible = false;
    --z.comodines;
    letras.MarcarTecla();
    letras.Comprobar();
}

void DesarmarComodín(Zarpi& z) {
    z.tmrComodín1.Stop();
    z.tmrComodín2.Stop();
    z.comod = 0;
    z.fComodín = false;
    z.lblComodín(1).Visible = z.comodines > 0;
}

}  // namespace juego
