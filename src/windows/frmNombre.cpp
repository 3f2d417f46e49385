#include "windows/frmNombre.h"

#include "game/Plural.h"
#include "windows/Verticales.h"

namespace juego {

frmNombre::frmNombre(Zarpi& zarpi, Forms& forms)
    : Form("frmNombre", {.Caption = u"Nombre del jugador",
                         .Width = 4875,
                         .Height = 1755,
                         .Left = 3105,
                         .Top = 1125,
                         .Background = "nombre",
                         .Icon = "icondialogo"}),
      z(zarpi) {
    Narrow = StackedOrder(*this, verticales::Nombre);
    cmdAceptar.Click = [this, &forms] { forms.Unload(*this); };
    OnQueryUnload = [this] { Form_QueryUnload(); };
}

void frmNombre::Form_QueryUnload() {
    if (z.anónimo.empty() && txtNombre.Text.empty()) {
        txtNombre.Text = u"Anónimo";
    } else if (txtNombre.Text.empty()) {
        txtNombre.Text = z.Nombre;
    }
    z.lblNombre.Caption = Trim(txtNombre.Text);
    z.Nombre = txtNombre.Text;
    if (NombraVarios(z.Nombre)) z.plural = true;
}

}  // namespace juego
