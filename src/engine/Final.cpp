#include "engine/Final.h"

#include "engine/Comodines.h"
#include "game/Reglas.h"

namespace juego {

void Final::PartidaGanada() {
    z.fVictoria = true;
    empujador();
    z.Label5.Caption = z.plural ? u"¡Enhorabuena, lo habéis conseguido! ¿Otra partida?"
                                : u"¡Enhorabuena, lo has conseguido! ¿Otra partida?";
    for (Label& box : z.lblComodín) box.ToolTipText.clear();
    z.Caídas = 0;
    z.Bonificación = static_cast<Integer>(reglas::Bonificación(z.Fallo));
    z.puntos = static_cast<Integer>(z.puntos + reglas::ZarpisPalabra + z.Bonificación);
    z.lblPuntos.Caption = Decimal(z.puntos);
    if (z.Fallo == 0) {
        ++z.plenos;
        z.lblPlenos.Caption = Decimal(z.plenos);
    }
    anotar();
    forms.ShowModal(victoria);
}

void Final::PartidaGuardada() {
    z.fGuardar = true;
    empujador();
    z.Label5.Caption = u"PARTIDA GUARDADA. Fin de juego.";
    for (Label& box : z.lblComodín) box.ToolTipText.clear();
    z.picZarpi.ToolTipText.clear();
    DesarmarComodín(z);
    if (z.comodines > 0) z.lblComodín(1).Visible = true;
}

}  // namespace juego
