#include "windows/frmGuardar.h"

#include "game/AvisoError.h"
#include "windows/Verticales.h"

namespace juego {

frmGuardar::frmGuardar(Zarpi& zarpi, Forms& forms, Dialogs& dialogs, Files& files, const Clock& clock,
                       ÍndicesPalabras índices, std::function<void()> terminar)
    : Form("frmGuardar", {.Caption = u"Guardar partida",
                          .Width = 4680,
                          .Height = 3270,
                          .Left = 270,
                          .Top = 435,
                          .Background = "guardar",
                          .Icon = "icondialogo"}),
      z(zarpi),
      forms(forms),
      dialogs(dialogs),
      files(files),
      clock(clock),
      índices(índices),
      terminar(std::move(terminar)) {
    Narrow = StackedOrder(*this, verticales::Guardar);
    OnLoad = [this] { txtFecha.Text = FormatDate(this->clock.Today()); };
    cmdGuardar.Click = [this] { cmdGuardar_Click(); };
    cmdCancelar.Click = [this] { this->forms.Unload(*this); };
}

void frmGuardar::cmdGuardar_Click() {
    z.Contraseña = txtContraseña.Text;
    if (!ContraseñaVálida()) return;
    if (Almacenar()) {
        terminar();
    } else {
        MostrarError(z);
    }
    forms.Unload(*this);
}

bool frmGuardar::ContraseñaVálida() {
    if (txtContraseña.Text.empty()) {
        Rechazar(u"Hay que escribir una contraseña.", txtContraseña);
        txtContrarep.Text.clear();
        return false;
    }
    if (txtContrarep.Text.empty()) {
        Rechazar(u"Hay que repetir la contraseña.", txtContrarep);
        return false;
    }
    if (txtContraseña.Text != txtContrarep.Text) {
        Rechazar(u"Las contraseñas no coinciden.", txtContraseña);
        txtContraseña.Text.clear();
        txtContrarep.Text.clear();
        return false;
    }
    return true;
}

void frmGuardar::Rechazar(TextView reason, TextBox& box) {
    dialogs.Beep();
    dialogs.MsgBox(reason, z.Nombre + u"...");
    SetFocus(box);
}

bool frmGuardar::Almacenar() {
    const auto count = ContarParaCambiar(files, ArchivoGuardadas);
    if (!count) return false;
    z.Fecha = txtFecha.Text;
    return GuardarPartida(files, *count, Partida());
}

PartidaGuardada frmGuardar::Partida() const {
    return {.NúmPalabra = z.NúmPalabra,
            .Modo = z.Modo,
            .Alter = z.Alter,
            .Tiempo = z.Tiempo,
            .puntos = z.puntos,
            .plenos = z.plenos,
            .comodines = z.comodines,
            .Nombre = z.Nombre,
            .Fecha = z.Fecha,
            .Contraseña = Trim(z.Contraseña),
            .Aleator = índices.Aleator,
            .Alea = índices.Alea};
}

}  // namespace juego
