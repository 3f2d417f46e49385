#pragma once

#include "game/Reglas.h"
#include "game/Zarpi.h"

namespace juego {

/// The tally of the word just completed. Its load carries out the scoring; after that a good result blinks.
class frmPuntos : public Form {
public:
    frmPuntos(Zarpi& zarpi, Forms& forms, Media& media);

    CommandButton cmdAceptar{*this, "cmdAceptar", {2850, 3900, 1425, 405}, AcceptButton()};
    ControlArray<PictureBox, 5> picPuntos{*this, "picPuntos", ZarpiPalabra};
    ControlArray<PictureBox, 10> picBonifi{*this, "picBonifi", ZarpiBonificación};
    Label Label1{*this, "Label1", {210, 120, 4065, 555}, Heading(u"Zarpis por palabra: 5", 18)};
    Label Label2{*this, "Label2", {210, 1920, 4725, 585}, Heading(u"", 18)};
    Label Label3{*this, "Label3", {5280, 960, 1395, 465}, Heading(u"TOTAL", 18)};
    Label Label4{*this,
                 "Label4",
                 {5280, 1470, 1395, 1065},
                 {.BackColor = Green, .Font = FontName::Arial, .FontSize = 48, .FontBold = true}};
    Label Label5{*this,
                 "Label5",
                 {4380, 90, 2475, 615, Hidden},
                 ValueBox(u"¡PLENO!", FontName::Arial, 21.75, true, Yellow, Red)};
    Shape shpAceptar{*this, "shpAceptar", {2760, 3840, 1605, 525}, ButtonPlate()};
    Timer Timer1{*this, "Timer1", 300, false, &Timer2};
    Timer Timer2{*this, "Timer2", 300};
    MediaChannel sonPleno{.Name = "sonPleno", .FileName = {}, .OverMusic = true};
    MediaChannel sonExtra{.Name = "sonExtra", .FileName = {}, .OverMusic = true};
    MediaChannel sonZarpi200{.Name = "sonZarpi200", .FileName = {}, .OverMusic = true};

private:
    static std::pair<Place, PictureLook> ZarpiPalabra(int i);
    static std::pair<Place, PictureLook> ZarpiBonificación(int i);
    void Form_Load();
    void Puntuar();
    void AnunciarPleno();
    void ComodínPlenos();
    void Comodín200();
    bool Pasa200() const { return z.puntos > reglas::ZarpisComodín && !z.f200; }
    void MostrarBonificación(bool visible);
    void Parpadear();

    Zarpi& z;
    Media& media;
    Integer Bonificación = 0;  ///< 10 for a pleno, else 7 less the misses
    Integer VecesParpadeo = 0;
    bool fExtraAnunciado = false;  ///< the joker of the third pleno has had its message
};

}  // namespace juego
