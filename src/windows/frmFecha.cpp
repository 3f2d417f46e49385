#include "windows/frmFecha.h"

#include "game/AvisoError.h"
#include "game/Modos.h"
#include "records/CuadrosDeHonor.h"
#include "windows/Verticales.h"

namespace juego {

namespace {

struct Esquina {
    int Left;
    int Top;
};

/// The ring of stars, clockwise from the left side.
constexpr std::array<Esquina, 18> kStars = {{
    {420, 1830},
    {420, 2640},
    {1500, 3540},
    {2460, 3540},
    {3420, 3540},
    {4380, 3540},
    {5340, 3540},
    {6300, 3540},
    {7380, 2640},
    {7380, 1830},
    {7380, 1020},
    {6300, 180},
    {5340, 180},
    {4380, 180},
    {3420, 180},
    {2460, 180},
    {1500, 180},
    {420, 1020},
}};
constexpr int kStarDesigns = 4;

}  // namespace

frmFecha::frmFecha(Zarpi& zarpi, Forms& forms, Files& files, Media& media, const Clock& clock, Música& música,
                   std::function<void()> ceremonia)
    : Form("frmFecha",
           {.Caption = u"¡Enhorabuena!", .Width = 8640, .Height = 6750, .Background = "fecha", .Icon = "icondialogo"}),
      z(zarpi),
      files(files),
      media(media),
      clock(clock),
      música(música),
      ceremonia(std::move(ceremonia)) {
    Narrow = StackedOrder(*this, verticales::Fecha);
    OnLoad = [this] { Form_Load(); };
    OnQueryUnload = [this] { Form_QueryUnload(); };
    cmdAceptar.Click = [this, &forms] { forms.Unload(*this); };
    tmrTimer1.Click = [this] { MostrarEstrellas(false, tmrTimer1, tmrTimer2); };
    tmrTimer2.Click = [this] { MostrarEstrellas(true, tmrTimer2, tmrTimer1); };
}

std::pair<Place, PictureLook> frmFecha::Estrella(int i) {
    const Esquina& corner = kStars.at(static_cast<std::size_t>(i - 1));
    return {{corner.Left, corner.Top, 795, 735}, {.Stored = "star" + std::to_string((i - 1) % kStarDesigns + 1)}};
}

void frmFecha::Form_Load() {
    música.Cerrar();
    txtFecha.Text = FormatDate(clock.Today());
    if (z.plural) Label3.Caption = u"¡Lo habéis conseguido!";
    Sonar(media, z, sonConseguido, sonidos::Conseguido);
}

void frmFecha::MostrarEstrellas(bool visible, Timer& own, Timer& next) {
    for (PictureBox& star : picEstrella) star.Visible = visible;
    own.Stop();
    next.Start();
}

FilaHonor frmFecha::Fila() const {
    return {.puntos = SignedDecimal(z.puntos),
            .Nombre = z.Nombre,
            .plenos = SignedDecimal(z.plenos),
            .Tiempo = Text(TextoDeTiempo(z.Tiempo)),
            .Fecha = FechaCua};
}

void frmFecha::Form_QueryUnload() {
    media.Command(sonConseguido, MediaCommand::Pause);
    media.Command(sonConseguido, MediaCommand::Prev);
    z.ModoHonor = z.Modo;
    FechaCua = txtFecha.Text;
    if (!InsertarEnCuadro(files, ArchivosHonor.at(static_cast<std::size_t>(z.Modo - 1)), Fila()))
        MostrarErrorAlFrente(z);
    tmrTimer1.Stop();
    tmrTimer2.Stop();
    ceremonia();
}

}  // namespace juego
