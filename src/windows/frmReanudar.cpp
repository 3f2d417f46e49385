#include "windows/frmReanudar.h"

#include <algorithm>

#include "game/AvisoError.h"
#include "game/Modos.h"
#include "game/Reglas.h"
#include "windows/Verticales.h"

namespace juego {

frmReanudar::frmReanudar(Zarpi& zarpi, Forms& forms, Dialogs& dialogs, Files& files, ÍndicesPalabras índices,
                         AccionesReanudar acciones)
    : Form("frmReanudar", {.Caption = u"Reanudar partida",
                           .Width = 6675,
                           .Height = 6195,
                           .Background = "reanudar",
                           .Icon = "icondialogo"}),
      z(zarpi),
      forms(forms),
      dialogs(dialogs),
      files(files),
      índices(índices),
      acciones(std::move(acciones)) {
    Narrow = StackedOrder(*this, verticales::Reanudar);
    OnLoad = [this] { Form_Load(); };
    OnQueryUnload = [this] { Form_QueryUnload(); };
    lstLista.Click = [this] { lstLista_Click(); };
    txtContraseña.Click = [this] { txtContraseña.Text.clear(); };
    cmdReanudar.Click = [this] { cmdReanudar_Click(); };
    cmdCancelar.Click = [this] { this->forms.Unload(*this); };
}

void frmReanudar::Form_Load() {
    fReanudada = false;
    ModoAnterior = z.Modo;
    TiempoAnterior = z.Tiempo;
    NombreAnterior = z.Nombre;
    último = NúmeroOAviso(z, ContarParaCambiar(files, ArchivoGuardadas));
    lstLista.List = {u"PARTIDAS"};
    if (último > 0) {
        const auto games = LeerPartidas(files, último);
        if (!games) MostrarErrorAlFrente(z);
        for (const PartidaGuardada& game : games.value_or(std::vector<PartidaGuardada>())) {
            lstLista.List.push_back(game.Nombre);
        }
    }
    lstLista.ListIndex = 1;
    lstLista_Click();
}

void frmReanudar::lstLista_Click() {
    txtContraseña.Text.clear();
    const int line = std::max(lstLista.ListIndex, 1);
    const bool listed = line < static_cast<int>(lstLista.List.size());
    const auto game = listed ? LeerPartida(files, line) : std::nullopt;
    // Without a game none is selected, and no password fits; the heading bears the mark.
    PartidaElegida = static_cast<Integer>(game ? line : 0);
    lstLista.ListIndex = PartidaElegida;
    if (game) {
        Tomar(*game);
        Mostrar(*game);
    } else if (listed) {
        for (Label* value : {&Label1, &Label2, &Label3, &Label9, &Label17, &Label11, &Label13, &Label15}) {
            value->Caption.clear();
        }
        MostrarErrorAlFrente(z);
    }
}

/// The game is copied into the fields at once, before any password is given.
void frmReanudar::Tomar(const PartidaGuardada& game) {
    z.NúmPalabra = game.NúmPalabra;
    z.Modo = game.Modo;
    z.Alter = game.Alter;
    z.Tiempo = game.Tiempo;
    z.puntos = game.puntos;
    z.plenos = game.plenos;
    z.comodines = static_cast<Integer>(std::min<int>(game.comodines, reglas::MáximoComodines));
    z.Nombre = game.Nombre;
    z.Fecha = game.Fecha;
    z.Contraseña = Trim(game.Contraseña);
    índices.Aleator = game.Aleator;
    índices.Alea = game.Alea;
}

void frmReanudar::Mostrar(const PartidaGuardada& game) {
    Label1.Caption = Trim(game.Nombre);
    Label2.Caption = Trim(game.Fecha);
    Label3.Caption = Decimal(game.NúmPalabra);
    Label9.Caption = TextoModo(game.Modo);
    Label17.Caption = TextoDeTiempo(game.Tiempo);
    Label11.Caption = Decimal(game.puntos);
    Label13.Caption = Decimal(game.plenos);
    Label15.Caption = Decimal(z.comodines);
}

void frmReanudar::cmdReanudar_Click() {
    if (!ContraseñaCorrecta()) return;
    if (!RetirarPartida(files, PartidaElegida, último)) {
        MostrarErrorAlFrente(z);
        return;
    }
    --último;
    if (último == 0) z.mnuReanudar.Enabled = false;
    // A record may hold a mode or a time that the game does not have; the present choice stays then.
    if (TextoModo(z.Modo).empty()) z.Modo = ModoAnterior;
    if (TextoDeTiempo(z.Tiempo).empty()) z.Tiempo = TiempoAnterior;
    acciones.ElegirModo(z.Modo);
    acciones.ElegirTiempo(z.Tiempo);
    acciones.NuevoReanudar();
    fReanudada = true;
    forms.Unload(*this);
}

bool frmReanudar::ContraseñaCorrecta() {
    const bool empty = txtContraseña.Text.empty();
    const bool playable = PartidaElegida > 0 && z.NúmPalabra >= 1 && z.NúmPalabra <= reglas::Palabras;
    if (!empty && playable && Trim(txtContraseña.Text) == z.Contraseña) return true;
    dialogs.Beep();
    dialogs.MsgBox(empty ? u"Escribe la contraseña." : u"La contraseña no es correcta.", u"Contraseña");
    txtContraseña.Text.clear();
    SetFocus(txtContraseña);
    return false;
}

void frmReanudar::Form_QueryUnload() {
    if (fReanudada) return;
    z.Modo = ModoAnterior;
    z.Tiempo = TiempoAnterior;
    z.Nombre = NombreAnterior;
}

}  // namespace juego
