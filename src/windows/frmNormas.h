#pragma once

#include "game/Estilos.h"
#include "platform/Services.h"
#include "windows/Verticales.h"

namespace juego {

/// The rules of the game. A name in bold and its text are two labels on one spot: blanks at the head of the text leave
/// room for the name.
class frmNormas : public Form {
public:
    explicit frmNormas(Forms& forms)
        : Form("frmNormas", {.Caption = u"Normas del juego",
                             .Width = 10275,
                             .Height = 8025,
                             .Background = "normas",
                             .Icon = "icondialogo"}) {
        Narrow = StackedOrder(*this, verticales::Normas);
        cmdAceptar.Click = [this, &forms] { forms.Unload(*this); };
    }

    CommandButton cmdAceptar{*this, "cmdAceptar", {4530, 7410, 1425, 405}, AcceptButton()};
    PictureBox Picture1{*this, "Picture1", {330, 60, 615, 960}, SmallZarpi()};
    PictureBox Picture2{*this, "Picture2", {9270, 60, 615, 960}, SmallZarpi()};
    Label Label1{*this, "Label1", {2580, 210, 5085, 645}, Título(24, u"Normas del juego")};
    Label Label3{*this, "Label3", {450, 1170, 1425, 285}, Apartado(9.75, u"Introducción:")};
    Label Label4{*this, "Label4", {420, 3270, 645, 225}, Apartado(8.25, u"Modos:")};
    Label Label5{*this, "Label5", {600, 3570, 1695, 225}, Negrita(8.25, u"Castellano e inglés. ")};
    Label Label7{*this, "Label7", {600, 4500, 1695, 225}, Negrita(8.25, u"Inglés y castellano.")};
    Label Label9{*this, "Label9", {600, 5430, 975, 225}, Negrita(8.25, u"Castellano. ")};
    Label Label11{*this, "Label11", {600, 6150, 615, 225}, Negrita(8.25, u"Inglés.")};
    Label Label13{*this, "Label13", {600, 6870, 1695, 225}, Negrita(8.25, u"Castellano o inglés. ")};
    Label Label15{*this, "Label15", {3840, 3270, 705, 225}, Apartado(8.25, u"Tiempo:")};
    Label Label17{*this, "Label17", {3840, 4500, 1035, 225}, Apartado(8.25, u"Puntuación:")};
    Label Label19{*this, "Label19", {3840, 5730, 675, 225}, Apartado(8.25, u"Plenos:")};
    Label Label21{*this, "Label21", {7230, 3300, 1035, 225}, Apartado(8.25, u"Comodines:")};
    Label Label24{*this, "Label24", {7230, 5700, 1395, 225}, Apartado(8.25, u"Guardar partida:")};
    Label Label26{*this, "Label26", {7230, 6960, 1575, 225}, Apartado(8.25, u"Reanudar partida:")};
    Label Label2{
        *this,
        "Label2",
        {450, 1200, 9345, 1695},
        Párrafo(9.75,
                u"                                  Este programa está basado en el conocido Juego del Ahorcado. "
                u"El objetivo es acertar las 30 palabras que se proponen; para ello debes intentar resolver cada "
                u"una de ellas cometiendo menos de 7 fallos, evitando, así, que nuestro amigo Zarpi se caiga por "
                u"el precipicio. Cuantos más plenos consigas, mejor, ya que así obtendrás comodines extra y "
                u"muchos zarpis de bonificación. La base de datos de Zarpi contiene 4.000 palabras en castellano "
                u"y otras 4.000 en inglés. La mayoría de éstas son sustantivos, adjetivos y verbos en infinitivo "
                u"y participio, y no hay nombres propios. Durante la partida, Zarpi te irá dando ánimos y alguna "
                u"pista que otra. ¡Adelante, y a por el PREMIO!")};
    Label Label6{*this,
                 "Label6",
                 {600, 3570, 2595, 855},
                 Párrafo(8.25,
                         u"                                      Dispone de 6 niveles de 5 palabras cada uno. Las 15 "
                         u"primeras, en castellano, y las 15 siguientes, en inglés.")};
    Label Label8{*this,
                 "Label8",
                 {600, 4500, 2595, 855},
                 Párrafo(8.25,
                         u"                                      Dispone de 6 niveles de 5 palabras cada uno. Las 15 "
                         u"primeras, en inglés, y las 15 siguientes, en castellano.")};
    Label Label10{
        *this,
        "Label10",
        {600, 5430, 2595, 615},
        Párrafo(8.25, u"                      Dispone de 3 niveles de 10 palabras cada uno, y todas en castellano.")};
    Label Label12{*this,
                  "Label12",
                  {600, 6150, 2595, 615},
                  Párrafo(8.25, u"              Dispone de 3 niveles de  10 palabras cada uno, y todas en inglés.")};
    Label Label14{
        *this,
        "Label14",
        {600, 6870, 2595, 855},
        Párrafo(8.25,
                u"                                      Dispone de 3 niveles de 10 palabras cada uno. Una palabra "
                u"en castellano y otra en inglés, y así hasta el final.")};
    Label Label16{
        *this,
        "Label16",
        {4050, 3570, 2505, 855},
        Párrafo(8.25,
                u"Debes acertar cada palabra antes del tiempo establecido: Indefinido, 1 minuto, 2 minutos, 3 "
                u"minutos o    4 minutos.")};
    Label Label18{
        *this,
        "Label18",
        {4050, 4800, 2505, 765},
        Párrafo(8.25,
                u"Ganarás 5 zarpis por palabra acertada más los de bonificación. Por cada fallo, un zarpi menos "
                u"de bonificación.")};
    Label Label20{
        *this,
        "Label20",
        {4050, 6030, 2505, 765},
        Párrafo(8.25,
                u"El pleno se consigue cuando logras acertar la palabra sin cometer fallos. Ganarás 10 zarpis de "
                u"bonificación.")};
    Label Label22{
        *this,
        "Label22",
        {7440, 3600, 2505, 2175},
        Párrafo(8.25,
                u"Son los 3 recuadros con una interrogación en su interior. Puedes usarlos haciendo clic en el "
                u"primero y después pulsando en cualquiera de las casillas vacías de la palabra. Obtendrás un "
                u"comodín extra en los siguientes casos: a) cada 3 plenos conseguidos; b) cuando llegues a la "
                u"palabra 16, y c) cuando superes los 200 zarpis.")};
    Label Label23{
        *this,
        "Label23",
        {7440, 6000, 2505, 795},
        Párrafo(8.25,
                u"A partir de la tercera palabra, puedes guardar la partida si lo deseas, pero siempre antes de "
                u"empezar una nueva palabra.")};
    Label Label25{*this,
                  "Label25",
                  {7440, 7260, 2505, 405},
                  Párrafo(8.25, u"Sólo puedes reanudar la partida antes de empezar un nuevo juego.")};
    Shape Shape1{*this, "Shape1", {240, 1080, 9765, 1905}, Panel()};
    Shape Shape2{*this, "Shape2", {240, 3090, 3105, 4785}, Panel()};
    Shape Shape3{*this, "Shape3", {3630, 3090, 3105, 3975}, Panel()};
    Shape Shape4{*this, "Shape4", {7020, 3090, 3015, 4785}, Panel()};
    Shape shpAceptar{*this, "shpAceptar", {4440, 7350, 1605, 525}, ButtonPlate()};

private:
    static LabelLook Título(double size, TextView caption) {
        LabelLook look = Heading(caption, size);
        look.BackColor = Blue;
        return look;
    }
    static LabelLook Apartado(double size, TextView caption) {
        LabelLook look = Heading(caption, size);
        look.Align = Alignment::Left;
        look.Snug = true;
        return look;
    }
    static LabelLook Párrafo(double size, TextView caption) {
        return {.Caption = Text(caption), .BackColor = Cream, .FontSize = size, .Align = Alignment::Left};
    }
    static LabelLook Negrita(double size, TextView caption) {
        LabelLook look = Párrafo(size, caption);
        look.FontBold = true;
        look.Snug = true;
        return look;
    }
    static ShapeLook Panel() { return {.FillColor = Cream, .BorderColor = Olive, .BorderWidth = 3}; }
};

}  // namespace juego
