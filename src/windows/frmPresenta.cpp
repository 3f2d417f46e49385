#include "windows/frmPresenta.h"

namespace juego {

frmPresenta::frmPresenta(Zarpi& zarpi, Forms& forms)
    : Form("frmPresenta", {.Caption = u"Juego de Zarpi (pulsa una tecla)",
                           .Width = 9525,
                           .Height = 5835,
                           .Background = "title",
                           .Icon = "icon",
                           .KeyPreview = true,
                           .FingerHint = u"Toca para empezar"}),
      z(zarpi),
      forms(forms) {
    OnLoad = [this] {
        fEntrar = 0;
        this->forms.Hide(z);
    };
    OnClick = [this] { Entrar(); };
    for (PictureBox* figure : {&Picture1, &Picture2, &Picture3, &Picture4}) figure->Click = OnClick;
    OnKeyPress = [this](int keyAscii) {
        if (keyAscii > 1) Entrar();
    };
    cmdSalir.Click = [this] { this->forms.Unload(*this); };
    OnQueryUnload = [this] {
        if (fEntrar == 0) this->forms.End();
    };
}

void frmPresenta::Entrar() {
    forms.Show(z);
    fEntrar = 1;
    forms.Unload(*this);
}

}  // namespace juego
