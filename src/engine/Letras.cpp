#include "engine/Letras.h"

#include <algorithm>

#include "game/Mensaje.h"
#include "game/Modos.h"
#include "game/Reglas.h"
#include "game/Teclas.h"
#include "stage/Escena.h"

namespace juego {

namespace {

constexpr double kTriedSize = 18;

}  // namespace

char16_t LetraDeCódigo(int keyAscii) {
    if (keyAscii < 1 || keyAscii > 0xFF) return 0;
    const char16_t upper = UpperCase(static_cast<char16_t>(keyAscii));
    return ÍndiceDeLetra(upper) != 0 ? upper : u'\0';
}

void CallarZarpi(Zarpi& z) {
    z.lblMenComienzo.Visible = false;
    z.lblComentario.Visible = false;
    CallarCaída(z);
}

bool Letras::Admite() const {
    return z.VecesAngustia == 0 && !z.fFinPartida && !z.fComodín;
}

void Letras::Form_KeyPress(int keyAscii) {
    z.ModoHonor = z.Modo;
    if (!Admite()) return;
    const char16_t letter = LetraDeCódigo(keyAscii);
    if (letter == 0) return;
    z.Letra = Text(1, letter);
    ProbarLetra();
}

void Letras::lblTecla_Click(int index) {
    z.ModoHonor = z.Modo;
    if (!Admite()) return;
    z.Letra = Text(1, TeclaDeÍndice(index).Letra);
    ProbarLetra();
}

void Letras::ProbarLetra() {
    CallarZarpi(z);
    z.lblMensajeError.Visible = false;
    z.fAcierto = false;
    MarcarTecla();
    if (RechazarRepetida()) return;
    z.mnuGuardar.Enabled = false;
    Comprobar();
}

bool Letras::RechazarRepetida() {
    // A joker's box beyond the word has no letter; it is answered in the same way.
    const bool tried = z.Letra.empty() || std::ranges::find(z.LetrasIntentadas, z.Letra) != z.LetrasIntentadas.end();
    if (tried) Decir(z, u"Repetida.");
    return tried;
}

void Letras::MarcarTecla() {
    z.NúmTecla = static_cast<Integer>(ÍndiceDeLetra(z.Letra.front()));
    Label& key = z.lblTecla(z.NúmTecla);
    key.BorderStyle = 1;
    key.FontSize = kTriedSize;
}

void Letras::Comprobar() {
    switch (NivelDePalabra(z.NúmPalabra, z.fDiezPalabras).Dadas) {
        case LetrasDadas::PrimeraYÚltima: return Descubrir(2, z.LargoPalabra - 1);
        case LetrasDadas::Primera: return Descubrir(2, z.LargoPalabra);
        case LetrasDadas::Ninguna: return Descubrir(1, z.LargoPalabra);
    }
}

/// Compares the positions from `first` to `last`, which are those to uncover.
void Letras::Descubrir(int first, int last) {
    for (int i = first; i <= last; ++i) {
        if (z.PalabraClave.at(static_cast<std::size_t>(i - 1)) != z.Letra.front()) continue;
        z.lblLetra(i).Caption = z.Letra;
        ++z.Aciertos;
        z.Label5.Caption = u"Bien.";
        z.fAcierto = true;
    }
    z.picZarpi.ToolTipText.clear();
    ++z.NúmIntentadas;
    z.LetrasIntentadas.at(static_cast<std::size_t>(z.NúmIntentadas)) = z.Letra;
    if (!z.fAcierto) Fallar();
    if (z.Aciertos == last - first + 1) Acertar();
}

void Letras::Fallar() {
    empujador.Fallar();
    if (z.Fallo == reglas::FallosCaída) {
        fin.Caída();
    } else {
        empujador.AnimarComodín();
    }
}

void Letras::Acertar() {
    Decir(z, u"Palabra acertada: " + z.PalabraMensaje + z.Traducción);
    dialogs.Beep();
    z.tmrTiempo.Stop();
    z.picZarpi.Visible = false;
    secuencias.CelebrarPleno();
    siguiente();
}

}  // namespace juego
