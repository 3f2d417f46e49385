#pragma once

#include "game/Zarpi.h"

namespace juego {

/// The title screen. Any key or click goes on to the game; Esc or the closing cross ends the program.
class frmPresenta : public Form {
public:
    frmPresenta(Zarpi& zarpi, Forms& forms);

    PictureBox Picture1{*this, "Picture1", {630, 1920, 615, 960}, SmallZarpi()};
    PictureBox Picture2{*this, "Picture2", {630, 3060, 615, 960}, SmallZarpi()};
    PictureBox Picture3{*this, "Picture3", {8310, 1920, 615, 960}, SmallZarpi()};
    PictureBox Picture4{*this, "Picture4", {8310, 3060, 615, 960}, SmallZarpi()};
    CommandButton cmdSalir{
        *this, "cmdSalir", {660, 2250, 495, 285}, {.Caption = u"Salir", .Cancel = true, .Covered = true}};

private:
    void Entrar();

    Zarpi& z;
    Forms& forms;
    Integer fEntrar = 0;  ///< 1 once the player goes on to the game
};

}  // namespace juego
