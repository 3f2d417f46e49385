#include "windows/frmPuntos.h"

#include "game/Comodin.h"
#include "game/Mensaje.h"
#include "sound/Sonido.h"

namespace juego {

namespace {

constexpr int kFigureStep = 840;
constexpr int kBlinkAbove = 4;
constexpr int kBlinks = 6;

}  // namespace

frmPuntos::frmPuntos(Zarpi& zarpi, Forms& forms, Media& media)
    : Form("frmPuntos", {.Caption = u"Zarpis",
                         .Width = 6975,
                         .Height = 4590,
                         .BackColor = 0xFFC080,
                         .Background = "puntos",
                         .Icon = "icon"}),
      z(zarpi),
      media(media) {
    cmdAceptar.Click = [this, &forms] { forms.Unload(*this); };
    OnLoad = [this] { Form_Load(); };
    Timer1.Click = [this] {
        MostrarBonificación(false);
        Timer1.Stop();
        Timer2.Start();
    };
    Timer2.Click = [this] { Parpadear(); };
}

std::pair<Place, PictureLook> frmPuntos::ZarpiPalabra(int i) {
    return {{180 + kFigureStep * (i - 1), 750, 615, 960}, SmallZarpi()};
}

std::pair<Place, PictureLook> frmPuntos::ZarpiBonificación(int i) {
    constexpr int kFirstRow = 7;
    const int column = (i - 1) % kFirstRow;
    return {{180 + kFigureStep * column, i <= kFirstRow ? 2580 : 3600, 615, 960, Hidden}, SmallZarpi()};
}

void frmPuntos::Form_Load() {
    VecesParpadeo = 0;
    fExtraAnunciado = false;
    Puntuar();
    Label2.Caption = u"Zarpis de bonificación: " + Decimal(Bonificación);
    Label4.Caption = Decimal(reglas::ZarpisPalabra + Bonificación);
    for (int i = 1; i <= Bonificación; ++i) picBonifi(i).Visible = true;
    if (Bonificación > kBlinkAbove) Timer1.Start();
    if (Pasa200()) {
        z.f200 = true;
        Comodín200();
    }
}

void frmPuntos::Puntuar() {
    const bool pleno = z.Fallo == 0;
    Bonificación = static_cast<Integer>(reglas::Bonificación(z.Fallo));
    if (pleno) {
        Label5.Visible = true;
        Label2.Width = 4905;
        ++z.plenos;
        z.lblPlenos.Caption = Decimal(z.plenos);
    }
    z.puntos = static_cast<Integer>(z.puntos + reglas::ZarpisPalabra + Bonificación);
    z.lblPuntos.Caption = Decimal(z.puntos);
    if (!pleno) return;
    ComodínPlenos();
    if (!fExtraAnunciado && z.NúmPalabra != reglas::PalabraComodín && !Pasa200()) AnunciarPleno();
}

void frmPuntos::AnunciarPleno() {
    const bool first = z.plenos == 1;
    if (z.plural) {
        Decir(z, first ? u"¡Bien, habéis conseguido un pleno!" : u"¡Bien, habéis conseguido otro pleno!");
    } else {
        Decir(z, first ? u"¡Bien, has conseguido un pleno!" : u"¡Bien, has conseguido otro pleno!");
    }
    Sonar(media, z, sonPleno, sonidos::Pleno);
}

/// Every third pleno brings a joker, up to the 27th. Another message of the same word takes the place of its own.
void frmPuntos::ComodínPlenos() {
    if (z.comodines == reglas::MáximoComodines || z.plenos % reglas::PlenosPorComodín != 0 ||
        z.plenos > reglas::ÚltimoPlenoComodín)
        return;
    DarComodín(z);
    if (z.NúmPalabra == reglas::PalabraComodín || Pasa200()) return;
    const bool first = z.plenos == reglas::PlenosPorComodín;
    if (z.plural) {
        Decir(z, first ? u"¡Estupendo, habéis conseguido un comodín extra!"
                       : u"¡Estupendo, habéis conseguido otro comodín extra!");
    } else {
        Decir(z, first ? u"¡Estupendo, has conseguido un comodín extra!"
                       : u"¡Estupendo, has conseguido otro comodín extra!");
    }
    Sonar(media, z, sonExtra, sonidos::Extra);
    fExtraAnunciado = true;
}

void frmPuntos::Comodín200() {
    Decir(z, u"Has superado los 200 zarpis. Comodín extra.");
    DarComodín(z);
    Sonar(media, z, sonZarpi200, sonidos::Zarpi200);
}

void frmPuntos::MostrarBonificación(bool visible) {
    for (int i = 1; i <= Bonificación; ++i) picBonifi(i).Visible = visible;
    if (Bonificación == reglas::BonificaciónPleno) Label5.Visible = visible;
}

void frmPuntos::Parpadear() {
    MostrarBonificación(true);
    ++VecesParpadeo;
    Timer2.Stop();
    if (VecesParpadeo < kBlinks) Timer1.Start();
}

}  // namespace juego
