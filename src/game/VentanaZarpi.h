#pragma once

#include <array>

#include "game/Estilos.h"
#include "platform/Services.h"

namespace juego {

/// The elements of the main window, from front to back. Pictures and buttons stand before all the others.
struct VentanaZarpi : Form {
    VentanaZarpi()
        : Form("Zarpi", {.Caption = u"Juego de Zarpi. Versión 1.5",
                         .Width = 11910,
                         .Height = 8220,
                         .BackColor = White,
                         .Icon = "icon",
                         .MinButton = true,
                         .KeyPreview = true}) {}

    // Buttons and pictures
    CommandButton cmdDorvanquil{*this, "cmdDorvanquil", {660, 7980, 1875, 255}, {}};
    CommandButton cmdOcultar{*this, "cmdOcultar", {10320, 7530, 1425, 405, Hidden}, PlateButton(u"OCULTAR", 0, 11.25)};
    PictureBox Picture5{*this, "Picture5", {9300, 1230, 2355, 2580, Hidden}, {.Stored = "falling"}};
    PictureBox Picture1{*this, "Picture1", {5250, 4920, 3180, 3345, Hidden}, {.Stored = "ground"}};
    PictureBox picZarpi{*this, "picZarpi", {1020, -60, 1575, 2565}, {.Stored = "standing"}};
    CommandButton cmdMostrar{*this,
                             "cmdMostrar",
                             {10320, 7530, 1425, 405},
                             {.Caption = u"MOSTRAR",
                              .BackColor = DarkGreen,
                              .Font = FontName::Arial,
                              .FontSize = 11.25,
                              .FontBold = true,
                              .Enabled = false,
                              .Default = true}};

    // The on-screen keyboard
    Label lblComentAngus{*this,
                         "lblComentAngus",
                         {9330, 1770, 2535, 705},
                         {.BackColor = White, .FontSize = 9.75, .FontBold = true, .Align = Alignment::Left}};
    Shape shpEmpujador1{*this, "shpEmpujador1", {540, 0, 495, 2540}, {.FillColor = Blue, .BorderColor = NoColor}};
    Shape shpMosOcul{*this, "shpMosOcul", {10230, 7470, 1605, 525}, ButtonPlate()};
    ControlArray<Label, 27> lblTecla{*this, "lblTecla", LetraTecla};
    ControlArray<Shape, 27> shpTecla{*this, "shpTecla", PlacaTecla};
    Line linTeclado{*this, "linTeclado", {9120, 5250, 0, 2760, Hidden}, {}};
    Label lblTeclado{*this, "lblTeclado", {8520, 5250, 3405, 2805, Hidden}, {.BackColor = 0xFFFFE1}};

    // Name, jokers, mode, clock
    Label lblNombre{*this, "lblNombre", {9630, 1260, 2325, 405}, Heading(u"", 13.5)};
    Label lblTapa2{*this, "lblTapa2", {1980, 7650, 735, 285, Hidden}, {.BorderStyle = 1}};
    Label lblTapa1{*this, "lblTapa1", {510, 7650, 1245, 285, Hidden}, {.BorderStyle = 1}};
    ControlArray<Label, 10> lblComodín{*this, "lblComodín", CasillaComodín};
    Shape Shape1{*this, "Shape1", {9150, 3300, 645, 1005}, {.BorderColor = DarkRed, .BorderWidth = 3}};
    Label Label8{*this, "Label8", {9660, 660, 585, 435}, {.BackColor = Green}};
    Label lblModo{
        *this, "lblModo", {240, 7620, 2745, 345}, ValueBox(u"Castellano e inglés", FontName::Arial, 12, true)};
    Label Label10{*this, "Label10", {780, 7170, 1665, 405}, Heading(u"Modo", 13.5)};
    Label lblTiempo{*this,
                    "lblTiempo",
                    {9630, 570, 2340, 555},
                    {.Caption = u"00:00:00",
                     .BackColor = Green,
                     .Font = FontName::Arial,
                     .FontSize = 21.75,
                     .FontBold = true,
                     .Align = Alignment::Left,
                     .BorderStyle = 1,
                     .Masked = 620}};
    Label lblMensajeTiem{*this, "lblMensajeTiem", {9630, 120, 2325, 375}, Heading(u"Tiempo indefinido", 12)};

