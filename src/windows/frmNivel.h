#pragma once

#include "game/Zarpi.h"

namespace juego {

/// The briefing that opens a level: the hero's greeting, what the level is like, and by the size of five letters what
/// help it gives.
class frmNivel : public Form {
public:
    frmNivel(Zarpi& zarpi, Forms& forms);

    CommandButton cmdAceptar{*this, "cmdAceptar", {1560, 3900, 1425, 405}, AcceptButton()};
    PictureBox Picture1{*this, "Picture1", {6300, 1140, 1575, 2565}, {.Stored = "standing"}};
    Label Label1{*this, "Label1", {450, 390, 3375, 885}, ValueBox(u"", FontName::Arial, 36, true, Navy, White)};
    Label Label2{
        *this, "Label2", {630, 1800, 5175, 1545}, {.FontSize = 12, .FontBold = true, .Align = Alignment::Left}};
    Shape Shape1{*this, "Shape1", {330, 1650, 5655, 1755}, {.FillColor = Green}};
    Label Label4{*this, "Label4", {6240, 360, 1755, 435}, {}};
    Shape Shape3{*this, "Shape3", {5940, 60, 2235, 945}, {.Shape = Figure::Oval, .FillColor = Green}};
    ControlArray<Label, 5, 0> Label3{*this, "Label3", LetraNombre};
    ControlArray<Shape, 5, 0> Shape2{*this, "Shape2", CasillaNombre};
    Shape shpAceptar{*this, "shpAceptar", {1470, 3840, 1605, 525}, ButtonPlate()};

private:
    static std::pair<Place, LabelLook> LetraNombre(int i);
    static std::pair<Place, ShapeLook> CasillaNombre(int i);
    void Form_Load();
    void Reducir(Label& letter);

    Zarpi& z;
};

}  // namespace juego
