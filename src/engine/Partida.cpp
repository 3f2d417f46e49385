#include "engine/Partida.h"

#include <algorithm>

#include "game/Comodin.h"
#include "game/Mensaje.h"
#include "game/Plural.h"
#include "game/Reglas.h"
#include "stage/Escena.h"

namespace juego {

namespace {

constexpr int kLastOfFirstHalf = reglas::Palabras / 2;
constexpr int kFirstScene = 2;
constexpr int kRowWidth = 8560;
constexpr int kBoxStep = 780;
constexpr double kFreeSize = 24;

/// The plain vowel of an accented one; any other letter as it is.
char16_t WithoutAccent(char16_t letter) {
    constexpr TextView kAccented = u"ÁÉÍÓÚ";
    constexpr TextView kPlain = u"AEIOU";
    const auto vowel = kAccented.find(letter);
    return vowel == TextView::npos ? letter : kPlain[vowel];
}

void MostrarComodines(Zarpi& z) {
    for (Label& box : z.lblComodín) {
        box.Visible = box.Index <= z.comodines;
        box.ToolTipText = box.Index == 1 ? u"Comodín activo." : u"Comodín inactivo.";
    }
}

}  // namespace

void Partida::mnuNuevo_Click() {
    z.Comenzar(EstadoPartida{.NúmNivel = 1, .comodines = reglas::ComodinesIniciales, .anónimo = z.Nombre});
    z.lblMenComienzo.Caption =
        u"Comienza a introducir letras hasta que aciertes la palabra clave. Usa los comodines (?) cuando lo desees.";
    AbrirTablero();
    z.picFondo(kFirstScene).Visible = true;
    SiguientePalabra();
    forms.ShowModal(screens.Nombre);
}

void Partida::NuevoReanudar() {
    z.Comenzar(
        EstadoPartida{.NúmNivel = z.NúmNivel,
                      .NúmPalabra = static_cast<Integer>(z.NúmPalabra - 1),  // the start of the word adds it again
                      .puntos = z.puntos,
                      .plenos = z.plenos,
                      .comodines = z.comodines,
                      .Alter = z.Alter,
                      .anónimo = z.anónimo,
                      .plural = NombraVarios(z.Nombre),
                      .f200 = z.puntos > reglas::ZarpisComodín,
                      .fReanudar = true,
                      .fPrimerComentario = true});
    AbrirTablero();
    z.lblMenComienzo.Visible = false;
    z.lblMensajeError.Visible = false;
    z.lblNombre.Caption = Trim(z.Nombre);
    SiguientePalabra();
}

/// The window at the start of a game, new or resumed.
void Partida::AbrirTablero() {
    z.fFinPartida = false;
    RetirarCaída(z);
    CallarCaída(z);
    z.Label5.Caption.clear();
    z.lblPuntos.Caption = Decimal(z.puntos);
    z.lblPlenos.Caption = Decimal(z.plenos);
    for (Label* label : {&z.lblMensajeTiem, &z.lblTiempo, &z.Label8, &z.lblNombre}) label->Visible = true;
    z.Shape1.Visible = true;
    z.mnuNuevo.Enabled = false;
    z.mnuReanudar.Enabled = false;
    for (const Modo& modo : Modos) (z.*modo.Entrada).Enabled = false;
    for (const TiempoPalabra& tiempo : Tiempos) (z.*tiempo.Entrada).Enabled = false;
    // A game that ended other than by a fall may have left its keyboard open.
    OcultarTeclado(z);
    z.cmdMostrar.Visible = true;
    z.cmdMostrar.Enabled = true;
    z.shpMosOcul.Visible = true;
    MostrarComodines(z);
    OcultarFondos(z);
}

void Partida::SiguientePalabra() {
    z.fAcierto = false;
    ++z.NúmPalabra;
    if (z.NúmPalabra > reglas::Palabras) {
        fin.PartidaGanada();
        return;
    }
    if (z.NúmPalabra >= reglas::PrimeraGuardable) z.mnuGuardar.Enabled = true;
    ComodínPalabra16();
    // The tally still has to read the misses of the word before.
    z.Comenzar(EstadoPalabra{.HoraPalabra = z.HoraPalabra, .Fallo = z.Fallo});
    VaciarTablero();
    ReponerEscena(z);
    SacarPalabra();
    const Nivel level = NivelDePalabra(z.NúmPalabra, z.fDiezPalabras);
    z.NúmNivel = level.Número;
    MostrarPalabra(level);
    AbrirPalabra(level.EsPrimera);
    z.Fallo = 0;
    z.HoraPalabra = clock.Time();
    comentario.ComentarioPalabra();
    z.lblComentario.Visible = true;
    z.lblComentario.Caption = z.picZarpi.ToolTipText;
    z.tmrTiempo.Start();
}

void Partida::VaciarTablero() {
    for (Label& key : z.lblTecla) {
        key.BorderStyle = 0;
        key.FontSize = kFreeSize;
    }
    for (Shape& frame : z.shpRecuadro) frame.Visible = false;
    for (Label& box : z.lblLetra) box.Caption.clear();
}

/// In mode 5 the languages take turns; a resumed game comes back to the turn that was saved.
void Partida::Alternar() {
    if (z.fAlterna && !z.fReanudar) z.Alter = z.Alter == 1 ? 2 : 1;
}

/// The language of the word: the halves of mode 2 first, then the bounds of modes 1, 3 and 4, else by turns.
bool Partida::EsCastellana() const {
    if (z.fInglésCaste) return z.NúmPalabra > kLastOfFirstHalf;
    return z.fAlterna ? z.Alter == 1 : z.NúmPalabra < z.TopeCastellano;
}

void Partida::SacarPalabra() {
    Alternar();
    const bool spanish = EsCastellana();
    if (spanish) {
        sorteo.SacarPalabraCastellano();
        SinAcentos();
    } else {
        sorteo.SacarPalabraInglés();
    }
    música.Cambiar();
    z.lblTapa1.Visible = spanish;
    z.lblTapa2.Visible = !spanish;
}

void Partida::SinAcentos() {
    z.PalabraMensaje = z.PalabraClave + u".";
    std::ranges::transform(z.PalabraClave, z.PalabraClave.begin(), WithoutAccent);
}

void Partida::ColocarRecuadros() {
    z.PosiciónLetra = static_cast<Integer>((kRowWidth - kBoxStep * z.LargoPalabra) / 2);
    for (int i = 1; i <= z.LargoPalabra; ++i) {
        z.shpRecuadro(i).Left = z.PosiciónLetra;
        z.shpRecuadro(i).Visible = true;
        z.lblLetra(i).Left = z.PosiciónLetra;
        z.ZOrder(z.lblLetra(i));
        z.PosiciónLetra = static_cast<Integer>(z.PosiciónLetra + kBoxStep);
    }
}

void Partida::MostrarPalabra(const Nivel& level) {
    ColocarRecuadros();
    if (level.Dadas != LetrasDadas::Ninguna) {
        z.PrimeraLetra = z.PalabraClave.front();
        z.lblLetra(1).Caption = z.PrimeraLetra;
    }
    if (level.Dadas == LetrasDadas::PrimeraYÚltima) {
        z.ÚltimaLetra = z.PalabraClave.back();
        z.lblLetra(z.LargoPalabra).Caption = z.ÚltimaLetra;
    }
    z.lblPalabra.Caption = Decimal(z.NúmPalabra);
    z.lblNivel.Caption = Decimal(z.NúmNivel);
}

/// The screens between two words: the briefing of a new level, then the tally of the word before. A resumed game has
/// neither.
void Partida::AbrirPalabra(bool firstOfLevel) {
    const bool resumed = z.fReanudar;
    z.fReanudar = false;
    if (firstOfLevel && !resumed) forms.ShowModal(screens.Nivel);
    SeleccionarFondo(z);
    if (z.NúmPalabra > 1 && !resumed) forms.ShowModal(screens.Puntos);
}

void Partida::ComodínPalabra16() {
    if (z.fReanudar || z.NúmPalabra != reglas::PalabraComodín) return;
    DarComodín(z);
    Decir(z, u"Has llegado a la palabra 16. Comodín extra.");
    Sonar(media, z, z.sonPal16, sonidos::Palabra16);
}

}  // namespace juego
