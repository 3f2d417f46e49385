#pragma once

#include "game/Zarpi.h"

namespace juego {

/// Asks who is playing. Its work is done while it closes, whichever way that is.
class frmNombre : public Form {
public:
    frmNombre(Zarpi& zarpi, Forms& forms);

    TextBox txtNombre{*this, "txtNombre", {1200, 270, 2325, 405}, {.MaxLength = 14, .FontSize = 12, .TabIndex = 1}};
    CommandButton cmdAceptar{*this, "cmdAceptar", {1680, 1020, 1425, 405}, AcceptButton(2)};
    Shape shpAceptar{*this, "shpAceptar", {1590, 960, 1605, 525}, ButtonPlate()};

private:
    void Form_QueryUnload();

    Zarpi& z;
};

}  // namespace juego