    // Score, word, message
    Label lblPlenos{*this, "lblPlenos", {7590, 7410, 765, 555}, ValueBox(u"0", FontName::Arial, 20.25, false)};
    Label lblPuntos{*this, "lblPuntos", {4830, 7410, 825, 555}, ValueBox(u"0", FontName::Arial, 20.25, false)};
    Label Label7{*this, "Label7", {6210, 7500, 1305, 405}, Heading(u"Plenos:", 13.5)};
    Label Label3{*this, "Label3", {3450, 7500, 1305, 405}, Heading(u"Zarpis:", 13.5)};
    Label Label4{*this, "Label4", {240, 3240, 1215, 435}, Heading(u"Fallos:", 13.5)};
    Label lblNivel{*this, "lblNivel", {1920, 6060, 1035, 915}, ValueBox(u"", FontName::Arial, 36, true)};
    Label Label6{*this, "Label6", {690, 6240, 1185, 495}, Heading(u"Nivel:", 18)};
    Label Label5{
        *this, "Label5", {3630, 5280, 4335, 1815}, {.FontSize = 13.5, .FontBold = true, .Align = Alignment::Left}};
    Shape Shape4{
        *this, "Shape4", {3420, 5160, 4725, 2085}, {.FillColor = Green, .BorderColor = Olive, .BorderWidth = 5}};
    Label lblPalabra{*this, "lblPalabra", {1920, 5070, 1035, 915}, ValueBox(u"", FontName::Arial, 36, true)};
    Label Label2{*this, "Label2", {240, 5250, 1635, 495}, Heading(u"Palabra:", 18)};
    ControlArray<Label, 7> lblError{*this, "lblError", CasillaError};
    ControlArray<Label, 10> lblLetra{*this, "lblLetra", CasillaLetra};
    ControlArray<Shape, 10> shpRecuadro{*this, "shpRecuadro", RecuadroLetra};

    // The stage
    Shape shpEmpujador2{*this,
                        "shpEmpujador2",
                        {0, 1020, 795, 495},
                        {.Shape = Figure::Rectangle, .FillColor = Blue, .BorderColor = NoColor}};
    Label lblMensajeError{*this,
                          "lblMensajeError",
                          {3060, 210, 4995, 2205, Hidden},
                          ValueBox(u"Se ha producido un error. Posiblemente se deba a que el programa no ha sido "
                                   u"correctamente instalado o a que se ha eliminado algún archivo. Desinstala el "
                                   u"juego e instálalo de nuevo ejecutando el programa de instalación (zarpi.exe).",
                                   FontName::MSSansSerif, 12, true, Red, White)};
    Label lblMenComienzo{*this,
                         "lblMenComienzo",
                         {3090, 750, 4935, 1095},
                         ValueBox(u"Selecciona un modo de juego y un tiempo por palabra. Después, pulsa 'Nuevo' o "
                                  u"Ctrl + N.",
                                  FontName::MSSansSerif, 12, true, Blue, White)};
    Image Image2{*this, "Image2", {8580, 2970, 465, 5295}, {.Stored = "cliff"}};
    Image Image1{*this, "Image1", {30, 2520, 9015, 465}, {.Stored = "ledge"}};
    Label lblComentario{*this,
                        "lblComentario",
                        {2610, 0, 3045, 1995},
                        {.BackColor = White, .FontSize = 12, .FontBold = true, .Align = Alignment::Left}};
    Label lblComentCaída{
        *this, "lblComentCaída", {9180, 4380, 2595, 1275}, {.BackColor = White, .FontSize = 9.75, .FontBold = true}};
    ControlArray<Image, 6> picFondo{*this, "picFondo", Fondo};

