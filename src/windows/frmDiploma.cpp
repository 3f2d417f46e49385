#include "windows/frmDiploma.h"

#include "game/Impresion.h"
#include "game/Modos.h"
#include "sound/Sonido.h"
#include "windows/Verticales.h"

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
                          .KeyPreview = true,
                          .FingerHint = u"Arrastra las cortinas con el dedo para abrirlas.",
                          .Shared = true}),
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
    Picture2.Drawn = {.Step = kCurtainStep, .LeftKey = KeyLeft, .RightKey = KeyRight};
    Picture3.Drawn = {.Step = kCurtainStep, .LeftKey = KeyRight, .RightKey = KeyLeft};
    Narrow = [this](const Room& room) { return Estrecho(room); };
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

std::optional<Order> frmDiploma::Estrecho(const Room& room) const {
    auto order = StackedOrder(*this, verticales::Diploma)(room);
    if (!order && room.ByFingers) order = Tumbado(room);
    if (!order) return order;
    order->StandOf = [this, standOf = order->StandOf](const Control& control) {
        Stand stand = standOf(control);
        if (&control == &Text6) stand.Visible = false;  // it speaks of keys
        return stand;
    };
    return order;
}

/// As designed, but on a phone held sideways with the buttons at the side.
Order frmDiploma::Tumbado(const Room& room) const {
    const int widthAtHeight = verticales::AltoTumbado * room.Width / room.Height;
    if (widthAtHeight < verticales::AnchoTumbado) {
        return {.Width = Width, .Height = Height, .StandOf = AsDesigned, .FillsWidth = false};
    }
    return {.Width = widthAtHeight, .Height = verticales::AltoTumbado, .StandOf = [](const Control& control) {
                return Moved(control, verticales::DeDiplomaTumbado);
            }};
}

void frmDiploma::cmdImprimir_Click() {
    if (!Imprimir(printer, *this)) return;
    ++NúmCopias;
    if (NúmCopias == kCopies) forms.Unload(*this);
}

}  // namespace juego
