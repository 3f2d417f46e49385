#include "shell/Juego.h"

#include "engine/Elecciones.h"
#include "game/VentanaEstrecha.h"
#include "records/Diario.h"
#include "shell/Teclado.h"
#include "stage/Escena.h"
#include "voice/Nombres.h"
#include "voice/Palabras.h"
#include "windows/PaginaWeb.h"

namespace juego {

Juego::Juego(const Services& services)
    : s(services),
      reanudar(z, s.Forms, s.Dialogs, s.Files, índices,
               {[this](int modo) { ElegirModo(z, modo); }, [this](int minutos) { ElegirTiempo(z, minutos); },
                [this] { partida.NuevoReanudar(); }}) {
    ConectarVentana();
    ConectarMenús();
    ConectarVoz();
}

void Juego::Start() {
    s.Forms.Load(z);
}

void Juego::ConectarVentana() {
    z.Narrow = [this](const Room& room) { return Estrecha(z, room); };
    z.OnLoad = [this] { Form_Load(); };
    z.OnQueryUnload = [this] { s.Forms.End(); };
    z.OnKeyPress = [this](int keyAscii) {
        if (LetraDeCódigo(keyAscii) != 0) AvisarComodín();
        letras.Form_KeyPress(keyAscii);
    };
    const auto clickKey = [this](int index) {
        AvisarComodín();
        letras.lblTecla_Click(index);
    };
    z.lblTecla.OnClick(clickKey);
    z.shpTecla.OnClick(clickKey);
    z.lblComodín.OnClick([this](int index) { comodines.lblComodín_Click(index); });
    z.lblLetra.OnClick([this](int index) { comodines.lblLetra_Click(index); });
    for (Label& box : z.lblLetra) {
        box.Wanted = [this, &box] { return z.fComodín && box.Index <= z.LargoPalabra && box.Caption.empty(); };
    }
    z.picZarpi.Glides = z.shpEmpujador1.Glides = z.shpEmpujador2.Glides = true;
    z.tmrTiempo.Click = [this] { reloj.tmrTiempo_Timer(); };
    z.cmdMostrar.Click = [this] { cmdMostrar_Click(z, s.Media); };
    z.cmdOcultar.Click = [this] { cmdOcultar_Click(z, s.Media); };
    z.cmdDorvanquil.Click = [this] { s.Web.Navigate(PáginaWeb); };
    z.cmdDorvanquil.ByTabAlone = true;
}

void Juego::ConectarMenús() {
    const auto shows = [this](Form& form) { return [this, &form] { s.Forms.ShowModal(form); }; };
    for (const Modo& modo : Modos) {
        (z.*modo.Entrada).Click = [this, &modo] {
            ElegirModo(z, modo.Número);
            voz.Avisar(u"Modo: " + z.lblModo.Caption + u".");
        };
        (z.*modo.Cuadro).Click = [this, &modo] {
            z.ModoHonor = modo.Número;
            s.Forms.ShowModal(cuadro);
        };
    }
    for (const TiempoPalabra& tiempo : Tiempos) {
        (z.*tiempo.Entrada).Click = [this, &tiempo] {
            ElegirTiempo(z, tiempo.Minutos);
            voz.Avisar(z.lblMensajeTiem.Caption + u".");
        };
    }
    z.mnuNuevo.Click = [this] { partida.mnuNuevo_Click(); };
    z.mnuReanudar.Click = shows(reanudar);
    z.mnuGuardar.Click = shows(guardar);
    z.mnuÚltimas.Click = shows(últimas);
    z.mnuSonido.Click = [this] {
        mnuSonido_Click(z);
        voz.Avisar(z.mnuSonido.Checked ? u"Con sonido." : u"Sin sonido.");
    };
    z.mnuSalir.Click = [this] { s.Forms.End(); };
    z.mnuNormas.Click = shows(normas);
    z.mnuAcerca.Click = shows(acerca);
}

void Juego::ConectarVoz() {
    NombrarVentana(z);
    for (Form* form : Ventanas()) {
        form->OnHelpKey = [this](const Key& key) { return key.Code == KeyF8 && (voz.RepetirEstado(), true); };
        if (form != &z) NombrarDiálogo(*form);
    }
    s.Forms.OnSettled = [this] { voz.Asentar(); };
    z.OnHelpKey = [this](const Key& key) { return TeclaDeAyuda(key); };
}

/// Keys for players without a mouse or without sight: F7 arms the joker, a digit then chooses the box (0 the tenth), F8
/// tells how the game stands.
bool Juego::TeclaDeAyuda(const Key& key) {
    constexpr int kBoxes = 10;
    if (key.Code == KeyF7) {
        if (z.comodines > 0) comodines.lblComodín_Click(1);
        if (z.comodines == 0 || z.fFinPartida) voz.Avisar(z.fFinPartida ? u"No hay partida." : u"Sin comodines.");
        elegirCasilla = z.fComodín;
        return true;
    }
    if (key.Code == KeyF8) {
        voz.RepetirEstado();
        return true;
    }
    elegirCasilla = elegirCasilla && z.fComodín;
    if (!elegirCasilla || key.Character < u'0' || key.Character > u'9') return false;
    const int digit = key.Character - u'0';
    comodines.lblLetra_Click(digit == 0 ? kBoxes : digit);
    return true;
}

/// A letter is refused while a joker is armed: those who listen are told.
void Juego::AvisarComodín() {
    if (z.fComodín && z.VecesAngustia == 0) voz.Avisar(voz::Comodines(z));
}

/// What follows the victory screen: the prize, then the board of the mode played.
void Juego::Premiar() {
    s.Forms.ShowModal(diploma);
    s.Forms.ShowModal(cuadro);
}

/// The fields have their values at start-up already; here the window learns what lies in the files.
void Juego::Form_Load() {
    s.Forms.Show(presenta);
    z.Días = {u"", u"DOMINGO", u"LUNES", u"MARTES", u"MIÉRCOLES", u"JUEVES", u"VIERNES", u"SÁBADO"};
    for (std::size_t i = 1; i < z.Músicas.size(); ++i) {
        z.Músicas[i] = (i < 10 ? u"Musica0" : u"Musica") + Decimal(static_cast<int>(i)) + u".mid";
    }
    z.cmdDorvanquil.Caption = PáginaWeb;
    OcultarFondos(z);
    z.picFondo(2).Visible = true;
    if (!Diario::Recuperar(s.Files)) MostrarErrorAlFrente(z);
    z.último = NúmeroOAviso(z, LeerContador(s.Files, ArchivoGuardadas));
    if (z.último == 0) z.mnuReanudar.Enabled = false;
}

std::vector<Form*> Juego::Ventanas() {
    return {&z,      &presenta, &nivel,    &tanteo,  &nombre, &guardar, &reanudar,
            &cuadro, &últimas,  &victoria, &diploma, &normas, &acerca};
}

std::optional<Valor> Juego::Campo(std::string_view form, std::string_view field) const {
    if (form == "Zarpi") return ValorDeCampo(z, field);
    if (form == "frmPuntos" && field == "f200") return z.f200;
    if (form == "frmFecha" && field == "FechaCua") return victoria.FechaCua;
    if (form == "frmCastellano" && field == "Aleator") return castellano.Aleator;
    if (form == "frmCastellano" && field == "Castel") return castellano.Castel;
    if (form == "frmInglés" && field == "Alea") return inglés.Alea;
    if (form == "frmInglés" && field == "Inglés") return inglés.Inglés;
    if (form == "frmInglés" && field == "Español") return inglés.Español;
    return std::nullopt;
}

}  // namespace juego
