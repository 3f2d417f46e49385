#pragma once

#include "game/Zarpi.h"
#include "records/Registros.h"
#include "sound/Sonido.h"

namespace juego {

/// The victory screen. It opens the ceremony of a won game; its closing enters the game into the honour board and goes
/// on with the diploma and the board.
class frmFecha : public Form {
public:
    /// `ceremonia` shows what follows, while this window is still on the screen.
    frmFecha(Zarpi& zarpi, Forms& forms, Files& files, Media& media, const Clock& clock, Música& música,
             std::function<void()> ceremonia);

    Text FechaCua;  ///< date of the win

    CommandButton cmdAceptar{*this, "cmdAceptar", {3600, 5850, 1425, 405}, AcceptButton()};
    TextBox txtFecha{*this,
                     "txtFecha",
                     {3450, 5130, 1725, 435},
                     {.MaxLength = 10, .Locked = true, .FontBold = true, .Align = Alignment::Centre}};
    ControlArray<PictureBox, 18> picEstrella{*this, "picEstrella", Estrella};
    PictureBox Picture1{*this, "Picture1", {1500, 4530, 615, 960}, SmallZarpi()};
    PictureBox Picture2{*this, "Picture2", {2340, 5580, 615, 960}, SmallZarpi()};
    PictureBox Picture3{*this, "Picture3", {6480, 4530, 615, 960}, SmallZarpi()};
    PictureBox Picture4{*this, "Picture4", {5640, 5580, 615, 960}, SmallZarpi()};
    Label Label1{*this, "Label1", {1980, 1500, 4575, 525}, Heading(u"¡ENHORABUENA!", 24)};
    Label Label3{*this,
                 "Label3",
                 {1500, 2370, 5595, 615},
                 {.Caption = u"¡Lo has conseguido!", .ForeColor = Navy, .FontSize = 24, .FontBold = true}};
    Shape Shape1{
        *this, "Shape1", {1350, 1050, 5895, 2355}, {.FillColor = Cream, .BorderColor = Olive, .BorderWidth = 3}};
    Label Label4{*this, "Label4", {3450, 4770, 1725, 285}, Heading(u"FECHA", 9.75)};
    Shape shpAceptar{*this, "shpAceptar", {3510, 5790, 1605, 525}, ButtonPlate()};
    Timer tmrTimer1{*this, "tmrTimer1", 300, true, &tmrTimer2};
    Timer tmrTimer2{*this, "tmrTimer2", 300, true};
    MediaChannel sonConseguido{.Name = "sonConseguido", .FileName = {}, .OverMusic = true};

private:
    static std::pair<Place, PictureLook> Estrella(int i);
    void Form_Load();
    FilaHonor Fila() const;
    void Form_QueryUnload();
    void MostrarEstrellas(bool visible, Timer& own, Timer& next);

    Zarpi& z;
    Files& files;
    Media& media;
    const Clock& clock;
    Música& música;
    std::function<void()> ceremonia;
};

}  // namespace juego
