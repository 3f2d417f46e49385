#pragma once

#include "game/Zarpi.h"

namespace juego {

/// The prize of a won game: a diploma behind two curtains, which the cursor keys open, to be printed three times at
/// most.
class frmDiploma : public Form {
public:
    /// `fecha` is the date of the win, set before the diploma opens.
    frmDiploma(Zarpi& zarpi, Forms& forms, Printer& printer, Media& media, const Text& fecha);

    CommandButton cmdAceptar{*this, "cmdAceptar", {3690, 7440, 1425, 405}, AcceptButton()};
    CommandButton cmdImprimir{*this, "cmdImprimir", {6510, 7440, 1425, 405}, PlateButton(u"IMPRIMIR", 2)};
    TextBox Text6{*this,
                  "Text6",
                  {2010, 3330, 7605, 525},
                  {.Text = u"Pulsa las teclas del cursor para correr las cortinas.",
                   .Locked = true,
                   .ForeColor = Blue,
                   .FontSize = 14.25,
                   .FontBold = true,
                   .Align = Alignment::Centre}};
    PictureBox Picture3{*this, "Picture3", {5895, 360, 5400, 6570}, {.Stored = "curtain"}};
    PictureBox Picture2{*this, "Picture2", {420, 360, 5400, 6570}, {.Stored = "curtain"}};
    PictureBox Picture4{*this, "Picture4", {1440, 3030, 615, 960}, SmallZarpi()};
    PictureBox Picture5{*this, "Picture5", {1440, 4170, 615, 960}, SmallZarpi()};
    PictureBox Picture6{*this, "Picture6", {9750, 3030, 615, 960}, SmallZarpi()};
    PictureBox Picture7{*this, "Picture7", {9750, 4170, 615, 960}, SmallZarpi()};
    TextBox Text1{*this, "Text1", {6540, 1920, 2445, 525}, Hueco(14.25)};
    TextBox Text2{*this, "Text2", {4650, 3570, 3195, 525}, Hueco(14.25)};
    TextBox Text3{*this, "Text3", {5310, 4320, 1155, 525}, Hueco(18)};
    TextBox Text4{*this, "Text4", {3270, 5130, 585, 525}, Hueco(18)};
    TextBox Text5{*this, "Text5", {6390, 5190, 1935, 525}, Hueco(14.25)};
    PictureBox picDiploma1{*this, "picDiploma1", {510, 360, 10575, 6575}, {.Stored = "diploma1"}};
    PictureBox picDiploma2{*this, "picDiploma2", {510, 360, 10575, 6575}, {.Stored = "diploma2"}};
    Shape Shape1{*this,
                 "Shape1",
                 {360, 330, 10905, 6400},
                 {.Shape = Figure::Rectangle, .BorderColor = DarkRed, .BorderWidth = 3}};
    Shape shpAceptar{*this, "shpAceptar", {3600, 7380, 1605, 525}, ButtonPlate()};
    Shape shpImprimir{*this, "shpImprimir", {6420, 7380, 1605, 525}, ButtonPlate()};
    MediaChannel sonDiploma{.Name = "sonDiploma", .FileName = {}, .OverMusic = true};

private:
    static TextBoxLook Hueco(double size);
    void Form_Load();
    void Form_KeyDown(int keyCode);
    [[nodiscard]] std::optional<Order> Estrecho(const Room& room) const;
    [[nodiscard]] Order Tumbado(const Room& room) const;
    void CorrerCortinas(int step);
    void cmdImprimir_Click();

    Zarpi& z;
    Forms& forms;
    Printer& printer;
    Media& media;
    const Text& fecha;
    Integer AnchoCortina = 5400;  ///< width of both curtains, twips
    Integer IzqCortina = 5830;    ///< Left of the right one
    Integer NúmCopias = 0;        ///< printed in this showing
};

}  // namespace juego
