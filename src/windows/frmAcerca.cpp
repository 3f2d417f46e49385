#include "windows/frmAcerca.h"

#include "sound/Sonido.h"
#include "windows/PaginaWeb.h"

namespace juego {

namespace {

/// The words through which the letter boxes turn.
constexpr std::array<TextView, 6> kWords = {u"ZARPI", u"MODOS", u"JUEGO", u"NIVEL", u"PLENO", u"EXTRA"};
constexpr std::array<int, 4> kFigureTops = {180, 1350, 3540, 4710};

}  // namespace

frmAcerca::frmAcerca(Zarpi& zarpi, Forms& forms, Media& media, Web& web)
    : Form("frmAcerca", {.Caption = u"Acerca del Juego de Zarpi",
                         .Width = 4575,
                         .Height = 8100,
                         .Background = "acerca",
                         .Icon = "icondialogo"}),
      z(zarpi),
      media(media) {
    OnLoad = [this] {
        turns = {};
        for (std::size_t i = 0; i < kBoxes; ++i) boxes[i]->Caption = Text(1, kWords[0][i]);
        picPubli1.ToolTipText = Text(u"Enlace a ") + Text(PáginaWeb);
    };
    for (std::size_t i = 0; i < kBoxes; ++i) boxes[i]->Click = [this, i] { Girar(i); };
    cmdAceptar.Click = [this, &forms] { forms.Unload(*this); };
    picPubli1.Click = [&web] { web.Navigate(PáginaWeb); };
}

std::pair<Place, PictureLook> frmAcerca::Figura(int i) {
    const auto row = static_cast<std::size_t>(i - 1) % kFigureTops.size();
    return {{i <= 4 ? 180 : 3780, kFigureTops.at(row), 615, 960}, SmallZarpi()};
}

LabelLook frmAcerca::Nombre(TextView caption) {
    return ValueBox(caption, FontName::MSSansSerif, 9.75, true, 0x0000C0, White);
}

LabelLook frmAcerca::Oficio(TextView caption) {
    return {.Caption = Text(caption), .BackColor = 0xFFFF80, .FontBold = true};
}

LabelLook frmAcerca::Letra() {
    return {.BackColor = Green, .ForeColor = Red, .Font = FontName::CourierNew, .FontSize = 27.75, .FontBold = true};
}

void frmAcerca::Girar(std::size_t box) {
    turns.at(box) = (turns.at(box) + 1) % kWords.size();
    boxes.at(box)->Caption = Text(1, kWords.at(turns.at(box))[box]);
    PlaySound(media, z.sonTeclado, sonidos::Teclado);
}

}  // namespace juego