    // Menus
    Menu mnuJuego{*this, "mnuJuego", {.Caption = u"&Juego"}};
    Menu mnuNuevo{mnuJuego, "mnuNuevo", {.Caption = u"Nuevo", .Shortcut = ControlKey('N'), .Offer = u"Nueva partida"}};
    Menu mnuSeparaci0{mnuJuego, "mnuSeparaci0", Separador()};
    Menu mnuReanudar{mnuJuego, "mnuReanudar", {.Caption = u"Reanudar partida", .Shortcut = ControlKey('R')}};
    Menu mnuSeparaci1{mnuJuego, "mnuSeparaci1", Separador()};
    Menu mnuGuardar{
        mnuJuego, "mnuGuardar", {.Caption = u"Guardar partida", .Shortcut = ControlKey('G'), .Enabled = false}};
    Menu mnuSeparaci2{mnuJuego, "mnuSeparaci2", Separador()};
    Menu mnuÚltimas{mnuJuego, "mnuÚltimas", {.Caption = u"Últimas partidas", .Shortcut = ControlKey('U')}};
    Menu mnuSeparaci3{mnuJuego, "mnuSeparaci3", Separador()};
    Menu mnuSonido{mnuJuego,
                   "mnuSonido",
                   {.Caption = u"Sonido", .Shortcut = ControlKey('D'), .Checked = true, .Mark = MenuMark::Own}};
    Menu mnuSeparaci4{mnuJuego, "mnuSeparaci4", Separador()};
    Menu mnuSalir{mnuJuego, "mnuSalir", {.Caption = u"Salir", .Shortcut = ControlKey('S')}};

    Menu mnuModos{*this, "mnuModos", {.Caption = u"&Modos"}};
    Menu mnuCasteInglés{mnuModos,
                        "mnuCasteInglés",
                        {.Caption = u"Castellano e inglés (15 y 15). 6 niveles",
                         .Shortcut = ControlKey('E'),
                         .Checked = true,
                         .Mark = MenuMark::OneOf}};
    Menu mnuSeparaci5{mnuModos, "mnuSeparaci5", Separador()};
    Menu mnuIngléscaste{
        mnuModos,
        "mnuIngléscaste",
        {.Caption = u"Inglés y castellano (15 y 15). 6 niveles", .Shortcut = ControlKey('Y'), .Mark = MenuMark::OneOf}};
    Menu mnuSeparaci6{mnuModos, "mnuSeparaci6", Separador()};
    Menu mnuCastellano{
        mnuModos,
        "mnuCastellano",
        {.Caption = u"Castellano (las 30). 3 niveles", .Shortcut = ControlKey('C'), .Mark = MenuMark::OneOf}};
    Menu mnuSeparaci7{mnuModos, "mnuSeparaci7", Separador()};
    Menu mnuInglés{mnuModos,
                   "mnuInglés",
                   {.Caption = u"Inglés (las 30). 3 niveles", .Shortcut = ControlKey('I'), .Mark = MenuMark::OneOf}};
    Menu mnuSeparaci8{mnuModos, "mnuSeparaci8", Separador()};
    Menu mnuCasteInglésAlter{mnuModos,
                             "mnuCasteInglésAlter",
                             {.Caption = u"Castellano o inglés (una de cada). 3 niveles",
                              .Shortcut = ControlKey('O'),
                              .Mark = MenuMark::OneOf}};

    Menu mnuTiempo{*this, "mnuTiempo", {.Caption = u"&Tiempo"}};
    Menu mnuIndefinido{
        mnuTiempo,
        "mnuIndefinido",
        {.Caption = u"Indefinido", .Shortcut = PlainKey(KeyF5), .Checked = true, .Mark = MenuMark::OneOf}};
    Menu mnuSeparaci9{mnuTiempo, "mnuSeparaci9", Separador()};
    Menu mnuUnMinuto{
        mnuTiempo, "mnuUnMinuto", {.Caption = u"1 minuto", .Shortcut = PlainKey(KeyF1), .Mark = MenuMark::OneOf}};
    Menu mnuSeparaci10{mnuTiempo, "mnuSeparaci10", Separador()};
    Menu mnuDosMinutos{mnuTiempo,
                       "mnuDosMinutos",
                       {.Caption = u"2 minutos", .Shortcut = PlainKey(KeyF1 + 1), .Mark = MenuMark::OneOf}};
    Menu mnuSeparaci11{mnuTiempo, "mnuSeparaci11", Separador()};
    Menu mnuTresMinutos{mnuTiempo,
                        "mnuTresMinutos",
                        {.Caption = u"3 minutos", .Shortcut = PlainKey(KeyF1 + 2), .Mark = MenuMark::OneOf}};
    Menu mnuSeparaci12{mnuTiempo, "mnuSeparaci12", Separador()};
    Menu mnuCuatroMinutos{mnuTiempo,
                          "mnuCuatroMinutos",
                          {.Caption = u"4 minutos", .Shortcut = PlainKey(KeyF1 + 3), .Mark = MenuMark::OneOf}};

