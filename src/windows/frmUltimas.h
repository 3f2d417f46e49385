#pragma once

#include "game/Zarpi.h"
#include "records/Registros.h"
#include "windows/Filas.h"

namespace juego {

/// The last ten games that got anywhere, newest first.
class frmÚltimas : public Form {
public:
    frmÚltimas(Zarpi& zarpi, Forms& forms, Files& files, Printer& printer);

    CommandButton cmdAceptar{*this, "cmdAceptar", {3630, 2130, 1425, 405}, AcceptButton()};
    CommandButton cmdImprimir{*this, "cmdImprimir", {6270, 2130, 1425, 405}, PlateButton(u"IMPRIMIR", 2)};
    PictureBox Picture1{*this, "Picture1", {90, 360, 615, 960}, SmallZarpi()};
    PictureBox Picture2{*this, "Picture2", {10680, 360, 615, 960}, SmallZarpi()};
    Label Label1{*this, "Label1", {90, 1650, 1020, 285}, filas::Cabecera(u"Palabra")};
    Label Label2{*this, "Label2", {1200, 1650, 1995, 285}, filas::Cabecera(u"Nombre")};
    Label Label3{*this, "Label3", {3300, 1650, 1020, 285}, filas::Cabecera(u"Zarpis")};
    Label Label4{*this, "Label4", {4410, 1650, 1020, 285}, filas::Cabecera(u"Plenos")};
    Label Label5{*this, "Label5", {5520, 1650, 2595, 285}, filas::Cabecera(u"Modo")};
    Label Label6{*this, "Label6", {8220, 1650, 1440, 285}, filas::Cabecera(u"Tiempo")};
    Label Label7{*this, "Label7", {9750, 1650, 1575, 285}, filas::Cabecera(u"Fecha")};
    ControlArray<Label, 10> lblPalabra{*this, "lblPalabra", [](int k) { return filas::Celda(90, 1020, k); }};
    ControlArray<Label, 10> lblNombre{*this, "lblNombre", [](int k) { return filas::Celda(1200, 1995, k); }};
    ControlArray<Label, 10> lblZarpis{*this, "lblZarpis", [](int k) { return filas::Celda(3300, 1020, k); }};
    ControlArray<Label, 10> lblPlenos{*this, "lblPlenos", [](int k) { return filas::Celda(4410, 1020, k); }};
    ControlArray<Label, 10> lblModo{*this, "lblModo", [](int k) { return filas::Celda(5520, 2595, k); }};
    ControlArray<Label, 10> lblTiempo{*this, "lblTiempo", [](int k) { return filas::Celda(8220, 1440, k); }};
    ControlArray<Label, 10> lblFecha{*this, "lblFecha", [](int k) { return filas::Celda(9750, 1575, k); }};
    Shape shpAceptar{*this, "shpAceptar", {3540, 2070, 1605, 525}, ButtonPlate()};
    Shape shpImprimir{*this, "shpImprimir", {6180, 2070, 1605, 525}, ButtonPlate()};

private:
    void Form_Load();
    bool LeerFilas();

    Zarpi& z;
    Files& files;
};

}  // namespace juego
