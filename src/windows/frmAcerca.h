#pragma once

#include <array>

#include "game/Zarpi.h"

namespace juego {

/// Who made the game, with five letter boxes to play with.
class frmAcerca : public Form {
public:
    frmAcerca(Zarpi& zarpi, Forms& forms, Media& media, Web& web);

    CommandButton cmdAceptar{*this, "cmdAceptar", {1590, 5910, 1425, 405}, AcceptButton()};
    PictureBox picPubli1{*this, "picPubli1", {900, 6990, 2775, 900}, {.Stored = "publi"}};
    ControlArray<PictureBox, 8> picAcerca{*this, "picAcerca", Figura};
    Label Label2{
        *this,
        "Label2",
        {1230, 210, 2115, 465},
        {.Caption = u" CREADO Y   PROGRAMADO POR", .BackColor = 0xFFFF80, .ForeColor = Blue, .FontBold = true}};
    Label Label3{*this, "Label3", {1230, 750, 2115, 585}, Nombre(u"Equipo de Zarpi")};
    Line Line1{*this, "Line1", {1200, 1470, 2190, 0}, {.BorderColor = Blue, .BorderWidth = 3}};
    Label Label4{*this,
                 "Label4",
                 {870, 1620, 2835, 675},
                 ValueBox(u"Todos los derechos reservados.\nVersión 1.5", FontName::MSSansSerif, 8.25, true, White)};
    Label Label9{*this, "Label9", {630, 2640, 465, 555}, Letra()};
    Label Label10{*this, "Label10", {1350, 2640, 435, 555}, Letra()};
    Label Label11{*this, "Label11", {2070, 2640, 435, 555}, Letra()};
    Label Label12{*this, "Label12", {2790, 2640, 435, 555}, Letra()};
    Label Label13{*this, "Label13", {3510, 2640, 435, 555}, Letra()};
    Shape Shape1{*this, "Shape1", {540, 2580, 585, 705}, Placa()};
    Shape Shape2{*this, "Shape2", {1260, 2580, 585, 705}, Placa()};
    Shape Shape3{*this, "Shape3", {1980, 2580, 585, 705}, Placa()};
    Shape Shape4{*this, "Shape4", {2700, 2580, 585, 705}, Placa()};
    Shape Shape5{*this, "Shape5", {3420, 2580, 585, 705}, Placa()};
    Label Label5{*this, "Label5", {1230, 3540, 2115, 285}, Oficio(u"DIBUJOS")};
    Label Label6{*this, "Label6", {1230, 3900, 2115, 615}, Nombre(u"Equipo de Zarpi")};
    Label Label7{*this, "Label7", {1230, 4710, 2115, 285}, Oficio(u"VOCABULARIO")};
    Label Label8{*this, "Label8", {1230, 5070, 2115, 585}, Nombre(u"Equipo de Zarpi")};
    Label Label1{*this, "Label1", {900, 6600, 2775, 315}, Nombre(u"Visita nuestra página")};
    Shape shpAceptar{*this, "shpAceptar", {1500, 5850, 1605, 525}, ButtonPlate()};

private:
    static constexpr std::size_t kBoxes = 5;
    static std::pair<Place, PictureLook> Figura(int i);
    static LabelLook Nombre(TextView caption);
    static LabelLook Oficio(TextView caption);
    static LabelLook Letra();
    static ShapeLook Placa() { return {.FillColor = Green}; }
    void Girar(std::size_t box);

    Zarpi& z;
    Media& media;
    std::array<Label*, kBoxes> boxes = {&Label9, &Label10, &Label11, &Label12, &Label13};
    std::array<std::size_t, kBoxes> turns{};  ///< the word whose letter each box shows
};

}  // namespace juego