    Menu mnuCuadros{*this, "mnuCuadros", {.Caption = u"&Cuadros de honor"}};
    Menu mnuCasteInglésHonor{mnuCuadros, "mnuCasteInglésHonor", {.Caption = u"Castellano e inglés"}};
    Menu mnuSeparaci13{mnuCuadros, "mnuSeparaci13", Separador()};
    Menu mnuInglésCasteHonor{mnuCuadros, "mnuInglésCasteHonor", {.Caption = u"Inglés y castellano"}};
    Menu mnuSeparaci14{mnuCuadros, "mnuSeparaci14", Separador()};
    Menu mnuCasteHonor{mnuCuadros, "mnuCasteHonor", {.Caption = u"Castellano"}};
    Menu mnuSeparaci15{mnuCuadros, "mnuSeparaci15", Separador()};
    Menu mnuInglésHonor{mnuCuadros, "mnuInglésHonor", {.Caption = u"Inglés"}};
    Menu mnuSeparaci16{mnuCuadros, "mnuSeparaci16", Separador()};
    Menu mnuCasteoInglésHonor{mnuCuadros, "mnuCasteoInglésHonor", {.Caption = u"Castellano o inglés"}};

    Menu mnuAyuda{*this, "mnuAyuda", {.Caption = u"&Ayuda"}};
    Menu mnuNormas{mnuAyuda, "mnuNormas", {.Caption = u"Normas del juego"}};
    Menu mnuSeparaci17{mnuAyuda, "mnuSeparaci17", Separador()};
    Menu mnuAcerca{mnuAyuda, "mnuAcerca", {.Caption = u"Acerca de..."}};

    // Timers, in milliseconds
    Timer SaltoZarpi1{*this, "SaltoZarpi1", 150};
    Timer SaltoZarpi2{*this, "SaltoZarpi2", 150};
    Timer SaltoZarpi3{*this, "SaltoZarpi3", 150};
    Timer AngustiaZarpi1{*this, "AngustiaZarpi1", 300};
    Timer AngustiaZarpi2{*this, "AngustiaZarpi2", 300};
    Timer CaídaZarpi1{*this, "CaídaZarpi1", 500};
    Timer CaídaZarpi2{*this, "CaídaZarpi2", 150};
    Timer CaídaZarpi3{*this, "CaídaZarpi3", 150};
    Timer CaídaZarpi4{*this, "CaídaZarpi4", 150};
    Timer CaídaZarpi5{*this, "CaídaZarpi5", 500};
    Timer EnfadoZarpi1{*this, "EnfadoZarpi1", 700};
    Timer EnfadoZarpi2{*this, "EnfadoZarpi2", 700};
    Timer EnfadoZarpi3{*this, "EnfadoZarpi3", 2500};
    Timer EnfadoZarpi4{*this, "EnfadoZarpi4", 300};
    Timer EnfadoZarpi5{*this, "EnfadoZarpi5", 300};
    Timer tmrComodín1{*this, "tmrComodín1", 300, false, &tmrComodín2};
    Timer tmrComodín2{*this, "tmrComodín2", 300};
    Timer tmrTiempo{*this, "tmrTiempo", 100};

    // Media channels
    MediaChannel sonComodín{.Name = "sonComodín", .FileName = {}, .OverMusic = true};
    MediaChannel sonCaída{.Name = "sonCaída", .FileName = {}, .OverMusic = true};
    MediaChannel sonPal16{.Name = "sonPal16", .FileName = {}, .OverMusic = true};
    MediaChannel sonPrisa{.Name = "sonPrisa", .FileName = {}, .OverMusic = true};
    MediaChannel sonTeclado{"sonTeclado", {}};
    std::array<MediaChannel, 12> sonMusica = CanalesMusica();

private:
    using LabelDesign = std::pair<Place, LabelLook>;
    using ShapeDesign = std::pair<Place, ShapeLook>;

    static MenuLook Separador() { return {.Caption = u"-"}; }
    static LabelDesign LetraTecla(int i);
    static ShapeDesign PlacaTecla(int i);
    static LabelDesign CasillaComodín(int i);
    static LabelDesign CasillaError(int i);
    static LabelDesign CasillaLetra(int i);
    static ShapeDesign RecuadroLetra(int i);
    static std::pair<Place, PictureLook> Fondo(int i);
    static std::array<MediaChannel, 12> CanalesMusica();
};

}  // namespace juego
