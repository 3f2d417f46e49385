#pragma once

#include <functional>

#include "records/PartidasGuardadas.h"
#include "windows/frmGuardar.h"

namespace juego {

/// What a resume asks of the engine.
struct AccionesReanudar {
    std::function<void(int modo)> ElegirModo;
    std::function<void(int minutos)> ElegirTiempo;
    std::function<void()> NuevoReanudar;
};

/// Chooses a saved game and, with its password, takes it up again. A resumed game is no longer stored.
class frmReanudar : public Form {
public:
    frmReanudar(Zarpi& zarpi, Forms& forms, Dialogs& dialogs, Files& files, ÍndicesPalabras índices,
                AccionesReanudar acciones);

    CommandButton cmdReanudar{*this, "cmdReanudar", {1350, 5430, 1425, 405}, DefaultButton(u"REANUDAR", 2)};
    CommandButton cmdCancelar{*this, "cmdCancelar", {3720, 5430, 1425, 405}, CancelButton(3)};
    ListBox lstLista{*this, "lstLista", {240, 570, 1785, 1260}, {.FontBold = true, .TabIndex = 4}};
    TextBox txtContraseña{*this, "txtContraseña", {2910, 4410, 2445, 435}, {.Password = true, .TabIndex = 1}};
    PictureBox Picture1{*this, "Picture1", {480, 4200, 615, 960}, SmallZarpi()};
    PictureBox Picture2{*this, "Picture2", {5580, 4200, 615, 960}, SmallZarpi()};
    Label Label5{*this, "Label5", {2160, 300, 1095, 255}, FieldName(u"Nombre:")};
    Label Label1{*this, "Label1", {3420, 240, 2415, 405}, Valor()};
    Label Label6{*this, "Label6", {2280, 840, 975, 255}, FieldName(u"Fecha:")};
    Label Label2{*this, "Label2", {3420, 780, 2415, 405}, Valor()};
    Label Label16{*this, "Label16", {2190, 1380, 1065, 255}, FieldName(u"Tiempo:")};
    Label Label17{*this, "Label17", {3420, 1320, 2115, 405}, Valor()};
    Label Label4{*this, "Label4", {2340, 1920, 915, 255}, FieldName(u"Modo:")};
    Label Label9{*this, "Label9", {3420, 1860, 3075, 405}, Valor()};
    Label Label7{*this, "Label7", {570, 2760, 1095, 255}, FieldName(u"Palabra")};
    Label Label3{*this, "Label3", {570, 3150, 1095, 555}, Cifra()};
    Label Label10{*this, "Label10", {1980, 2760, 1095, 255}, FieldName(u"Zarpis")};
    Label Label11{*this, "Label11", {1980, 3150, 1095, 555}, Cifra()};
    Label Label12{*this, "Label12", {3390, 2760, 1125, 255}, FieldName(u"Plenos")};
    Label Label13{*this, "Label13", {3390, 3150, 1125, 555}, Cifra()};
    Label Label14{*this, "Label14", {4830, 2760, 1215, 255}, FieldName(u"Comodines")};
    Label Label15{*this, "Label15", {4830, 3150, 1245, 555}, Cifra()};
    Label Label8{*this, "Label8", {1290, 4470, 1455, 255}, FieldName(u"Contraseña:")};
    Shape shpAceptar{*this, "shpAceptar", {1260, 5370, 1605, 525}, ButtonPlate()};
    Shape shpCancelar{*this, "shpCancelar", {3630, 5370, 1605, 525}, ButtonPlate()};

private:
    static LabelLook Valor() { return ValueBox(u"", FontName::MSSansSerif, 12, true, White); }
    static LabelLook Cifra() { return ValueBox(u"", FontName::MSSansSerif, 18, true, White); }
    void Form_Load();
    void lstLista_Click();
    void Tomar(const PartidaGuardada& game);
    void Mostrar(const PartidaGuardada& game);
    void cmdReanudar_Click();
    bool ContraseñaCorrecta();
    void Form_QueryUnload();

    Zarpi& z;
    Forms& forms;
    Dialogs& dialogs;
    Files& files;
    ÍndicesPalabras índices;
    AccionesReanudar acciones;
    Integer último = 0;
    Integer PartidaElegida = 0;  ///< record of the game selected, equal to its line in the list; 0 for none
    bool fReanudada = false;
    Integer ModoAnterior = 0;  ///< the choices when the dialog opened, given back unless a game is resumed
    Integer TiempoAnterior = 0;
    Text NombreAnterior;
};

}  // namespace juego
