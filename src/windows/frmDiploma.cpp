#include "windows/frmDiploma.h"

#include "game/Impresion.h"
#include "game/Modos.h"
#include "sound/Sonido.h"

namespace juego {

namespace {

constexpr Integer kClosedWidth = 5400;
constexpr Integer kClosedLeft = 5830;
constexpr int kCurtainStep = 60;
constexpr int kOpenWidth = 200;
constexpr int kCopies = 3;

}  // namespace

frmDiploma::frmDiploma(Zarpi& zarpi, Forms& forms, Printer& printer, Media& media, const Text& fecha)
    : Form("frmDiploma", {.Caption = u"PREMIO",
                          .Width = 11910,
                          .Height = 8520,
                          .Background = "fondodiploma",
                          .Icon = "icondialogo",
                          .KeyPreview = true}),
      z(zarpi),
      forms(forms),
      printer(printer),
      media(media),
      fecha(fecha) {
    OnLoad = [this] { Form_Load(); };
    OnKeyDown = [this](int keyCode) { Form_KeyDown(keyCode); };
    OnQueryUnload = [this] {
        this->media.Command(sonDiploma, MediaCommand::Pause);
        this->media.Command(sonDiploma, MediaCommand::Prev);
    };
    Picture2.Click = Picture3.Click = [this] { Form_KeyDown(KeyLeft); };
    cmdAceptar.Click = [this] { this->forms.Unload(*this); };
    cmdImprimir.Click = [this] { cmdImprimir_Click(); };
}

TextBoxLook frmDiploma::Hueco(double size) {
    return {.Locked = true,
            .ForeColor = Navy,
            .Font = FontName::TimesNewRoman,
            .FontSize = size,
            .FontBold = true,
            .Align = Alignment::Centre};
}

void frmDiploma::Form_Load() {
    Sonar(media, z, sonDiploma, sonidos::Diploma);
    picDiploma1.Visible = !z.plural;
    picDiploma2.Visible = z.plural;
    Picture2.Width = kClosedWidth;
    AnchoCortina = kClosedWidth;
    IzqCortina = kClosedLeft;
    Picture3.Left = kClosedLeft;
    Picture3.Width = kClosedWidth;
    NúmCopias = 0;
    Text1.Text = Trim(z.Nombre);
    Text2.Text = TextoModo(z.Modo);
    Text3.Text = Decimal(z.puntos);
    Text4.Text = Decimal(z.plenos);
    Text5.Text = Trim(fecha);
}

void frmDiploma::Form_KeyDown(int keyCode) {
    if (keyCode == KeyLeft) CorrerCortinas(kCurtainStep);
    if (keyCode == KeyRight) CorrerCortinas(-kCurtainStep);
    if (AnchoCortina < kOpenWidth) KeyPreview = false;
    if (AnchoCortina > kClosedWidth) AnchoCortina = kClosedWidth;
    if (IzqCortina < kClosedLeft) {
        IzqCortina = kClosedLeft;
        Picture3.Left = kClosedLeft;
        Picture3.Width = kClosedWidth;
    }
}

/// Opens the curtains by a step, or closes them by a negative one.
void frmDiploma::CorrerCortinas(int step) {
    AnchoCortina = static_cast<Integer>(AnchoCortina - step);
    IzqCortina = static_cast<Integer>(IzqCortina + step);
    Picture2.Width = AnchoCortina;
    Picture3.Width = AnchoCortina;
    Picture3.Left = IzqCortina;
    Text6.Visible = false;
}

void frmDiploma::cmdImprimir_Click() {
    if (!Imprimir(printer, *this)) return;
    ++NúmCopias;
    if (NúmCopias == kCopies) forms.Unload(*this);
}

}  // namespace juego
